#include <sstream>
#include <string_view>

#include "../engine/board_checks.h"
#include "script/scripted_table.h"
#include "target.h"

// The whole engine by commands, bad ones among them: after each line the board and the log are
// whole, and at the end undo leads to the deal and redo back.
namespace varnello::test {
namespace {

// What one case may cost.
constexpr std::size_t kMostBytes = 4096;
constexpr int kMostLines = 120;
constexpr int kMostDeals = 16;

void CheckWhole(const Engine& engine) {
    if (!engine.data().GameRunning) {
        Require(engine.table().VisibleCards().empty(), "cards without a game");
        return;
    }
    const std::string fault =
        BoardFault(engine.array(), engine.table(), engine.games()) + LogFault(engine.trans());
    Require(fault.empty(), fault);
}

/// Which card lies where, and its face. Where it stands on the table isn't part of it: a script can
/// press a second card while it holds one, which a mouse can't.
std::string Places(const Engine& engine) {
    std::ostringstream places;
    for (PicID id = 0; id < engine.games().TotalCards(); ++id) {
        const KesCard& card = engine.table().Card(id);
        places << static_cast<int>(card.Loc.Cell) << '/' << card.Loc.Pile << '/' << card.Loc.Pos
               << (card.FaceMode == FaceMode::Closed ? "- " : "+ ");
    }
    return places.str();
}

void CheckLog(script::ScriptedTable& table) {
    // A tick makes a replay one that can be stopped.
    for (const char* line : {"release", "forward", "replay stop", "redoall"}) table.Run(line);
    if (!table.engine().data().GameRunning) return;  // the last move won
    const std::string played = Places(table.engine());
    table.Run("undoall");
    Require(table.engine().trans().GetTransID() == 0, "undo stops half-way");
    CheckWhole(table.engine());
    table.Run("redoall");
    Require(Places(table.engine()) == played, "redo leads elsewhere");
}

/// Commands that deal a new game.
bool Deals(std::string_view line) {
    for (const char* word : {"start", "choose", "play"}) {
        if (line.find(word) != std::string_view::npos) return true;
    }
    return false;
}

}  // namespace
}  // namespace varnello::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnello;
    if (size > test::kMostBytes) return 0;
    const test::TempFolder folder;
    std::ostringstream out;
    script::ScriptedTable table(folder.Path(), out);
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    int count = 0;
    int deals = 0;
    for (std::string line; count < test::kMostLines && std::getline(lines, line); ++count) {
        if (test::Deals(line) && ++deals > test::kMostDeals) continue;
        // An export goes wherever its name says; here it stays in the folder.
        if (line.find("export") != std::string::npos && line.find('/') != std::string::npos)
            continue;
        table.Run(line);
        test::CheckWhole(table.engine());
    }
    test::CheckLog(table);
    return 0;
}
