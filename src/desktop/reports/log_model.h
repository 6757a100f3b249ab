#pragma once

#include "desktop/reports/report_model.h"
#include "engine/reports/log_report.h"

namespace varnello {

/// The log of all games: looks into the open score list for each row that is shown.
class LogModel : public ReportModel {
    Q_OBJECT

public:
    LogModel(const ScoreList& list, const DateForms& dates, QObject* parent);

    void SetPositions(std::vector<std::uint32_t> positions);
    std::vector<int> WidestRows() const override;
    ReportRow RowAt(int row) const override;

protected:
    int Count() const override { return static_cast<int>(positions_.size()); }
    SortValueOf SortValues(int column) const override;

private:
    const ScoreList& list_;
    const DateForms& dates_;
    std::vector<std::uint32_t> positions_;
};

}  // namespace varnello
