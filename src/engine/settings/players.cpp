#include <algorithm>

#include "engine/common/number_text.h"
#include "engine/common/seen_text.h"
#include "engine/common/utf8.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr std::string_view kUsersSection = "Users";
constexpr std::int16_t kCurrentSlot = 100;
constexpr std::int16_t kRenamedFrom = 101;
constexpr std::int16_t kRenamedTo = 102;

}  // namespace

std::int16_t cData::TotalPlayers() const {
    std::int16_t count = 0;
    for (std::int16_t slot = 1; slot <= kMaxPlayers; ++slot) {
        if (!GetPlayer(slot).empty()) ++count;
    }
    return count;
}

// A name becomes part of a file's path. One that no dialog would have taken, but that stands in
// settings edited by hand, counts as none.
std::string cData::GetPlayer(std::int16_t slot) const {
    std::string name = Slot(kUsersSection, slot);
    return IsPlayerName(name) ? name : std::string();
}

void cData::SetPlayer(std::int16_t slot, std::string_view name, bool makeCurrent) {
    Slot(kUsersSection, slot, name);
    if (makeCurrent) CurPlayer(name);
}

// Whoever plays is somebody in the list, whatever stands in settings edited by hand.
std::string cData::CurPlayer() const {
    std::string name = GetPlayer(kCurrentSlot);
    if (!name.empty() && FindPlayer(name) != 0) return name;
    for (std::int16_t slot = 1; slot <= kMaxPlayers; ++slot) {
        name = GetPlayer(slot);
        if (!name.empty()) break;
    }
    return name;
}

void cData::CurPlayer(std::string_view name) { Slot(kUsersSection, kCurrentSlot, name); }

std::int16_t cData::FindPlayer(std::string_view name) const {
    for (std::int16_t slot = 1; slot <= kMaxPlayers; ++slot) {
        if (GetPlayer(slot) == name) return slot;
    }
    return 0;
}

bool cData::AddPlayer(std::string_view name) {
    const std::int16_t slot = FindPlayer("");
    if (slot == 0) return false;
    SetPlayer(slot, name, false);
    return true;
}

std::string cData::RenamedFrom() const { return GetPlayer(kRenamedFrom); }

std::string cData::RenamedTo() const { return GetPlayer(kRenamedTo); }

void cData::SetRenamed(std::string_view from, std::string_view to) {
    if (RenamedFrom() != from) Slot(kUsersSection, kRenamedFrom, from);
    if (RenamedTo() != to) Slot(kUsersSection, kRenamedTo, to);
}

void cData::PackPlayers() {
    std::int16_t next = 1;
    for (std::int16_t slot = 1; slot <= kMaxPlayers; ++slot) {
        const std::string name = GetPlayer(slot);
        if (name.empty()) continue;
        if (FindPlayer(name) < slot) {
            SetPlayer(slot, {}, false);
            continue;
        }
        if (slot != next) {
            SetPlayer(next, name, false);
            SetPlayer(slot, {}, false);
        }
        ++next;
    }
}

bool IsNewPlayerName(std::string_view name) { return IsPlayerName(name) && IsSeenText(name); }

bool IsPlayerName(std::string_view name) {
    const auto unfit = [](char c) {
        return c == '/' || c == '\\' || (static_cast<unsigned char>(c) < 0x20) || c == 0x7F;
    };
    constexpr std::size_t kLongest = 250;  // bytes; with its ending it has to be a file's name
    return name.size() <= kLongest && !Trim(name).empty() &&
           std::none_of(name.begin(), name.end(), unfit);
}

std::string CutPlayerName(std::string_view name) {
    return std::string(FirstCharacters(name, kMaxPlayerName));
}

std::filesystem::path ScorePath(const cData& data, std::string_view player) {
    const std::u8string name(player.begin(), player.end());
    return data.AppDir() / std::filesystem::path(name + u8".sre");
}

}  // namespace varnello
