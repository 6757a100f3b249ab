#include "engine/reports/record_columns.h"

#include <algorithm>
#include <limits>

#include "engine/common/calendar.h"

namespace varnello {
namespace {

ColumnKind KindOf(RecordField field) {
    switch (field) {
        case RecordField::Player:
        case RecordField::Game:
        case RecordField::Status: return ColumnKind::Text;
        case RecordField::Date: return ColumnKind::Label;
        case RecordField::Number:
        case RecordField::Score:
        case RecordField::Time:
        case RecordField::Moves:
        case RecordField::GameNo: break;
    }
    return ColumnKind::Value;
}

ReportCell DateCell(const std::string& text, const DateForms& dates) {
    const auto moment = ParseDateText(text);
    if (!moment) return {text, -std::numeric_limits<double>::infinity()};
    return {dates.Date(*moment), static_cast<double>(SecondsSinceEpoch(*moment))};
}

ReportCell CellOf(const ScoreRecord& record, double number, RecordField field,
                  const DateForms& dates) {
    switch (field) {
        case RecordField::Number: return NumberCell(number);
        case RecordField::Player: return {record.Player};
        case RecordField::Game: return {record.Game};
        case RecordField::Score: return NumberCell(record.Score);
        case RecordField::Time: return TimeCell(record.Time);
        case RecordField::Moves: return NumberCell(record.Moves);
        case RecordField::Status: return WordCell(WonLostText(record.Status));
        case RecordField::Date: return DateCell(record.Date, dates);
        case RecordField::GameNo: break;
    }
    return {record.GameNo.Shown(), record.GameNo.Value()};
}

}  // namespace

std::vector<Column> ColumnsOf(RecordColumns columns) {
    std::vector<Column> made;
    for (const auto& [field, title] : columns) made.push_back({title, KindOf(field)});
    return made;
}

std::size_t PlaceOf(RecordField field, RecordColumns columns) {
    const auto found =
        std::find_if(columns.begin(), columns.end(),
                     [&](const RecordColumn& column) { return column.Field == field; });
    return static_cast<std::size_t>(found - columns.begin());
}

ReportRow RowOf(const ScoreRecord& record, double number, RecordColumns columns,
                const DateForms& dates) {
    ReportRow row;
    for (const auto& column : columns) {
        row.push_back(CellOf(record, number, column.Field, dates));
    }
    return row;
}

}  // namespace varnello
