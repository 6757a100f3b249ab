#include "engine/reports/row.h"

#include "engine/common/calendar.h"
#include "engine/common/number_text.h"
#include "engine/common/rounding.h"

namespace varnello {

ReportCell NumberCell(double value) { return {WholeText(value), value, CellForm::Figure}; }

ReportCell TimeCell(double seconds) {
    return {FormatTime(RoundTo32(seconds)), seconds, CellForm::Figure};
}

ReportCell PercentCell(double percent) {
    return {ShortDecimal(percent) + '%', percent, CellForm::Figure};
}

ReportCell WordCell(std::string_view word) { return {std::string(word), 0, CellForm::Word}; }

std::string_view WonLostText(int status) {
    return status == 1 ? say::Text("Won") : say::Text("Lost");
}

}  // namespace varnello
