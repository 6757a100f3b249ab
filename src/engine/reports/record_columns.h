#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "engine/desktop.h"
#include "engine/reports/row.h"
#include "engine/scores/record.h"

/// Lists of single games: what a column holds is the same in every window.
namespace varnello {

enum class RecordField { Number, Player, Game, Score, Time, Moves, Status, Date, GameNo };

using RecordFields = std::span<const RecordField>;

std::vector<Column> ColumnsOf(RecordFields fields);

/// The cells of a game; `number` is its place in the list, from 1. A date that can't be read is
/// shown as it stands and sorts first.
ReportRow RowOf(const ScoreRecord& record, double number, RecordFields fields,
                const DateForms& dates);

}  // namespace varnello
