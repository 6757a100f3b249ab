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
    ++serial_;
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
        dealOrder_[j] = left[k];
        left[k] = left[static_cast<std::size_t>(n)];
    }
}

void cArray::AddtoWaste(PicID id) {
    const Place to{Cell::Waste, 0, Saturate16(GetTop(Cell::Waste, 0) + 1)};
    MoveCard(id, to, MoveKind::FromStock, 3, 0, FaceMode::Open);
}

void cArray::MoveWasteStock() {
    for (int i = GetTop(Cell::Waste, 0); i >= 0; --i) {
        const Place to{Cell::Stock, 0, Saturate16(GetTop(Cell::Stock, 0) + 1)};
        MoveCard(GetTopPicID(Cell::Waste, 0), to, MoveKind::Deal, 0, 0, FaceMode::Closed);
    }
}

std::int16_t cArray::TotalGoalCards() const {
    int cards = 0;
    for (int pile = 0; pile < 8; ++pile) cards += GetTop(Cell::Goal, pile) + 1;
    return Saturate16(cards);
}

std::int16_t cArray::ClosedCards(int pile) const {
    std::int16_t closed = 0;
    for (int pos = 0; pos <= GetTop(Cell::Home, pile); ++pos) {
        if (table_.Card(GetPicID(Cell::Home, pile, pos)).FaceMode == FaceMode::Closed) ++closed;
    }
    return closed;
}

std::int16_t cArray::GetCordX(const Place& place) const {
    return games_.GetCordX(place,
                           place.Cell == Cell::Home ? ClosedCards(place.Pile) : std::int16_t{0});
}

std::int16_t cArray::GetCordY(const Place& place) const {
    return games_.GetCordY(place,
                           place.Cell == Cell::Home ? ClosedCards(place.Pile) : std::int16_t{0});
}

}  // namespace varnello
