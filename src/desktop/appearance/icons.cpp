#include "desktop/appearance/icons.h"

#include <QDir>

namespace varnello {

QIcon SmallIcon(const QString& name) {
    const QString file = QStringLiteral(":/icons/%1.png").arg(name);
    QIcon icon(file);
    icon.addFile(file, {}, QIcon::Selected);  // a selection doesn't tint it
    return icon;
}

QIcon ProgramIcon() {
    QIcon icon;
    const QDir sizes(QStringLiteral(":/icons/app"));
    for (const QString& size : sizes.entryList()) {
        icon.addFile(sizes.filePath(size + QStringLiteral("/varnello.png")));
    }
    return icon;
}

}  // namespace varnello
