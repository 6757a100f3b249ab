#include "desktop/reports/log_model.h"

#include <algorithm>
#include <set>

namespace varnello {

LogModel::LogModel(const ScoreList& list, const DateForms& dates, QObject* parent)
    : ReportModel(LogColumns(), parent), list_(list), dates_(dates) {}

void LogModel::SetPositions(std::vector<std::uint32_t> positions) {
    Reset([&] { positions_ = std::move(positions); });
}

ReportRow LogModel::RowAt(int row) const {
    const std::uint32_t position = positions_.at(static_cast<std::size_t>(row));
    return RowOf(list_.Record(position), row + 1, kLogFields, dates_);
}

/// The last rows have the longest numbers and cover players and dates; the rest is told by the
/// records with the largest and smallest figures and the longest names of games.
std::vector<int> LogModel::WidestRows() const {
    constexpr int kEnds = 100;
    std::set<int> rows;
    for (int i = 0; i < std::min(kEnds, Count()); ++i) rows.insert({i, Count() - 1 - i});
    struct Extremes {
        int least = 0;
        int most = 0;
    } score, time, moves, game, number;
    const auto record = [&](int row) -> const CompactScore& {
        return list_.At(positions_[static_cast<std::size_t>(row)]);
    };
    for (int row = 0; row < Count(); ++row) {
        const auto widen = [&](Extremes& found, const auto& valueOf) {
            if (valueOf(record(row)) < valueOf(record(found.least))) found.least = row;
            if (valueOf(record(row)) > valueOf(record(found.most))) found.most = row;
        };
        widen(score, [](const CompactScore& r) { return r.Score; });
        widen(time, [](const CompactScore& r) { return r.Time; });
        widen(moves, [](const CompactScore& r) { return r.Moves; });
        widen(game, [&](const CompactScore& r) { return list_.GameOf(r).size(); });
        widen(number, [](const CompactScore& r) { return r.Number; });
    }
    if (Count() > 0) {
        for (const Extremes& found : {score, time, moves, game, number}) {
            rows.insert({found.least, found.most});
        }
    }
    return {rows.begin(), rows.end()};
}

ReportModel::SortValueOf LogModel::SortValues(int column) const {
    const auto valueOf = SortValue(list_, kLogFields[static_cast<std::size_t>(column)]);
    return [this, valueOf](int row) { return valueOf(positions_[static_cast<std::size_t>(row)]); };
}

}  // namespace varnello
