#include "engine/null_desktop.h"

namespace varnello {

std::string MemoryStore::Read(std::string_view section, std::string_view key,
                              std::string_view fallback) const {
    const auto inSection = sections_.find(section);
    if (inSection == sections_.end()) return std::string(fallback);
    const auto found = inSection->second.find(key);
    return std::string(found == inSection->second.end() ? fallback : found->second);
}

void MemoryStore::Write(std::string_view section, std::string_view key, std::string_view text) {
    sections_[std::string(section)].insert_or_assign(std::string(key), std::string(text));
}

}  // namespace varnello
