#include <benchmark/benchmark.h>

#include "engine/definitions/catalogue.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"

// How fast the engine is without a window. Figures vary from machine to machine: compare medians of
// the same machine.
using namespace varnello;

namespace {

void BM_StartGame(benchmark::State& state, const char* game) {
    NullDesktop nothing;
    Engine engine(nothing.Interfaces({}));
    engine.data.Set(keys::Autoplay, 0);
    double number = 1;
    for (auto _ : state) {
        engine.StartGame(game, GameNumber::Number(number));
        state.PauseTiming();
        engine.data.GameRunning = false;  // an end would write a score file
        engine.table.Clear();
        number += 1;
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(BM_StartGame, Freecell_52_cards, "Freecell");
BENCHMARK_CAPTURE(BM_StartGame, Zodiac_104_cards, "Zodiac");

/// A board of its own, where moves set off nothing.
struct MoveBench : MoveFollower {
    bool Playing() const override { return false; }
    void MoveBegins(const CardMove&) override {}
    void SaveTrans(const CardMove&) override {}
    void AutoPlay() override {}
    void CheckWon() override {}

    MoveBench() {
        SelectGame(games, "Freecell");
        array.Init(1);
        array.MoveCard({.PicId = 0, .To = {Cell::Home, 0, 0}, .tMod = MoveKind::Deal});
    }

    cGames games;
    Table table;
    Generator generator;
    NoSurface surface;
    cArray array{games, table, generator, surface, *this};
};

void BM_MoveCard(benchmark::State& state) {
    MoveBench bench;
    int pile = 0;
    for (auto _ : state) {
        pile = 1 - pile;
        bench.array.MoveCard({.PicId = 0, .To = {Cell::Home, pile, 0}, .Speed = 3});
    }
}
BENCHMARK(BM_MoveCard);

void BM_UndoAll_1000_records(benchmark::State& state) {
    NullDesktop nothing;
    Engine engine(nothing.Interfaces({}));
    engine.data.Set(keys::Autoplay, 0);
    engine.StartGame("Freecell", GameNumber::Number(1));
    // One card between two reserves, a thousand times.
    const PicID card = engine.array().GetTopPicID(Cell::Home, 0);
    for (std::size_t i = 0; i < 1000; ++i) {
        const KesEmpty& slot = engine.table.PicRes[i % 2];
        const KesCard& moved = engine.table.Card(card);
        engine.gestures().MouseDown(card, 0, 0);
        engine.gestures().MouseMove(card, slot.Left - moved.Left, slot.Top - moved.Top);
        engine.gestures().MouseUp(card);
    }
    if (engine.trans().GetTransID() != 1000) return state.SkipWithError("the moves weren't made");
    for (auto _ : state) {
        engine.UndoAll();
        state.PauseTiming();
        engine.RedoAll();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_UndoAll_1000_records);

}  // namespace
