#include "../engine/fixture.h"
#include "engine/definitions/check_row.h"
#include "engine/definitions/describe.h"

// The game that docs/adding-a-game.md walks through: what the document shows is what is compiled
// and played here.
namespace varnello::test {
namespace {

// Behind the row stands the comma that it has in the catalogue.
constexpr GameRow kRows[] = {
#include "harbour-lights.row"
};
constexpr const GameRow& kHarbourLights = kRows[0];
static_assert(FaultOf(kHarbourLights).empty());

const std::filesystem::path kFolder = VARNELLO_EXAMPLE_GAME;

std::string Document() { return ReadFile(kFolder / "../../docs/adding-a-game.md"); }

class ExampleGame : public EngineTest {};

TEST_F(ExampleGame, StandsInTheDocumentAsItIsCompiled) {
    const std::string document = Document();
    EXPECT_NE(document.find("```cpp\n" + ReadFile(kFolder / "harbour-lights.row") + "```"),
              std::string::npos);
    EXPECT_NE(document.find("```html\n" + ReadFile(kFolder / "harbour-lights.html") + "```"),
              std::string::npos);
    for (const GameFact& fact : Describe(kHarbourLights)) {
        EXPECT_NE(document.find("| " + std::string(fact.Heading) + " | " + fact.English() + " |"),
                  std::string::npos)
            << "| " << fact.Heading << " | " << fact.English() << " |";
    }
}

TEST_F(ExampleGame, IsWon) {
    Play(kHarbourLights);
    Start("Harbour Lights", 1);
    std::istringstream script(ReadFile(kFolder / "harbour-lights.script"));
    for (std::string line; std::getline(script, line);) {
        std::istringstream words(line);
        std::string command;
        PicID id = 0;
        double left = 0;
        double top = 0;
        if (words >> command >> id >> left >> top && command == "drop") Drop(id, left, top);
    }
    EXPECT_EQ(engine.life().phase(), Phase::Won);
}

}  // namespace
}  // namespace varnello::test
