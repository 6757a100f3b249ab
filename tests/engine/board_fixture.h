#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/rules/autoplay.h"
#include "fixture.h"

namespace varnello::test {

/// A card's value from its text: rank of A23456789TJQK, suit of HSDC, "+" behind it for the second
/// pack, "-" before it for a closed card.
struct CardText {
    explicit CardText(std::string_view text) {
        closed = text.starts_with('-');
        if (closed) text.remove_prefix(1);
        num = I16(static_cast<int>(std::string_view("A23456789TJQK").find(text.at(0))));
        suit = I16(static_cast<int>(std::string_view("HSDC").find(text.at(1))));
        suitpile = I16(suit + (text.ends_with('+') ? 4 : 0));
    }
    std::int16_t num, suit, suitpile;
    bool closed;
};

inline std::string TextOf(const KesCard& card) {
    std::string text = card.FaceMode == FaceMode::Closed ? "-" : "";
    text += std::string_view("A23456789TJQK").at(static_cast<std::size_t>(card.Num));
    text += std::string_view("HSDC").at(static_cast<std::size_t>(card.Suit));
    return card.Suitpile >= 4 ? text + '+' : text;
}

/// The board, the log and the rules alone, with cards laid out by hand. The follower does what the
/// flow does, but for the end of a won game, which is only counted.
class BoardTest : public ::testing::Test, private MoveFollower {
protected:
    BoardTest() {
        sounds.on = true;
        data.GameRunning = true;
        for (KesCard& card : table.PicCards) card.Loc = kNowhere;
    }

    /// Lays cards on a pile, bottom first; the first one's PicID is the result.
    PicID Lay(Cell cell, int pile, std::string_view cards) {
        const PicID first = next_;
        std::istringstream words{std::string(cards)};
        for (std::string word; words >> word; ++next_) {
            const CardText value(word);
            table.Card(next_).SetValue(value.suit, value.num, value.suitpile);
            const Place to{cell, I16(pile), I16(array.GetTop(cell, pile) + 1)};
            array.MoveCard(next_, to, MoveKind::Deal, 0, 0,
                           value.closed ? FaceMode::Closed : FaceMode::Open);
        }
        out = {};
        return first;
    }
    std::string Pile(Cell cell, int pile) const {
        std::string text;
        for (int pos = 0; pos <= array.GetTop(cell, pile); ++pos) {
            text += (pos > 0 ? " " : "") + TextOf(table.Card(array.GetPicID(cell, pile, pos)));
        }
        return text;
    }
    std::string Tableau(int pile) const { return Pile(Cell::Home, pile); }
    std::string Heard() { return std::exchange(out, std::ostringstream()).str(); }

    void Press(PicID id) { gestures.MouseDown(id, 532, 720); }
    void Drag(PicID id, double left, double top) {
        const KesCard& card = table.Card(id);
        gestures.MouseMove(id, left - card.Left + 532, top - card.Top + 720);
    }
    void Drop(PicID id, double left, double top) {
        Press(id);
        Drag(id, left, top);
        gestures.MouseUp(id);
    }
    /// Drops the card on the middle of a pile's place, `dx` and `dy` twips beside it.
    void DropOn(PicID id, Cell cell, int pile, int dx = 0, int dy = 0) {
        const int top = cell == Cell::Home ? array.GetTop(cell, pile) : 0;
        const Place place{cell, I16(pile), I16(top)};
        Drop(id, array.GetCordX(place) + dx, array.GetCordY(place) + dy);
    }
    bool PicksUp(PicID id) {
        Press(id);
        const bool armed = gestures.Dragging();
        gestures.Reset();
        return armed;
    }
    void Autoplay(bool on) { data.Set(keys::Autoplay, on ? 1 : 0); }

    std::ostringstream out;
    script::MemoryStore store;
    CountingSurface surface;
    script::PrintedSounds sounds{out};
    cData data{store, sounds, {}};
    cGames games;
    Generator generator;
    Table table;
    cArray array{games, table, generator, surface, *this};
    std::shared_ptr<cTrans> trans = std::make_shared<cTrans>(array, table, data);
    Playfield field{data, games, generator, table, array, trans};
    Gestures gestures{field};
    int wins = 0;

private:
    // A place that no game has, so that laying a card out empties no pile.
    static constexpr Place kNowhere{Cell::Waste, kPilesPerCell - 1, 0};

    bool GameRunning() const override { return data.GameRunning; }
    void MoveBegins(const CardMove& move) override { script::PrintMove(out, move); }
    void SaveTrans(const CardMove& move) override { trans->SaveTrans(move); }
    void AutoPlay() override { varnello::AutoPlay(field); }
    void CheckWon() override {
        if (array.TotalGoalCards() == games.TotalCards()) ++wins;
    }

    PicID next_ = 0;
};

/// Tableau piles 1500 twips apart at (1000, 3000), foundations and reserves above them in one row.
inline GameRow Freecells(int piles = 4) {
    return {.Name = "Freecells",
            .Ext = {.BaseX = 11900, .TotalCards = 52},
            .Home = {.Piles = I16(piles),
                     .Order = OrderCode::DownColor,
                     .StartX = -790,
                     .StartY = 3000,
                     .PileWidth = 1500,
                     .PosWidth = 250},
            .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 5210, .PileWidth = 1500},
            .Res = {.Piles = 4, .StartX = -790, .PileWidth = 1500}};
}

}  // namespace varnello::test
