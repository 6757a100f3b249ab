#include "desktop/modules/chart_module.h"

#include "desktop/modules/charts/row_chart.h"
#include "desktop/modules/charts/share_chart.h"
#include "desktop/modules/charts/totals_chart.h"

namespace varnello {
namespace {

class QtCharts : public QObject, public ChartModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnello.ChartModule")
    Q_INTERFACES(varnello::ChartModule)

public:
    Chart* NewChart(ChartKind kind, QWidget* parent) override {
        switch (kind) {
            case ChartKind::Share: return new ShareChart(parent);
            case ChartKind::Totals: return new TotalsChart(parent);
            case ChartKind::Rows: break;
        }
        return new RowChart(parent);
    }
};

}  // namespace
}  // namespace varnello

#include "chart_module.moc"
