#pragma once

#include <QTableView>

#include "desktop/reports/report_model.h"

namespace varnello {

/// A list of a report: whole rows, columns as wide as what stands in them, sorted by a click on a
/// header and back in the report's order by a third one.
class ReportView : public QTableView {
    Q_OBJECT

public:
    /// `name` is what assistive tools call the list. The view owns the model.
    ReportView(ReportModel* model, const QString& name, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MeasureColumns();
    void FitColumns();

    ReportModel* model_;
    std::vector<int> widths_;  // pixels that the columns need
};

}  // namespace varnello
