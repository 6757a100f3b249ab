#include "engine/board/board.h"

#include <numeric>

#include "engine/common/rounding.h"

namespace varnello {

cArray::cArray(const cGames& games, Table& table, Generator& generator, TableSurface& surface,
               MoveFollower& follower)
    : games_(games), table_(table), generator_(generator), surface_(surface), follower_(follower) {
    Clear();
}

void cArray::Clear() {
    for (auto& pile : cardGrid_) pile.fill(kNoCard);
    topIndex_.fill(-1);
}

void cArray::Init(double GameNo) {
    Clear();
    RandomInit(GameNo);
}

void cArray::RandomInit(double GameNo) {
    const std::int16_t total = games_.TotalCards();
    std::array<std::int16_t, kCardObjects + 1> left;
    std::iota(left.begin(), left.end(), std::int16_t{0});

    generator_.rtcRandomNext(-10.0F);
    std::int16_t n = total;
    for (std::size_t j = 0; j < static_cast<std::size_t>(total); ++j) {
        generator_.rtcRandomize(GameNo);
        --n;
        // Rounded and not truncated: both ends of the range are half as likely as the rest.
        const double drawn = static_cast<double>(generator_.rtcRandomNext()) * n;
        const auto k = static_cast<std::size_t>(RoundHalfEven(drawn));
        DealOrder_[j] = left[k];
        left[k] = left[static_cast<std::size_t>(n)];
    }
}

void cArray::AddtoWaste(PicID id) {
    MoveCard({.PicID = id,
              .To = {Cell::Waste, 0, GetTop(Cell::Waste, 0) + 1},
              .tMod = MoveKind::FromStock,
              .Speed = 3});
}

void cArray::MoveWasteStock() {
    for (int i = GetTop(Cell::Waste, 0); i >= 0; --i) {
        MoveCard({.PicID = GetTopPicID(Cell::Waste, 0),
                  .To = {Cell::Stock, 0, GetTop(Cell::Stock, 0) + 1},
                  .tMod = MoveKind::Deal,
                  .DFace = FaceMode::Closed});
    }
}

int cArray::TotalGoalCards() const {
    int cards = 0;
    for (int pile = 0; pile < kGoalSlots; ++pile) cards += GetTop(Cell::Goal, pile) + 1;
    return cards;
}

int cArray::ClosedCards(int pile) const {
    int closed = 0;
    for (int pos = 0; pos <= GetTop(Cell::Home, pile); ++pos) {
        if (table_.Card(GetPicID(Cell::Home, pile, pos)).FaceMode == FaceMode::Closed) ++closed;
    }
    return closed;
}

int cArray::GetCordX(const Place& place) const {
    return games_.GetCordX(place, place.Cell == Cell::Home ? ClosedCards(place.Pile) : 0);
}

int cArray::GetCordY(const Place& place) const {
    return games_.GetCordY(place, place.Cell == Cell::Home ? ClosedCards(place.Pile) : 0);
}

}  // namespace varnello
