#include "desktop/appearance/icons.h"

namespace varnello {

QIcon SmallIcon(const QString& name) { return QIcon(QStringLiteral(":/icons/%1.png").arg(name)); }

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
        icon.addFile(QStringLiteral(":/icons/app/%1x%1/varnello.png").arg(size));
    }
    return icon;
}

}  // namespace varnello
