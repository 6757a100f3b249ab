#include <chrono>
#include <iostream>
#include <optional>
#include <span>
#include <string>

#include "../../tests/files.h"
#include "engine/common/number_text.h"
#include "engine/definitions/catalogue.h"
#include "real_table.h"
#include "win_finder.h"

namespace {

using namespace varnello;
using namespace varnello::findwin;

constexpr int kFound = 0;
constexpr int kNotFound = 1;
constexpr int kMisused = 2;

struct Request {
    std::string game;
    GameNumber number;
    int seconds = 60;
    bool autoplay = true;
    int shortenings = 1;
};

std::optional<Request> ReadArguments(std::span<char*> arguments) {
    if (arguments.size() < 3 || arguments.size() % 2 == 0) return std::nullopt;
    const auto number = GameNumber::ParseBare(arguments[2]);
    if (FindGame(arguments[1]) == nullptr || !number) return std::nullopt;
    Request request{.game = arguments[1], .number = *number};
    for (std::size_t i = 3; i < arguments.size(); i += 2) {
        const std::string option = arguments[i];
        const auto value = ParseWhole<int>(arguments[i + 1]);
        if (!value || *value < 0) return std::nullopt;
        if (option == "--seconds") {
            request.seconds = *value;
        } else if (option == "--autoplay" && *value <= 1) {
            request.autoplay = *value == 1;
        } else if (option == "--shorten") {
            request.shortenings = *value;
        } else {
            return std::nullopt;
        }
    }
    return request;
}

int FindAndPrint(const Request& request) {
    const test::TempFolder folder;  // for the score files of the games played here
    RealTable table(folder.Path(), request.game, request.number, request.autoplay);
    const Rules rules = table.ReadRules();
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(request.seconds);
    const std::optional<Line> line = FindWin(rules, table.ReadState(), {end, request.shortenings});
    if (!line) {
        std::cerr << "no win found\n";
        return kNotFound;
    }
    const auto script = table.Play(*line);
    if (!script) {
        std::cerr << table.Fault() << '\n';
        return kNotFound;
    }
    if (!ScriptWins(folder.Path(), *script)) {
        std::cerr << "the script doesn't win\n";
        return kNotFound;
    }
    for (const std::string& command : *script) std::cout << command << '\n';
    return kFound;
}

}  // namespace

/// Finds a line of play that wins a deal and prints it as a script for the scripted table.
int main(int argc, char** argv) {
    const auto request = ReadArguments(std::span(argv, static_cast<std::size_t>(argc)));
    if (!request) {
        std::cerr << "usage: varnello-find-win GAME NUMBER [--seconds S] [--autoplay 0|1] "
                     "[--shorten WIDTHS]\n";
        return kMisused;
    }
    return FindAndPrint(*request);
}
