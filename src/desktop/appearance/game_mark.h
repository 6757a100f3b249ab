#pragma once

#include <QIcon>
#include <string>

namespace varnello {

inline constexpr QSize kGameMarkSize(28, 16);  // pixels

/// A mark for a game in a list: what its table looks like after the deal, in miniature and in the
/// colour of the text beside it.
QIcon GameMark(const std::string& game);

}  // namespace varnello
