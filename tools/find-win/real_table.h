#pragma once

#include <filesystem>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "beam_search.h"
#include "engine/flow/engine.h"
#include "rules.h"
#include "script/stand_ins.h"

namespace varnello::findwin {

/// A deal on a real engine without a window: gives the search its start, and turns a found line
/// into a script.
class RealTable {
public:
    RealTable(const std::filesystem::path& folder, const std::string& game,
              const GameNumber& number, bool autoplay);

    Rules ReadRules() const { return Rules(engine_.games(), autoplay_); }
    State ReadState() const;

    /// Plays the line and tells its script, one command a line. Nothing when the engine doesn't do
    /// what the search expected, with the reason in `Fault`.
    std::optional<std::vector<std::string>> Play(const Line& line);
    const std::string& Fault() const { return fault_; }

private:
    /// The place that a drop on the pile is tested against: that of the top card, before the first
    /// in an empty pile. Reserves and foundations have but one.
    Place PlaceOf(const PileMap& map, int pile) const;
    /// Makes one move by hand and tells its command.
    std::string Gesture(const PileMap& map, const Move& move);
    std::string DropOn(PicID id, const Place& target);

    script::MemoryStore store_;
    script::ScriptClock clock_;
    script::NoSurface surface_;
    std::ostringstream output_;
    script::PrintedSounds sounds_{output_};
    script::PrintedMessages messages_{output_};
    Engine engine_;
    bool autoplay_;
    bool won_ = false;
    std::string fault_;
    std::vector<std::string> script_;
};

/// Whether the script, run on a fresh scripted table, prints a won game.
bool ScriptWins(const std::filesystem::path& folder, const std::vector<std::string>& script);

}  // namespace varnello::findwin
