#pragma once

#include <filesystem>
#include <ostream>
#include <string_view>

#include "engine/flow/engine.h"
#include "script/stand_ins.h"
#include "script/words.h"

namespace varnello::script {

/// The engine without a window: carries out one command a line and writes what happened.
class ScriptedTable {
public:
    /// Plays with `folder` as the data folder and writes to `out`.
    ScriptedTable(const std::filesystem::path& folder, std::ostream& out);

    /// Carries out one line. A bad one prints a line that begins with "error: " and changes
    /// nothing.
    void Run(std::string_view line);

    const Engine& engine() const { return engine_; }

private:
    void Play(std::string_view command, Words& words);
    bool PlayClock(std::string_view command, Words& words);
    bool PlayLife(std::string_view command, Words& words);
    bool PlayGestures(std::string_view command, Words& words);
    bool PlayCommands(std::string_view command, Words& words);
    bool Choose(std::string_view command, Words& words);
    bool Keep(std::string_view command, Words& words);
    bool Look(std::string_view command, Words& words);
    bool ReportOn(std::string_view command, Words& words);

    /// Prints a question that the window would ask; the answer that was set last.
    bool Ask(std::string_view question);
    void SetClock(Words& words);
    void PlayFavorite(Words& words);
    void RenamePlayer(const std::string& names);
    void Report(Words& words);
    bool ReportSums(std::string_view what, Words& words);
    bool ReportGames(std::string_view what, Words& words);
    void Export(const std::string& name);
    void SetPlayer(const std::string& name);
    void Press(PicID id);
    void Drag(std::int16_t left, std::int16_t top);
    void Release();
    void Slot();
    void Replay(std::string_view what);

    std::ostream& out_;
    MemoryStore store_;
    ScriptClock clock_;
    NoSurface surface_;
    PrintedSounds sounds_;
    PrintedMessages messages_;
    bool answer_ = true;  ///< to the questions to come
    bool trace_ = false;
    PicID pressed_ = kNoCard;
    Engine engine_;
};

}  // namespace varnello::script
