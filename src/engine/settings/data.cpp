#include "engine/settings/data.h"

#include <algorithm>
#include <array>

#include "engine/common/number_text.h"
#include "engine/definitions/catalogue.h"

namespace varnello {
namespace {

constexpr std::string_view kDataSection = "Data";

constexpr std::array kPlainKeys{
    keys::Autoplay,    keys::ShowToolbar, keys::CardSpeed, keys::UndoSpeed, keys::UndoallSpeed,
    keys::ReplaySpeed, keys::ShowTime,    keys::ShowScore, keys::ShowMoves, keys::BGIndex,
    keys::RangeIndex,  keys::DeckIndex,   keys::Fade};

constexpr auto kNumberKeys = [] {
    std::array<NumberKey, kPlainKeys.size() + kSoundCount> all;
    auto next = std::copy(kPlainKeys.begin(), kPlainKeys.end(), all.begin());
    for (const SoundRow& row : kSounds) *next++ = SwitchOf(row.Event);
    return all;
}();

bool IsWholeNumber(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    return !text.empty() && IsAllDigits(text);
}

}  // namespace

std::span<const NumberKey> NumberKeys() { return kNumberKeys; }

cData::cData(SettingsStore& store, SoundPlayer& sounds, const std::filesystem::path& appDir)
    : store_(store), sounds_(sounds), appDir_(appDir / "") {}

std::int16_t cData::Get(const NumberKey& key) const {
    for (const auto& [seen, value] : seen_) {
        if (seen == key.Key) return value;
    }
    const std::int16_t value = ReadDataKey(key.Key, key.Default);
    if (readers_ > 0) seen_.emplace_back(key.Key, value);
    return value;
}

void cData::Set(const NumberKey& key, std::int16_t value) {
    if (Get(key) == value) return;
    std::erase_if(seen_, [&](const auto& seen) { return seen.first == key.Key; });
    SaveDataKey(key.Key, value);
}

std::int16_t cData::ReadDataKey(std::string_view key, std::int16_t fallback) const {
    const auto stored = ParseWhole<std::int16_t>(store_.Read(kDataSection, key, {}));
    return stored.value_or(fallback);
}

void cData::SaveDataKey(std::string_view key, std::int16_t value) {
    store_.Write(kDataSection, key, std::to_string(value));
}

void cData::Together(const std::function<void()>& change) {
    if (!store_.Change(change)) change();
}

bool cData::SetText(std::string_view key, std::string_view value) {
    const bool isNumberKey = key == kCustomColorKey ||
                             std::any_of(kNumberKeys.begin(), kNumberKeys.end(),
                                         [&](const NumberKey& known) { return known.Key == key; });
    const bool fits =
        key == kLastGNameKey ? FindGame(value) != nullptr : isNumberKey && IsWholeNumber(value);
    if (fits) store_.Write(kDataSection, key, value);
    return fits;
}

std::string cData::LastGName() const {
    const std::string name = store_.Read(kDataSection, kLastGNameKey, {});
    return FindGame(name) ? name : GetGName(1);
}

void cData::LastGName(std::string_view name) {
    if (LastGName() != name) store_.Write(kDataSection, kLastGNameKey, name);
}

std::int32_t cData::CustomColor() const {
    const auto value = ParseWhole<std::int32_t>(store_.Read(kDataSection, kCustomColorKey, {}));
    return value.value_or(kDefaultCustomColor);
}

void cData::CustomColor(std::int32_t color) {
    if (CustomColor() != color) store_.Write(kDataSection, kCustomColorKey, std::to_string(color));
}

std::int16_t cData::TotalGames() const { return static_cast<std::int16_t>(varnello::TotalGames()); }

std::string cData::GetGName(std::int16_t id) const {
    if (id < 1 || id > TotalGames()) return {};
    return std::string(kCatalogue[static_cast<std::size_t>(id - 1)].Name);
}

std::int16_t cData::GetGameID(std::string_view name) const {
    const GameRow* row = FindGame(name);
    return row ? static_cast<std::int16_t>(row - kCatalogue.data() + 1) : std::int16_t{0};
}

void cData::CurGName(std::string_view name) {
    curGName_ = name;
    LastGName(name);
}

void cData::PlaySound(Sound event) {
    if (SoundOn(event)) sounds_.Play(event);
}

std::string cData::Slot(std::string_view section, std::int16_t index) const {
    return store_.Read(section, std::to_string(index), {});
}

void cData::Slot(std::string_view section, std::int16_t index, std::string_view text) {
    if (Slot(section, index) != text) store_.Write(section, std::to_string(index), text);
}

std::int16_t cData::CountSlots(std::string_view section, std::int16_t slots) const {
    std::int16_t count = 0;
    for (std::int16_t i = 1; i <= slots; ++i) {
        if (!Slot(section, i).empty()) ++count;
    }
    return count;
}

}  // namespace varnello
