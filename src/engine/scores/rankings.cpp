#include <algorithm>

#include "engine/scores/score_store.h"

// The two rankings: a walk over all records that keeps the best twenty.
namespace varnello {

void cScore::PutAt(std::size_t place, std::uint32_t position) {
    std::shift_right(topList_.begin() + static_cast<std::ptrdiff_t>(place), topList_.end(), 1);
    topList_[place] = position;
}

void cScore::Sort(std::string_view Game, std::string_view Player, std::int16_t NonZeroStatus) {
    topList_ = {};
    const auto game = list_.Games().Find(Game);
    const auto player = list_.Players().Find(Player);
    if ((!Game.empty() && !game) || (!Player.empty() && !player)) return;
    const auto scoreAt = [&](std::uint32_t position) {
        return position == 0 ? 0 : list_.At(position - 1).Score;
    };
    std::int32_t least = 1;  // what a score has to reach now
    std::uint32_t position = 0;
    for (const CompactScore& record : list_.All()) {
        ++position;
        if (record.Score < least) continue;
        if (NonZeroStatus == 1 && record.Status == 0) continue;
        if (!Game.empty() && record.Game != *game) continue;
        if (!Player.empty() && record.Player != *player) continue;
        std::size_t place = 1;
        while (record.Score < scoreAt(topList_[place])) ++place;
        PutAt(place, position);
        least = std::max(least, scoreAt(topList_.back()));
    }
}

void cScore::FinSort(FinKey by) {
    topList_ = {};
    const auto key = [&](std::uint32_t position) {
        if (position == 0) return 0;
        const CompactScore& record = list_.At(position - 1);
        return by == FinKey::Time ? record.Time : record.Moves;
    };
    for (std::uint32_t position = 1; position <= list_.Size(); ++position) {
        if (list_.At(position - 1).Status != 1) continue;
        const std::int32_t own = key(position);
        for (std::size_t place = 1; place <= kTopPlaces; ++place) {
            const std::int32_t other = key(topList_[place]);
            if (other == 0) {  // counts as not taken, also where a key of 0 got in
                if (own > 0) topList_[place] = position;
                break;
            }
            if (own <= other) {
                PutAt(place, position);
                break;
            }
        }
    }
}

ScoreRecord cScore::GetTopScore(std::int16_t Index) const {
    const std::uint32_t position = topList_.at(static_cast<std::size_t>(Index));
    return position == 0 ? ScoreRecord{} : list_.Record(position - 1);
}

}  // namespace varnello
