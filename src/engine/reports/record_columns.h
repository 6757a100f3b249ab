#pragma once

#include <span>
#include <vector>

#include "engine/desktop.h"
#include "engine/reports/row.h"
#include "engine/scores/record.h"

/// Lists of single games: what a column holds is the same in every window.
namespace varnello {

enum class RecordField { Number, Player, Game, Score, Time, Moves, Status, Date, GameNo };

/// A column of such a list. A list is a table of these.
struct RecordColumn {
    RecordField Field;
    std::string_view Title;
};
using RecordColumns = std::span<const RecordColumn>;

/// The columns as most lists call them.
namespace columns {
inline constexpr RecordColumn Number{RecordField::Number, say::Text("S No.")};
inline constexpr RecordColumn Player{RecordField::Player, say::Text("Player")};
inline constexpr RecordColumn Game{RecordField::Game, say::Text("Game")};
inline constexpr RecordColumn Score{RecordField::Score, say::Text("Score")};
inline constexpr RecordColumn Time{RecordField::Time, say::Text("Time")};
inline constexpr RecordColumn Moves{RecordField::Moves, say::Text("Moves")};
inline constexpr RecordColumn Status{RecordField::Status, say::Text("Status")};
inline constexpr RecordColumn Date{RecordField::Date, say::Text("Date")};
inline constexpr RecordColumn GameNo{RecordField::GameNo, say::Text("Game No.")};
}  // namespace columns

std::vector<Column> ColumnsOf(RecordColumns columns);
/// Where a field stands among them, from 0; it is one of them.
std::size_t PlaceOf(RecordField field, RecordColumns columns);

/// The cells of a game; `number` is its place in the list, from 1. A date that can't be read is
/// shown as it stands and sorts first.
ReportRow RowOf(const ScoreRecord& record, double number, RecordColumns columns,
                const DateForms& dates);

}  // namespace varnello
