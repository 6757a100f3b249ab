#include "script/looking.h"
#include "script/scripted_table.h"

// The commands that stand for the dialogs which choose deals and keep players.
namespace varnello::script {
namespace {

/// A text as it stands, with or without double quotes around it.
std::string Unquoted(std::string_view word) {
    const bool quoted = word.size() >= 2 && word.starts_with('"') && word.ends_with('"');
    return std::string(quoted ? word.substr(1, word.size() - 2) : word);
}

}  // namespace

void ScriptedTable::PlayFavorite(Words& words) {
    const auto item = words.Whole<int>();
    const std::string game = words.Game();
    engine_.favorites().OpenFav();
    const auto numbers = engine_.favorites().NumbersOf(game);
    if (item < 1 || item > static_cast<int>(numbers.size())) throw BadLine("no such favorite");
    const std::string& number = numbers[static_cast<std::size_t>(item - 1)];
    if (!ParseDecimal(number)) throw BadLine("not a game number: " + number);
    engine_.life().StartGame(game, GameNumber::Text(number));
}

bool ScriptedTable::Choose(std::string_view command, Words& words) {
    if (command == "answer") {
        const std::string_view answer = words.Word();
        words.End();
        if (answer != "yes" && answer != "no") throw BadLine("answer takes yes or no");
        answer_ = answer == "yes";
    } else if (command == "choose") {
        const std::string number = Unquoted(words.Word());
        const std::string game = words.Game();
        if (engine_.choosing().AcceptNumber(number))
            engine_.life().StartGame(game, GameNumber::Text(number));
    } else if (command == "favorite") {
        words.End();
        engine_.commands().AddFavorite();
    } else if (command == "favorites") {
        const std::string game = words.Game();
        engine_.favorites().OpenFav();
        PrintFavorites(out_, engine_.favorites(), game);
    } else if (command == "favorite-play") {
        PlayFavorite(words);
    } else if (command == "favorites-clear") {
        words.End();
        engine_.choosing().ClearFavorites();
    } else {
        return false;
    }
    return true;
}

void ScriptedTable::RenamePlayer(const std::string& names) {
    const std::size_t bar = names.find('|');
    if (bar == std::string::npos) throw BadLine("a rename takes OLD|NEW");
    const std::string oldName = names.substr(0, bar);
    if (oldName.empty() || engine_.data().FindPlayer(oldName) == 0) throw BadLine("no such player");
    engine_.players().EnterPlayer(oldName, CutPlayerName(names.substr(bar + 1)));
}

bool ScriptedTable::Keep(std::string_view command, Words& words) {
    if (command == "player-add") {
        const std::string name = words.Rest();
        if (engine_.players().MayAddPlayer())
            engine_.players().EnterPlayer({}, CutPlayerName(name));
    } else if (command == "player-rename") {
        RenamePlayer(words.Rest());
    } else if (command == "player-delete") {
        const std::string name = words.Rest();
        const bool deletable = engine_.data().FindPlayer(name) != 0;
        if (!deletable || name == engine_.data().CurPlayer()) throw BadLine("not to be deleted");
        if (Ask(kDeletePlayerQuestion)) engine_.players().DeletePlayer(name);
    } else {
        return false;
    }
    return true;
}

}  // namespace varnello::script
