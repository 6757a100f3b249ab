#pragma once

#include <QObject>
#include <QString>

namespace varnello {

/// Loads a module of the program, a library that is needed seldom and would slow each start down.
/// nullptr when it can't be loaded.
QObject* LoadModule(const QString& name);

}  // namespace varnello
