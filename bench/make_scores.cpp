#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>

#include "engine/common/calendar.h"
#include "engine/definitions/catalogue.h"
#include "engine/scores/record.h"

// varnello-make-scores FOLDER COUNT [PLAYERS]: writes score files of the players "Player1" and on,
// with COUNT games in all that could have been played: ten years of them up to 11/23/2026. The same
// arguments give the same files.
namespace {

using namespace varnello;

ScoreRecord RandomGame(std::mt19937_64& random, std::int64_t moment) {
    const auto draw = [&](std::int64_t low, std::int64_t high) {
        return std::uniform_int_distribution<std::int64_t>(low, high)(random);
    };
    const bool won = draw(1, 100) <= 38;
    const auto moves = static_cast<std::int32_t>(won ? draw(60, 260) : draw(0, 180));
    const auto time = static_cast<std::int32_t>(moves * draw(2, 9) + draw(0, 60));
    const auto goal = static_cast<std::int32_t>(won ? 520 : draw(0, 30) * 10);
    const bool typed = draw(1, 10) == 1;
    const std::string number = std::to_string(draw(0, typed ? 32000 : 999'999'999'999'999));
    const auto game = static_cast<std::size_t>(draw(0, TotalGames() - 1));
    return {.Date = DateText(FromSecondsSinceEpoch(moment)),
            .Game = std::string(kCatalogue[game].Name),
            .GameNo = typed ? GameNumber::Text(number) : *GameNumber::ParseBare(number),
            .Time = time,
            .Moves = moves,
            .Score = goal - time / 3 - moves / 2,
            .Status = static_cast<std::int16_t>(won ? 1 : 0),
            .Player = {}};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: varnello-make-scores FOLDER COUNT [PLAYERS]\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const std::int64_t count = std::stoll(argv[2]);
    const std::int64_t players = argc > 3 ? std::stoll(argv[3]) : 5;
    constexpr std::int64_t kTenYears = 315'576'000;  // seconds
    const std::int64_t last = SecondsSinceEpoch({.month = 11, .day = 23, .hour = 20});
    std::mt19937_64 random(4711);
    for (std::int64_t player = 1; player <= players; ++player) {
        std::ofstream out(folder / ("Player" + std::to_string(player) + ".sre"), std::ios::binary);
        const std::int64_t games = std::max<std::int64_t>(count / players, 1);
        for (std::int64_t i = 1; i <= games; ++i) {
            const std::int64_t moment = last - kTenYears + kTenYears * i / games;
            out << ScoreLine(RandomGame(random, moment)) << "\r\n";
        }
        if (!out) {
            std::cerr << "varnello-make-scores: can't write to " << argv[1] << '\n';
            return 1;
        }
    }
    return 0;
}
