#include "desktop/modules/module.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace varnello {

QObject* LoadModule(const QString& name) {
    const QDir program(QCoreApplication::applicationDirPath());
    QPluginLoader loader(program.filePath(QStringLiteral(VARNELLO_MODULES "/") + name));
    return loader.instance();  // stays loaded until the program ends
}

}  // namespace varnello
