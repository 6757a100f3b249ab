// One picture of all icons, for people to look at.
#pragma once

#include <QImage>
#include <QString>

namespace varnello::drawings {

/// The small icons of a folder and the program's icon in its subfolder "app", at one and two device
/// pixels a pixel and enlarged, on a light and on a dark ground.
QImage ContactSheet(const QString& folder);

}  // namespace varnello::drawings
