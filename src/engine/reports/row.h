#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/common/phrase.h"

namespace varnello {

/// How a list sorts by a column when a person asks it to: by alphabet or by value. `Label` reads as
/// a text and sorts by value, as a date does.
enum class ColumnKind { Text, Value, Label };

struct Column {
    std::string_view Title;
    ColumnKind Kind = ColumnKind::Text;
};

/// What a cell's text is: a person's own, such as a name or a date; one of the program's, which has
/// a translation; or a figure, which is shown in the digits of the user's language.
enum class CellForm : std::uint8_t { Own, Word, Figure };

/// What one cell of a report shows, and what it sorts by unless that is its text.
struct ReportCell {
    std::string Text;
    double Value = 0;
    CellForm Form = CellForm::Own;
};

using ReportRow = std::vector<ReportCell>;

/// A whole number in plain decimal.
ReportCell NumberCell(double value);
/// Seconds, shown as h:mm:ss.
ReportCell TimeCell(double seconds);
/// A value followed by "%".
ReportCell PercentCell(double percent);

ReportCell WordCell(std::string_view word);

/// "Won" for status 1, "Lost" for any other.
std::string_view WonLostText(int status);

}  // namespace varnello
