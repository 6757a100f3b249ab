#include "desktop/modules/chart_module.h"
#include "desktop/modules/module.h"

namespace varnello {

ChartModule* Charts() {
    static ChartModule* const module =
        qobject_cast<ChartModule*>(LoadModule(QStringLiteral("varnello-charts")));
    return module;
}

}  // namespace varnello
