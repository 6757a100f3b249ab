#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "engine/common/progress.h"

namespace varnello {

/// Does long work on a thread of its own and returns when it is done. When it takes a moment, a box
/// over `parent` tells what is done and how far it is, and the windows go on answering. False when
/// a person has stopped it there; then the work ends by itself as soon as it looks at its progress,
/// so it must own all that it uses.
bool DoWatched(QWidget* parent, const QString& what, std::int64_t whole,
               std::function<void(Progress&)> work);

}  // namespace varnello
