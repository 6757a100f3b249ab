#include "desktop/modules/module.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace varnello {

QObject* LoadModule(const QString& name) {
    const QDir program(QCoreApplication::applicationDirPath());
    // Installed, and in the folder that the program was built in.
    for (const char* folder : {VARNELLO_MODULES, "modules"}) {
        QPluginLoader loader(program.filePath(QLatin1String(folder) + u'/' + name));
        if (QObject* module = loader.instance()) return module;  // until the program ends
    }
    return nullptr;
}

}  // namespace varnello
