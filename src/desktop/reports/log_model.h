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
    const std::vector<std::uint32_t>& Positions() const { return positions_; }
    QStringList WidestTexts(int column) const override;
    ReportRow RowAt(int row) const override;

protected:
    int Count() const override { return static_cast<int>(positions_.size()); }
    std::vector<double> SortValues(int column) const override;

private:
    /// What tells how wide the columns have to be.
    struct Extent {
        std::vector<bool> players;  ///< which ones occur
        std::vector<bool> games;
        std::int32_t scores[2] = {};  ///< the least and the most; 0 at either end
        std::int32_t moves[2] = {};
        std::int32_t times[2] = {};
        std::uint32_t longestNumber = 0;  ///< positions
        std::uint32_t longestOddDate = 0;
        bool hasOddDate = false;
    };
    void MeasureExtent();
    QStringList DateTexts() const;

    const ScoreList& list_;
    const DateForms& dates_;
    std::vector<std::uint32_t> positions_;
    Extent extent_;
};

}  // namespace varnello
