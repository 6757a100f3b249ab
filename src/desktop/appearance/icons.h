#pragma once

#include <QIcon>
#include <QString>

namespace varnello {

/// A small icon of the program by name, such as "new" or "player".
QIcon SmallIcon(const QString& name);

/// The program's own icon in all its sizes.
QIcon ProgramIcon();

}  // namespace varnello
