#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace varnello::findwin {

/// A set of hashes, open addressed. Zero stands for a free slot, so it is never in the set.
class HashSet {
public:
    /// False when it was in the set already.
    bool Insert(std::uint64_t hash) {
        if (2 * (size_ + 1) > slots_.size()) Grow();
        return hash != 0 && Place(hash);
    }
    bool Contains(std::uint64_t hash) const {
        if (slots_.empty()) return false;
        std::size_t i = hash & (slots_.size() - 1);
        while (slots_[i] != 0 && slots_[i] != hash) i = (i + 1) & (slots_.size() - 1);
        return slots_[i] != 0;
    }
    void Clear() {
        slots_.assign(slots_.size(), 0);
        size_ = 0;
    }
    std::size_t Size() const { return size_; }

private:
    bool Place(std::uint64_t hash) {
        std::size_t i = hash & (slots_.size() - 1);
        while (slots_[i] != 0) {
            if (slots_[i] == hash) return false;
            i = (i + 1) & (slots_.size() - 1);
        }
        slots_[i] = hash;
        ++size_;
        return true;
    }
    void Grow() {
        const std::vector<std::uint64_t> old = std::move(slots_);
        slots_.assign(old.empty() ? std::size_t{1} << 12 : 2 * old.size(), 0);
        size_ = 0;
        for (const std::uint64_t hash : old) {
            if (hash != 0) Place(hash);
        }
    }

    std::vector<std::uint64_t> slots_;
    std::size_t size_ = 0;
};

}  // namespace varnello::findwin
