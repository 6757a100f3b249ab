#include "engine/reports/record_columns.h"

#include <limits>

#include "engine/common/calendar.h"

namespace varnello {
namespace {

Column ColumnOf(RecordField field) {
    switch (field) {
        case RecordField::Number: return {"S No.", ColumnKind::Value};
        case RecordField::Player: return {"Player"};
        case RecordField::Game: return {"Game"};
        case RecordField::Score: return {"Score", ColumnKind::Value};
        case RecordField::Time: return {"Time", ColumnKind::Value};
        case RecordField::Moves: return {"Moves", ColumnKind::Value};
        case RecordField::Status: return {"Status"};
        case RecordField::Date: return {"Date", ColumnKind::Label};
        case RecordField::GameNo: break;
    }
    return {"Game No.", ColumnKind::Value};
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
        case RecordField::Status: return {std::string(WonLostText(record.Status))};
        case RecordField::Date: return DateCell(record.Date, dates);
        case RecordField::GameNo: break;
    }
    return {record.GameNo.Shown(), record.GameNo.Value()};
}

}  // namespace

std::vector<Column> ColumnsOf(RecordFields fields) {
    std::vector<Column> columns;
    for (const RecordField field : fields) columns.push_back(ColumnOf(field));
    return columns;
}

ReportRow RowOf(const ScoreRecord& record, double number, RecordFields fields,
                const DateForms& dates) {
    ReportRow row;
    for (const RecordField field : fields) row.push_back(CellOf(record, number, field, dates));
    return row;
}

}  // namespace varnello
