#pragma once

#include "engine/definitions/catalogue.h"
#include "engine/null_desktop.h"
#include "engine/rules/playfield.h"

namespace varnello::test {

/// Deals one game over and over, with nothing booked, shown or played in between.
class Dealer : private MoveFollower {
public:
    explicit Dealer(const GameRow& row) : row_(row) {}

    /// Lays a deal out as a game's start does, up to but without the autoplay that follows.
    void Deal(double number);

    cGames games;
    Table table;

private:
    bool Playing() const override { return false; }
    void MoveBegins(const CardMove&) override {}
    void SaveTrans(const CardMove&) override {}
    void AutoPlay() override {}
    void CheckWon() override {}

    GameRow row_;
    NullDesktop nothing_;
    cData data_{nothing_.settings, nothing_.sounds, {}};
    Generator generator_;

public:
    cArray array{games, table, generator_, nothing_.surface, *this};

private:
    cTrans trans_{array, table, data_};
};

}  // namespace varnello::test
