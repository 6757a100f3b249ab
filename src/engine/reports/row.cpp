#include "engine/reports/row.h"

#include "engine/common/calendar.h"
#include "engine/common/number_text.h"
#include "engine/common/rounding.h"

namespace varnello {

ReportCell NumberCell(double value) { return {WholeText(value), value}; }

ReportCell TimeCell(double seconds) { return {FormatTime(RoundTo32(seconds)), seconds}; }

ReportCell PercentCell(double percent) { return {ShortDecimal(percent) + '%', percent}; }

std::string_view WonLostText(int status) { return status == 1 ? "Won" : "Lost"; }

}  // namespace varnello
