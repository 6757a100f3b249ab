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
        Engine& engine = table_.engine;
        switch (Below(24)) {
            case 0: return engine.Undo();
            case 1: return engine.Redo();
            case 2: return Below(8) == 0 ? engine.UndoAll() : engine.Undo();
            case 3: return Below(4) == 0 ? engine.RedoAll() : engine.Redo();
            case 4: return Below(4) == 0 ? engine.ToggleAutoplay() : Tick();
            case 5: return Replay();
            case 6: return PressStock();
            case 7: return engine.gestures().StockClick();
            default: return DropSomething();
        }
    }
    /// A command that may change the board while a card is held.
    void Interfere() {
        Engine& engine = table_.engine;
        switch (Below(6)) {
            case 0: return engine.Undo();
            case 1: return engine.Redo();
            case 2: return engine.ForwardTick();
            case 3: return engine.BackwardTick();
            case 4: return engine.gestures().StockClick();
            default: return engine.ToggleAutoplay();
        }
    }
    PicID AnyCard() {
        const auto visible = table_.engine.table.VisibleCards();
        const auto tops = Tops();
        if (visible.empty()) return kNoCard;
        const auto& from = tops.empty() || Below(3) == 0 ? visible : tops;
        return from[static_cast<std::size_t>(Below(static_cast<int>(from.size())))];
    }
    void Press(PicID id) { table_.engine.gestures().MouseDown(id, Below(1065), Below(1440)); }
    void DragSomewhere(PicID id) {
        const Gestures& gestures = table_.engine.gestures();
        const KesCard& card = table_.engine.table.Card(id);
        double left = Below(kTableWidth + 2000) - 1000;
        double top = Below(kTableHeight + 2000) - 1000;
        if (Below(5) > 0) {
            const Place place = AnyTarget();
            left = table_.engine.array().GetCordX(place) + (Below(3) - 1) * Below(900);
            top = table_.engine.array().GetCordY(place) + (Below(3) - 1) * Below(1200);
        }
        table_.engine.gestures().MouseMove(id, left - card.Left + gestures.DownX(),
                                           top - card.Top + gestures.DownY());
    }

private:
    void Tick() {
        table_.clock.Advance(Below(30));
        table_.engine.TimeTick();
    }
    void Replay() {
        Engine& engine = table_.engine;
        switch (Below(6)) {
            case 0: return engine.ReplayForward();
            case 1: return engine.ReplayBack();
            case 2: return Below(6) == 0 ? engine.ReplayAll() : engine.StopReplay();
            case 3: return engine.StopReplay();
            case 4: return engine.ForwardTick();
            default: return engine.BackwardTick();
        }
    }
    void PressStock() {
        if (table_.engine.array().GetTop(Cell::Stock, 0) < 0) return;
        const PicID id = table_.Top(Cell::Stock, 0);
        Press(id);
        table_.engine.gestures().MouseUp(id);
    }
    void DropSomething() {
        const PicID id = AnyCard();
        if (id == kNoCard) return;
        Press(id);
        for (int moves = Below(3); moves >= 0; --moves) DragSomewhere(id);
        table_.engine.gestures().MouseUp(id);
    }
    std::vector<PicID> Tops() const {
        std::vector<PicID> tops;
        for (const Cell cell : {Cell::Home, Cell::Waste, Cell::Goal, Cell::Res}) {
            for (int pile = 0; pile < table_.engine.games.Piles(cell); ++pile) {
                if (table_.engine.array().GetTop(cell, pile) >= 0) {
                    tops.push_back(table_.Top(cell, pile));
                }
            }
        }
        return tops;
    }
    Place AnyTarget() {
        const Cell cells[] = {Cell::Home, Cell::Home, Cell::Home, Cell::Res, Cell::Goal};
        const Cell cell = cells[Below(5)];
        const auto pile = I16(Below(std::max<int>(1, table_.engine.games.Piles(cell))));
        const auto pos =
            cell == Cell::Home ? table_.engine.array().GetTop(cell, pile) : std::int16_t{0};
        return {cell, pile, pos};
    }

    TestTable& table_;
    std::mt19937 random_;
};

}  // namespace varnello::test
