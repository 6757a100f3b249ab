#pragma once

#include "engine/null_desktop.h"

namespace varnello::test {

/// Settings in memory that can be listed, and that count how often a file would be
/// written.
class CountedStore : public MemoryStore {
public:
    void Write(std::string_view section, std::string_view key, std::string_view text) override {
        ++(changing_ ? changed_ : writes);
        MemoryStore::Write(section, key, text);
        stored[std::string(section) + '/' + std::string(key)] = text;
    }
    bool Change(const std::function<void()>& change) override {
        changing_ = true;
        change();
        changing_ = false;
        if (std::exchange(changed_, 0) > 0) ++writes;
        return true;
    }

    std::map<std::string, std::string> stored;  ///< by "section/key"
    int writes = 0;

private:
    bool changing_ = false;
    int changed_ = 0;
};

}  // namespace varnello::test
