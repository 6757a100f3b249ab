#include "engine/common/csv.h"

namespace varnello {

std::optional<std::vector<Field>> SplitFields(std::string_view line) {
    std::vector<Field> fields;
    for (;;) {
        const bool quoted = line.starts_with('"');
        if (quoted) line.remove_prefix(1);
        const std::size_t end = line.find(quoted ? '"' : ',');
        if (quoted && end == std::string_view::npos) return std::nullopt;
        const std::string_view text = line.substr(0, end);
        if (!quoted && text.find('"') != std::string_view::npos) return std::nullopt;
        fields.push_back({text, quoted});
        line.remove_prefix(text.size() + (quoted ? 1 : 0));
        if (line.empty()) return fields;
        if (!line.starts_with(',')) return std::nullopt;
        line.remove_prefix(1);
    }
}

std::string QuotedField(std::string_view text) {
    std::string field = "\"";
    field += text;
    return field + '"';
}

}  // namespace varnello
