#include <benchmark/benchmark.h>

#include <optional>

#include "bench/shuttle.h"
#include "engine/definitions/catalogue.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"

// How fast the engine is without a window. Figures vary from machine to machine: compare medians of
// the same machine.
using namespace varnello;

namespace {

void BM_StartGame(benchmark::State& state, const char* game) {
    NullDesktop nothing;
    double number = 1;
    for (auto _ : state) {
        state.PauseTiming();
        std::optional<Engine> engine(std::in_place, nothing.Interfaces({}));
        engine->data().Set(keys::Autoplay, 0);
        state.ResumeTiming();
        engine->life().StartGame(game, GameNumber::Number(number));
        state.PauseTiming();
        engine.reset();  // without an end, which would write a score file
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
        array.MoveCard({.PicID = 0, .To = {Cell::Home, 0, 0}, .tMod = MoveKind::Deal});
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
        bench.array.MoveCard({.PicID = 0, .To = {Cell::Home, pile, 0}, .Speed = 3});
    }
}
BENCHMARK(BM_MoveCard);

void BM_UndoAll_1000_records(benchmark::State& state) {
    NullDesktop nothing;
    Engine engine(nothing.Interfaces({}));
    engine.data().Set(keys::Autoplay, 0);
    engine.life().StartGame("Freecell", GameNumber::Number(1));
    Shuttle(engine, 1000);
    if (engine.trans().GetTransID() != 1000) return state.SkipWithError("the moves weren't made");
    for (auto _ : state) {
        engine.commands().UndoAll();
        state.PauseTiming();
        engine.commands().RedoAll();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_UndoAll_1000_records);

}  // namespace
