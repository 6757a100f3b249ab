#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varnello {

/// Keeps each different text once and gives it a number, from 0 in the order of arrival.
class TextPool {
public:
    using Id = std::uint32_t;

    Id Keep(std::string_view text) {
        if (const auto known = Find(text)) return *known;
        const Id id = static_cast<Id>(texts_.size());
        ids_.emplace(texts_.emplace_back(text), id);
        return id;
    }
    /// Keeps all texts of another pool; the result holds their numbers here by their numbers there.
    std::vector<Id> KeepAll(const TextPool& other) {
        std::vector<Id> ids;
        for (const std::string& text : other.texts_) ids.push_back(Keep(text));
        return ids;
    }
    std::optional<Id> Find(std::string_view text) const {
        const auto known = ids_.find(text);
        return known == ids_.end() ? std::nullopt : std::optional{known->second};
    }
    const std::string& Text(Id id) const { return texts_[id]; }
    std::size_t Size() const { return texts_.size(); }

private:
    /// Looks at both ends of a text only: quick, and good enough for names.
    struct EndsHash {
        std::size_t operator()(std::string_view text) const {
            std::uint64_t first = 0;
            std::uint64_t last = 0;
            const std::size_t size = std::min(text.size(), sizeof first);
            std::memcpy(&first, text.data(), size);
            std::memcpy(&last, text.data() + text.size() - size, size);
            const std::uint64_t hash =
                (first * 0x9E3779B97F4A7C15U) ^ (last * 0xC2B2AE3D27D4EB4FU >> 7) ^ text.size();
            return static_cast<std::size_t>(hash ^ hash >> 32);
        }
    };

    std::deque<std::string> texts_;  // never moves them, so that `ids_` may look at them
    std::unordered_map<std::string_view, Id, EndsHash> ids_;
};

}  // namespace varnello
