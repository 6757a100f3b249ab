#include "desktop/appearance/icons.h"

namespace varnello {

QIcon SmallIcon(const QString& name) { return QIcon(QStringLiteral(":/icons/%1.png").arg(name)); }

QIcon ProgramIcon() {
    QIcon icon;
    icon.addFile(QStringLiteral(":/icons/app/varnello-16.png"));
    icon.addFile(QStringLiteral(":/icons/app/varnello-32.png"));
    return icon;
}

}  // namespace varnello
