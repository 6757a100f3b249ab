#pragma once

#include "engine/movelog/log.h"

namespace varnello {

enum class HistoryMark { Applied, Last, Undone };

/// A record of the log as people read it; piles and cards count from 1.
struct HistoryRow {
    std::int16_t Number = 0;
    Phrase Source;
    Phrase Destination;
    std::int16_t Cards = 0;
    HistoryMark Mark = HistoryMark::Applied;
};

}  // namespace varnello
