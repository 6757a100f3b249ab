#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace varnello {

/// How a list sorts by a column when a person asks it to: by alphabet or by value. `Label` reads as
/// a text and sorts by value, as a date does.
enum class ColumnKind { Text, Value, Label };

struct Column {
    std::string_view Title;
    ColumnKind Kind = ColumnKind::Text;
};

/// What one cell of a report shows, and what it sorts by unless that is its text.
struct ReportCell {
    std::string Text;
    double Value = 0;
};

using ReportRow = std::vector<ReportCell>;

/// A whole number in plain decimal.
ReportCell NumberCell(double value);
/// Seconds, shown as h:mm:ss.
ReportCell TimeCell(double seconds);
/// A value followed by "%".
ReportCell PercentCell(double percent);

/// "Won" for status 1, "Lost" for any other.
std::string_view WonLostText(int status);

}  // namespace varnello
