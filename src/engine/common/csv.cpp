#include "engine/common/csv.h"

namespace varnello {

std::string QuotedField(std::string_view text) {
    std::string field = "\"";
    field += text;
    return field + '"';
}

}  // namespace varnello
