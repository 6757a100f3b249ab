#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "engine/definitions/catalogue.h"
#include "engine/flow/engine.h"
#include "script/looking.h"
#include "script/stand_ins.h"

#include "../counted_store.h"
#include "../files.h"

namespace varnello::test {

constexpr std::int16_t I16(int value) { return static_cast<std::int16_t>(value); }

/// Follows what it is told in a table of its own, and takes note of the flights. It is a screen, on
/// which a deal takes time, while `busy` is set.
class FollowingSurface : public TableSurface {
public:
    struct Flight {
        PicID card;
        double left, top, toLeft, toTop;
        int steps;
        MoveKind kind;
        bool operator==(const Flight&) const = default;
    };

    void CardChanged(PicID id, const KesCard& card) override { scene.Card(id) = card; }
    void CardFlies(PicID id, const KesCard& card, int steps, MoveKind kind) override {
        const KesCard& from = scene.Card(id);
        flights.push_back({id, from.Left, from.Top, card.Left, card.Top, steps, kind});
        scene.Card(id) = card;
        if (onFlight) onFlight();
    }
    void SlotChanged(Cell cell, int pile, const KesEmpty& slot) override {
        scene.Slot(cell, pile) = slot;
    }
    void Cleared() override { scene.Clear(); }
    bool Showing() const override { return busy; }

    Table scene;
    std::vector<Flight> flights;
    std::function<void()> onFlight;
    bool busy = false;
};

/// A whole engine on the stand-ins of the scripted table, in a data folder of its own. What moves,
/// sounds and dialogs do is recorded as the lines that a traced script prints.
struct TestTable {
    TestTable() {
        sounds.on = true;
        engine.life().OnWon([this] { script::PrintFinish(out, engine); });
        engine.OnMove([this](const CardMove& move) { script::PrintMove(out, move); });
        engine.InitMain();
    }

    /// The lines recorded since the last call.
    std::string Heard() { return std::exchange(out, std::ostringstream()).str(); }
    /// Piles and slots with all coordinates. The order from back to front isn't part of it.
    std::string Board() const {
        std::ostringstream board;
        script::PrintBoard(board, engine);
        const std::string text = board.str();
        return text.substr(0, text.find("front:"));
    }
    void Play(const GameRow& row) {
        engine.life().SelectBy([row](cGames& games, const std::string&) { SelectRow(games, row); });
    }
    void Start(const std::string& name, double number = 1) {
        engine.life().StartGame(name, GameNumber::Number(number));
    }
    /// Press, drag so that the card stands at this place, and let go.
    void Drop(PicID id, double left, double top) {
        engine.gestures().MouseDown(id, 532, 720);
        const KesCard& card = engine.table().Card(id);
        engine.gestures().MouseMove(id, left - card.Left + 532, top - card.Top + 720);
        engine.gestures().MouseUp(id);
    }
    void DropOn(PicID id, Cell cell, int pile) {
        const int top = cell == Cell::Home ? engine.array().GetTop(cell, pile) : 0;
        const Place place{cell, I16(pile), I16(top)};
        Drop(id, engine.array().GetCordX(place), engine.array().GetCordY(place));
    }
    PicID Top(Cell cell, int pile) const { return engine.array().GetTopPicID(cell, pile); }
    /// The card with this rank and pack-suit.
    PicID Find(int num, int suitpile = 0) const {
        for (PicID id = 0; id < engine.games().TotalCards(); ++id) {
            const KesCard& card = engine.table().Card(id);
            if (card.Num == num && card.Suitpile == suitpile) return id;
        }
        return kNoCard;
    }
    std::filesystem::path ScoreFile() const { return ScorePath(engine.data(), "Player1"); }

    TempFolder folder;
    std::ostringstream out;
    CountedStore store;
    script::ScriptClock clock;
    FollowingSurface surface;
    script::PrintedSounds sounds{out};
    script::PrintedMessages messages{out};
    Engine engine{{store, clock, surface, sounds, messages, folder.Path() / "data"}};
};

/// Phrases as one text, with a bar after each.
template <typename Phrases>
std::string InEnglish(const Phrases& phrases) {
    std::string text;
    for (const Phrase& phrase : phrases) text += phrase.English() + '|';
    return text;
}

class EngineTest : public ::testing::Test, protected TestTable {};

/// A game of the thirteen hearts, each on a pile of its own: the smallest game that can be won.
inline GameRow Hearts() {
    return {.Name = "Hearts",
            .Ext = {.BaseX = 11900, .TotalCards = 13},
            .Home = {.Piles = 13,
                     .Order = OrderCode::DownColor,
                     .Cards = 13,
                     .StartY = 2000,
                     .PileWidth = 1100,
                     .PosWidth = 250},
            .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .PileWidth = 1100},
            .Res = {.Piles = 4, .StartX = 6000, .PileWidth = 1100}};
}

}  // namespace varnello::test
