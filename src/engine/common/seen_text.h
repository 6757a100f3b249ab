#pragma once

#include <string_view>

namespace varnello {

/// Whether a UTF-8 text can be seen as it is: sound, not of blanks alone, without control
/// characters and without characters that have no shape.
bool IsSeenText(std::string_view text);

}  // namespace varnello
