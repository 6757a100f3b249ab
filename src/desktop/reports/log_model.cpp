#include "desktop/reports/log_model.h"

#include <algorithm>
#include <limits>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "desktop/reports/report_order.h"

namespace varnello {
namespace {

QStringList TextsOf(const TextPool& pool) {
    QStringList texts;
    for (TextPool::Id id = 0; id < pool.Size(); ++id) texts << ToQt(pool.Text(id));
    return texts;
}

QStringList TextsOf(const TextPool& pool, const std::vector<bool>& which) {
    QStringList texts;
    for (TextPool::Id id = 0; id < which.size(); ++id) {
        if (which[id]) texts << ToQt(pool.Text(id));
    }
    return texts;
}

}  // namespace

LogModel::LogModel(const ScoreList& list, const DateForms& dates, QObject* parent)
    : ReportModel(ColumnsOf(kLogColumns), parent), list_(list), dates_(dates) {}

void LogModel::SetPositions(std::vector<std::uint32_t> positions) {
    Reset([&] {
        positions_ = std::move(positions);
        MeasureExtent();
    });
}

ReportRow LogModel::RowAt(int row) const {
    const std::uint32_t position = positions_.at(static_cast<std::size_t>(row));
    return RowOf(list_.Record(position), row + 1, kLogColumns, dates_);
}

void LogModel::MeasureExtent() {
    extent_ = {};
    extent_.players.resize(list_.Players().Size());
    extent_.games.resize(list_.Games().Size());
    const auto widen = [](std::int32_t(&range)[2], std::int32_t value) {
        range[0] = std::min(range[0], value);
        range[1] = std::max(range[1], value);
    };
    std::int64_t most = -1;
    std::size_t longestNumber = 0;  // of those that aren't plain digits
    std::size_t longestDate = 0;
    for (const std::uint32_t position : positions_) {
        const CompactScore& score = list_.At(position);
        extent_.players[score.Player] = true;
        extent_.games[score.Game] = true;
        widen(extent_.scores, score.Score);
        widen(extent_.moves, score.Moves);
        widen(extent_.times, score.Time);
        if (score.NumberForm == CompactScore::Form::Text) {
            const std::size_t length = list_.NumberOf(score).Shown().size();
            if (length > longestNumber) extent_.longestNumber = position;
            longestNumber = std::max(longestNumber, length);
        } else if (score.Number > most && longestNumber == 0) {
            most = score.Number;
            extent_.longestNumber = position;
        }
        if (!score.Dated) {
            const std::size_t length = list_.DateTextOf(score).size();
            if (length >= longestDate) extent_.longestOddDate = position;
            longestDate = std::max(longestDate, length);
            extent_.hasOddDate = true;
        }
    }
}

QStringList LogModel::DateTexts() const {
    QStringList texts;
    for (int month = 1; month <= 12; ++month) {
        texts << ToQt(dates_.Date({.month = month, .day = 28}));
    }
    if (extent_.hasOddDate) texts << ToQt(list_.DateTextOf(list_.At(extent_.longestOddDate)));
    return texts;
}

QStringList LogModel::WidestTexts(int column) const {
    if (positions_.empty()) return {};
    const auto texts = [](const std::int32_t(&range)[2], auto cellOf) {
        return QStringList{Localized(cellOf(range[0])), Localized(cellOf(range[1]))};
    };
    switch (kLogColumns[static_cast<std::size_t>(column)].Field) {
        case RecordField::Number: return {AsFigure(Count())};
        case RecordField::Player: return TextsOf(list_.Players(), extent_.players);
        case RecordField::Game: return TextsOf(list_.Games(), extent_.games);
        case RecordField::Score: return texts(extent_.scores, NumberCell);
        case RecordField::Moves: return texts(extent_.moves, NumberCell);
        case RecordField::Time: return texts(extent_.times, TimeCell);
        case RecordField::Status: return {Localized(WonLostText(0)), Localized(WonLostText(1))};
        case RecordField::Date: return DateTexts();
        case RecordField::GameNo: break;
    }
    return {ToQt(list_.NumberOf(list_.At(extent_.longestNumber)).Shown())};
}

std::vector<double> LogModel::SortValues(int column) const {
    std::vector<double> values(positions_.size());
    const auto fill = [&](const auto& valueOf) {
        std::transform(positions_.begin(), positions_.end(), values.begin(),
                       [&](std::uint32_t position) { return valueOf(list_.At(position)); });
    };
    constexpr double kFirst = -std::numeric_limits<double>::infinity();
    switch (kLogColumns[static_cast<std::size_t>(column)].Field) {
        case RecordField::Number:
            std::copy(positions_.begin(), positions_.end(), values.begin());
            break;
        case RecordField::Player:
            fill([places = AlphabetOf(TextsOf(list_.Players()))](const CompactScore& score) {
                return places[score.Player];
            });
            break;
        case RecordField::Game:
            fill([places = AlphabetOf(TextsOf(list_.Games()))](const CompactScore& score) {
                return places[score.Game];
            });
            break;
        case RecordField::Score: fill([](const CompactScore& score) { return score.Score; }); break;
        case RecordField::Time: fill([](const CompactScore& score) { return score.Time; }); break;
        case RecordField::Moves: fill([](const CompactScore& score) { return score.Moves; }); break;
        case RecordField::Status:  // "Lost" before "Won"
            fill([](const CompactScore& score) { return score.Status == 1; });
            break;
        case RecordField::Date:
            fill([](const CompactScore& score) {
                return score.Dated ? static_cast<double>(score.Date) : kFirst;
            });
            break;
        case RecordField::GameNo:
            fill([this](const CompactScore& score) {
                return score.NumberForm == CompactScore::Form::Text
                           ? list_.NumberOf(score).Value()
                           : static_cast<double>(score.Number);
            });
            break;
    }
    return values;
}

}  // namespace varnello
