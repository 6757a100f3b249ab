#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr std::string_view kRecentSection = "Recent";

}  // namespace

std::string cData::GetRecent(std::int16_t index) const { return Slot(kRecentSection, index); }

void cData::SetRecent(std::string_view name) {
    if (GetRecent(1) == name) return;
    for (std::int16_t i = kMaxRecent; i > 1; --i) {
        Slot(kRecentSection, i, GetRecent(static_cast<std::int16_t>(i - 1)));
    }
    Slot(kRecentSection, 1, name);
}

std::int16_t cData::RecentCount() const { return CountSlots(kRecentSection, kMaxRecent); }

void cData::ClearRecent() {
    for (std::int16_t i = 1; i <= kMaxRecent; ++i) Slot(kRecentSection, i, {});
}

}  // namespace varnello
