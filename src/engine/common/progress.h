#pragma once

#include <atomic>
#include <cstdint>

namespace varnello {

/// How far a long piece of work has come, for another thread that looks on and may have it end.
struct Progress {
    std::atomic<std::int64_t> Whole{0};  ///< in a unit of the work's own; 0 while it isn't known
    std::atomic<std::int64_t> Done{0};
    std::atomic<bool> Stopped{false};
};

}  // namespace varnello
