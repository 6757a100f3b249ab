#include "script/scripted_table.h"

#include <array>
#include <utility>

#include "script/looking.h"

namespace varnello::script {
namespace {

// Where a scripted press grips a card, in twips inside it.
constexpr double kGripX = 532;
constexpr double kGripY = 720;

/// Numbers of fixed widths with a separator between them, as in a date.
template <std::size_t N>
std::array<int, N> Split(std::string_view text, const std::array<std::size_t, N>& widths,
                         char separator) {
    std::array<int, N> numbers{};
    for (std::size_t i = 0; i < N; ++i) {
        const std::string_view digits = text.substr(0, widths[i]);
        const auto value = ParseWhole<int>(digits);
        text.remove_prefix(digits.size());
        const bool last = i + 1 == N;
        const bool ends = last ? text.empty() : text.starts_with(separator);
        if (digits.size() != widths[i] || !value || digits[0] < '0' || !ends) {
            throw BadLine("not a date and time");
        }
        numbers[i] = *value;
        if (!last) text.remove_prefix(1);
    }
    return numbers;
}

}  // namespace

ScriptedTable::ScriptedTable(const std::filesystem::path& folder, std::ostream& out)
    : out_(out),
      sounds_(out),
      messages_(out),
      engine_({store_, clock_, surface_, sounds_, messages_, folder}) {
    // The won dialog: it is seen and heard with the winning move, and books when that has returned.
    engine_.life().OnWon([this] {
        PrintFinish(out_, engine_);
        engine_.data().PlaySound(Sound::Win);
    });
    engine_.OnMove([this](const CardMove& move) {
        if (trace_) PrintMove(out_, move);
    });
    engine_.InitMain();
}

void ScriptedTable::Run(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    Words words(line);
    if (words.Empty() || line.starts_with('#')) return;
    try {
        const std::string_view command = words.Word();
        Play(command, words);
    } catch (const BadLine& bad) {
        out_ << "error: " << bad.what() << '\n';
    }
}

void ScriptedTable::Play(std::string_view command, Words& words) {
    const bool known = PlayClock(command, words) || PlayLife(command, words) ||
                       PlayGestures(command, words) || PlayCommands(command, words) ||
                       Choose(command, words) || Keep(command, words) || Look(command, words) ||
                       ReportOn(command, words);
    if (!known) throw BadLine("unknown command: " + std::string(command));
    if (engine_.life().phase() == Phase::Won) engine_.life().EndGame(Outcome::Won);
}

bool ScriptedTable::Ask(std::string_view question) {
    out_ << "question: " << question << '\n';
    return answer_;
}

void ScriptedTable::SetClock(Words& words) {
    const auto date = Split<3>(words.Word(), {4, 2, 2}, '-');
    const auto time = Split<3>(words.Word(), {2, 2, 2}, ':');
    words.End();
    const DateTime moment{date[0], date[1], date[2], time[0], time[1], time[2]};
    if (!IsValid(moment)) throw BadLine("no such date and time");
    clock_.Set(moment);
}

bool ScriptedTable::PlayClock(std::string_view command, Words& words) {
    if (command == "now") {
        SetClock(words);
    } else if (command == "wait") {
        const auto seconds = words.Whole<std::int64_t>();
        words.End();
        if (seconds < 0 || !clock_.Advance(seconds)) throw BadLine("not a waiting time");
    } else if (command == "tick") {
        words.End();
        engine_.counters().TimeTick();
    } else {
        return false;
    }
    return true;
}

void ScriptedTable::SetPlayer(const std::string& name) {
    if (!IsPlayerName(name)) throw BadLine("not a player's name: " + name);
    cData& data = engine_.data();
    if (data.FindPlayer(name) == 0 && !data.AddPlayer(name)) throw BadLine("too many players");
    data.CurPlayer(name);
}

bool ScriptedTable::PlayLife(std::string_view command, Words& words) {
    if (command == "set") {
        const std::string_view key = words.Word();
        const std::string value = words.Rest();
        if (!engine_.data().SetText(key, value)) throw BadLine("no such setting or value");
    } else if (command == "player") {
        SetPlayer(words.Rest());
    } else if (command == "start") {
        const GameNumber number = words.Number();
        engine_.life().StartGame(words.Game(), number);
    } else if (command == "restart") {
        words.End();
        engine_.commands().RestartGame();
    } else if (command == "close") {
        words.End();
        engine_.commands().CloseGame();
    } else {
        return false;
    }
    return true;
}

void ScriptedTable::Press(PicID id) {
    if (!engine_.table().Card(id).Visible) return;
    pressed_ = id;
    engine_.gestures().MouseDown(id, kGripX, kGripY);
}

void ScriptedTable::Drag(std::int16_t left, std::int16_t top) {
    if (!engine_.gestures().Dragging()) return;
    const KesCard& card = engine_.table().Card(pressed_);
    engine_.gestures().MouseMove(pressed_, left - card.Left + kGripX, top - card.Top + kGripY);
}

void ScriptedTable::Release() {
    if (engine_.gestures().Dragging()) engine_.gestures().MouseUp(pressed_);
}

void ScriptedTable::Slot() {
    if (engine_.table().PicStock[0].Visible) engine_.gestures().StockClick();
}

bool ScriptedTable::PlayGestures(std::string_view command, Words& words) {
    if (command == "press") {
        const PicID id = words.Card();
        words.End();
        Press(id);
    } else if (command == "drag") {
        const auto left = words.Whole<std::int16_t>();
        const auto top = words.Whole<std::int16_t>();
        words.End();
        Drag(left, top);
    } else if (command == "release") {
        words.End();
        Release();
    } else if (command == "drop") {
        const PicID id = words.Card();
        const auto left = words.Whole<std::int16_t>();
        const auto top = words.Whole<std::int16_t>();
        words.End();
        if (!engine_.table().Card(id).Visible) return true;
        Press(id);
        Drag(left, top);
        Release();
    } else if (command == "slot") {
        words.End();
        Slot();
    } else {
        return false;
    }
    return true;
}

void ScriptedTable::Replay(std::string_view what) {
    if (what == "forward") return engine_.commands().ReplayForward();
    if (what == "back") return engine_.commands().ReplayBack();
    if (what == "all") return engine_.commands().ReplayAll();
    if (what == "stop") return engine_.commands().StopReplay();
    throw BadLine("no such replay command: " + std::string(what));
}

bool ScriptedTable::PlayCommands(std::string_view command, Words& words) {
    using Command = void (*)(Engine&);
    static constexpr std::array<std::pair<std::string_view, Command>, 7> kCommands{{
        {"undo", [](Engine& engine) { engine.commands().Undo(); }},
        {"redo", [](Engine& engine) { engine.commands().Redo(); }},
        {"undoall", [](Engine& engine) { engine.commands().UndoAll(); }},
        {"redoall", [](Engine& engine) { engine.commands().RedoAll(); }},
        {"autoplay", [](Engine& engine) { engine.commands().ToggleAutoplay(); }},
        {"forward", [](Engine& engine) { engine.replay().ForwardTick(); }},
        {"back", [](Engine& engine) { engine.replay().BackwardTick(); }},
    }};
    for (const auto& [name, run] : kCommands) {
        if (command != name) continue;
        words.End();
        run(engine_);
        return true;
    }
    if (command != "replay") return false;
    const std::string_view what = words.Word();
    words.End();
    Replay(what);
    return true;
}

bool ScriptedTable::Look(std::string_view command, Words& words) {
    using Print = void (*)(std::ostream&, const Engine&);
    static constexpr std::array<std::pair<std::string_view, Print>, 8> kPrints{{
        {"board", PrintBoard},
        {"log", PrintLog},
        {"state", PrintState},
        {"marks", PrintMarks},
        {"recent", PrintRecent},
        {"scores", PrintScores},
        {"players", PrintPlayers},
        {"history", PrintHistory},
    }};
    for (const auto& [name, print] : kPrints) {
        if (command != name) continue;
        words.End();
        print(out_, engine_);
        return true;
    }
    if (command == "echo") {
        out_ << (words.Empty() ? std::string() : words.Rest()) << '\n';
    } else if (command == "trace") {
        const std::string_view on = words.Word();
        words.End();
        if (on != "0" && on != "1") throw BadLine("trace takes 0 or 1");
        trace_ = on == "1";
        sounds_.on = trace_;
    } else {
        return false;
    }
    return true;
}

}  // namespace varnello::script
