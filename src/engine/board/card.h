#pragma once

#include <cstdint>

#include "engine/definitions/codes.h"
#include "engine/definitions/table_size.h"

namespace varnello {

enum class FaceMode : std::int32_t { Open = 0, Closed = 1 };

enum class CardColor : std::int32_t { Red = 1, Black = 2 };

/// One physical card: its value, its place in the rules, and where it stands on the table.
struct KesCard {
    std::int16_t Suit = 0;      ///< 0 hearts, 1 spades, 2 diamonds, 3 clubs
    std::int16_t Num = 0;       ///< rank: 0 Ace to 12 King
    std::int16_t Suitpile = 0;  ///< suit within its pack, 0 to 3 and 4 to 7; names its foundation
    Place Loc;
    varnello::FaceMode FaceMode = FaceMode::Closed;
    bool Selected = false;  ///< an open card shows its negative
    bool Visible = false;
    double Left = 0;  ///< twips on the table; fractions occur only in flight
    double Top = 0;
    std::uint64_t Height = 0;  ///< stacking order: greater lies in front

    CardColor Color() const { return Suit % 2 == 0 ? CardColor::Red : CardColor::Black; }
    void SetValue(std::int16_t suit, std::int16_t num, std::int16_t suitpile) {
        Suit = suit;
        Num = num;
        Suitpile = suitpile;
    }
    void MoveTo(double left, double top) {
        Left = left;
        Top = top;
    }
};

/// The mark of a place where a pile can lie, drawn under the cards.
struct KesEmpty {
    std::int16_t Picture = 0;  ///< 0 to 12 rank marks, 13 runs, 14 plain, 15 and 16 stock marks
    std::int16_t Left = 0;
    std::int16_t Top = 0;
    bool Visible = false;
};

}  // namespace varnello
