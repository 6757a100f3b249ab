#include "real_table.h"

#include "aim.h"
#include "script/scripted_table.h"

namespace varnello::findwin {
namespace {

// The grip of the scripted table's press.
constexpr double kGripX = 532;
constexpr double kGripY = 720;

}  // namespace

RealTable::RealTable(const std::filesystem::path& folder, const std::string& game,
                     const GameNumber& number, bool autoplay)
    : engine_({store_, clock_, surface_, sounds_, messages_, folder}), autoplay_(autoplay) {
    engine_.life().OnWon([this] { won_ = true; });
    engine_.InitMain();
    engine_.data().Set(keys::Autoplay, autoplay ? 1 : 0);
    engine_.life().StartGame(game, number);
    script_ = {std::string("set Autoplay ") + (autoplay ? "1" : "0"),
               "start " + number.Shown() + " " + game};
}

State RealTable::ReadState() const {
    const PileMap map = ReadRules().Map();
    State state;
    for (int pile = 0; pile < map.Count(); ++pile) {
        const Place at = PlaceOf(map, pile);
        for (int pos = 0; pos <= engine_.array().GetTop(at.Cell, at.Pile); ++pos) {
            const KesCard& card =
                engine_.table().Card(engine_.array().GetPicID(at.Cell, at.Pile, pos));
            state.Append(pile, static_cast<Kind>(card.Suit * 13 + card.Num));
        }
    }
    return state;
}

Place RealTable::PlaceOf(const PileMap& map, int pile) const {
    if (map.IsRes(pile)) return {Cell::Res, pile - map.Res(0), 0};
    if (map.IsGoal(pile)) return {Cell::Goal, pile - map.Goal(0), 0};
    const Cell cell = map.IsHome(pile)      ? Cell::Home
                      : pile == map.Waste() ? Cell::Waste
                                            : Cell::Stock;
    const int index = map.IsHome(pile) ? pile : 0;
    return {cell, index, engine_.array().GetTop(cell, index)};
}

std::string RealTable::DropOn(PicID id, const Place& target) {
    const Aim aim = AimAt(engine_, target);
    Gestures& gestures = engine_.gestures();
    gestures.MouseDown(id, kGripX, kGripY);
    if (gestures.Dragging()) {
        const KesCard& card = engine_.table().Card(id);
        gestures.MouseMove(id, aim.left - card.Left + kGripX, aim.top - card.Top + kGripY);
        gestures.MouseUp(id);
    }
    return "drop " + std::to_string(id) + " " + std::to_string(aim.left) + " " +
           std::to_string(aim.top);
}

std::string RealTable::Gesture(const PileMap& map, const Move& move) {
    const Place from = PlaceOf(map, move.from);
    const int top = engine_.array().GetTop(from.Cell, from.Pile);
    const PicID id = engine_.array().GetPicID(from.Cell, from.Pile, top - move.count + 1);
    const bool click = move.from == map.Stock() && (move.DealsRow() || move.to == map.Waste());
    if (!click) return DropOn(id, PlaceOf(map, move.to));
    engine_.gestures().MouseDown(id, kGripX, kGripY);
    return "press " + std::to_string(id);
}

std::optional<std::vector<std::string>> RealTable::Play(const Line& line) {
    const Rules rules = ReadRules();
    State expected = ReadState();
    for (const Move& move : line) {
        Apply(rules, expected, move);
        script_.push_back(Gesture(rules.Map(), move));
        if (won_) return script_;
        if (ReadState().Hash(rules.Map()) != expected.Hash(rules.Map())) {
            fault_ = "the engine disagrees after: " + script_.back();
            return std::nullopt;
        }
    }
    fault_ = "the game isn't won at the end of the line";
    return std::nullopt;
}

bool ScriptWins(const std::filesystem::path& folder, const std::vector<std::string>& script) {
    std::ostringstream output;
    script::ScriptedTable table(folder, output);
    for (const std::string& line : script) table.Run(line);
    return output.str().starts_with("finish: ");
}

}  // namespace varnello::findwin
