#pragma once

#include <random>

#include "fixture.h"

namespace varnello::test {

/// Plays a table at random, legal and illegal moves alike. The same seed gives the same play.
class RandomPlayer {
public:
    RandomPlayer(TestTable& table, unsigned seed) : table_(table), random_(seed) {}

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    void Act() {
        if (Below(3) > 0) {
            DragSomething();
        } else {
            Command();
        }
    }

private:
    /// Mostly what changes the board, as it may also while a card is held.
    void Command() {
        Engine& engine = table_.engine;
        switch (Below(16)) {
            case 0: return engine.commands().RedoAll();
            case 1: return engine.commands().UndoAll();
            case 2: return engine.commands().ReplayForward();
            case 3: return engine.commands().ReplayBack();
            case 4: return engine.commands().ReplayAll();
            case 5: return engine.commands().ToggleAutoplay();
            case 6: table_.clock.Advance(Below(30)); [[fallthrough]];
            case 7: engine.counters().TimeTick(); return;
            case 8: return engine.commands().StopReplay();
            case 9: return engine.gestures().StockClick();
            case 10: return engine.commands().Redo();
            case 11: return engine.replay().ForwardTick();
            case 12: return engine.replay().BackwardTick();
            default: return engine.commands().Undo();
        }
    }
    void DragSomething() {
        const PicID id = AnyCard();
        if (id == kNoCard) return;
        Gestures& gestures = table_.engine.gestures();
        gestures.MouseDown(id, Below(1065), Below(1440));
        if (Below(8) == 0) Command();
        for (int moves = Below(3); moves > 0; --moves) DragSomewhere(id);
        if (Below(8) == 0) Command();
        gestures.MouseUp(id);
    }
    /// Mostly near a pile.
    void DragSomewhere(PicID id) {
        const Engine& engine = table_.engine;
        double left = Below(kTableWidth + 2000) - 1000;
        double top = Below(kTableHeight + 2000) - 1000;
        if (Below(5) > 0) {
            const Cell cells[] = {Cell::Home, Cell::Home, Cell::Home, Cell::Res, Cell::Goal};
            const Cell cell = cells[Below(5)];
            const int pile = Below(std::max<int>(1, engine.games().Piles(cell)));
            const int pos = cell == Cell::Home ? engine.array().GetTop(cell, pile) : 0;
            const Place place{cell, I16(pile), I16(pos)};
            left = engine.array().GetCordX(place) + (Below(3) - 1) * Below(900);
            top = engine.array().GetCordY(place) + (Below(3) - 1) * Below(1200);
        }
        Gestures& gestures = table_.engine.gestures();
        gestures.MouseMove(id, left - engine.table().Card(id).Left + gestures.DownX(),
                           top - engine.table().Card(id).Top + gestures.DownY());
    }
    /// Mostly the top of a pile.
    PicID AnyCard() {
        const auto visible = table_.engine.table().VisibleCards();
        std::vector<PicID> cards;
        for (const PicID id : visible) {
            const Place& at = table_.engine.table().Card(id).Loc;
            if (at.Pos == table_.engine.array().GetTop(at.Cell, at.Pile)) cards.push_back(id);
        }
        if (cards.empty() || Below(3) == 0) cards = visible;
        return cards.empty() ? kNoCard : cards[std::size_t(Below(int(cards.size())))];
    }

    TestTable& table_;
    std::mt19937 random_;
};

}  // namespace varnello::test
