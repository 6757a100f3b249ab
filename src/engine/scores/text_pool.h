#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnello {

/// Keeps each different text once and gives it a number, from 0 in the order of arrival.
class TextPool {
public:
    using Id = std::uint32_t;

    Id Keep(std::string_view text) {
        if (2 * texts_.size() >= ids_.size()) Grow();
        Id& id = ids_[PlaceOf(text)];
        if (id == kNone) {
            id = static_cast<Id>(texts_.size());
            texts_.emplace_back(text);
        }
        return id;
    }
    /// Keeps all texts of another pool; the result holds their numbers here by their numbers there.
    std::vector<Id> KeepAll(const TextPool& other) {
        std::vector<Id> ids;
        for (const std::string& text : other.texts_) ids.push_back(Keep(text));
        return ids;
    }
    std::optional<Id> Find(std::string_view text) const {
        if (texts_.empty()) return std::nullopt;
        const Id id = ids_[PlaceOf(text)];
        return id == kNone ? std::nullopt : std::optional{id};
    }
    const std::string& Text(Id id) const { return texts_[id]; }
    std::size_t Size() const { return texts_.size(); }

private:
    static constexpr Id kNone = ~Id{0};

    /// Looks at both ends of a text only: quick, and good enough for names.
    static std::size_t Hash(std::string_view text) {
        const auto word = [](const char* from, auto bits) -> std::uint64_t {
            std::memcpy(&bits, from, sizeof bits);
            return bits;
        };
        const char* const end = text.data() + text.size();
        std::uint64_t first = text.empty() ? 0 : static_cast<unsigned char>(text.front());
        std::uint64_t last = text.empty() ? 0 : static_cast<unsigned char>(text.back());
        if (text.size() >= 8) {
            first = word(text.data(), std::uint64_t{});
            last = word(end - 8, std::uint64_t{});
        } else if (text.size() >= 2) {
            first = word(text.data(), std::uint16_t{});
            last = word(text.data() + text.size() / 2 - 1, std::uint16_t{}) << 16 |
                   word(end - 2, std::uint16_t{});
        }
        const std::uint64_t mixed =
            (first ^ text.size()) * 0x9E3779B97F4A7C15U ^ (last * 0xC2B2AE3D27D4EB4FU >> 7);
        return static_cast<std::size_t>(mixed ^ mixed >> 32);
    }
    /// The place of a text, or the free one that it would take. There is a free one.
    std::size_t PlaceOf(std::string_view text) const {
        const std::size_t mask = ids_.size() - 1;
        std::size_t at = Hash(text) & mask;
        while (ids_[at] != kNone && texts_[ids_[at]] != text) at = (at + 1) & mask;
        return at;
    }
    void Grow() {
        ids_.assign(std::max<std::size_t>(2 * ids_.size(), 64), kNone);
        for (Id id = 0; id < texts_.size(); ++id) ids_[PlaceOf(texts_[id])] = id;
    }

    std::deque<std::string> texts_;
    std::vector<Id> ids_;  ///< numbers of texts by their hashes; a power of two of them
};

}  // namespace varnello
