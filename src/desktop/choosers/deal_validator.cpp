#include "desktop/choosers/deal_validator.h"

#include <QStringList>
#include <optional>

#include "engine/flow/session_report.h"
#include "engine/reports/high_scores.h"
#include "engine/reports/log_report.h"

namespace varnello {
namespace {

struct Deal {
    QString game;  ///< empty where the list is of one game
    QString number;
};

/// The cells as a row of such a list, if they can be one.
std::optional<Deal> DealIn(const QStringList& cells, RecordColumns columns, const cData& data) {
    if (cells.size() != static_cast<qsizetype>(columns.size())) return {};
    Deal deal;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const QString cell = cells[static_cast<qsizetype>(i)].trimmed();
        switch (columns[i].Field) {
            case RecordField::Game:
                if (data.GetGameID(cell.toStdString()) == 0) return {};
                deal.game = cell;
                break;
            case RecordField::GameNo: deal.number = cell; break;
            default: break;
        }
    }
    return deal;
}

std::optional<Deal> DealIn(const QString& row, const cData& data) {
    const QStringList cells = row.split(QLatin1Char('\t'));
    // The last one is of a game that isn't named, so that any row of its length can be one.
    for (const RecordColumns& columns :
         {kLogColumns, kTopColumns, kSessionColumns, kFinishedColumns, kTopOfPlayerColumns,
          kTopOfGameColumns}) {
        if (auto deal = DealIn(cells, columns, data)) return deal;
    }
    return {};
}

}  // namespace

DealValidator::DealValidator(QLineEdit* box, std::size_t most, const cData& data,
                             std::function<void(const QString& game)> onGame)
    : OneLineValidator(box, most), data_(data), onGame_(std::move(onGame)) {}

QValidator::State DealValidator::validate(QString& text, int& cursor) const {
    for (const QString& row : text.split(QLatin1Char('\n'))) {
        const auto deal = DealIn(row, data_);
        if (!deal) continue;
        text = deal->number;
        cursor = static_cast<int>(text.size());
        if (!deal->game.isEmpty()) onGame_(deal->game);
        break;
    }
    return OneLineValidator::validate(text, cursor);
}

}  // namespace varnello
