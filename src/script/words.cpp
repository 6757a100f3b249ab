#include "script/words.h"

#include "engine/definitions/catalogue.h"

namespace varnello::script {

std::string_view Words::Word() {
    if (rest_.empty()) throw BadLine("an argument is missing");
    const std::string_view word = rest_.substr(0, rest_.find_first_of(" \t"));
    rest_ = Trim(rest_.substr(word.size()));
    return word;
}

std::string Words::Rest() {
    if (rest_.empty()) throw BadLine("an argument is missing");
    std::string rest(rest_);
    rest_ = {};
    return rest;
}

std::string Words::Game() {
    std::string name = Rest();
    if (!FindGame(name)) throw BadLine("no such game: " + name);
    return name;
}

PicID Words::Card() {
    const auto id = Whole<int>();
    if (id < 0 || id >= kCardObjects) throw BadLine("no such card: " + std::to_string(id));
    return static_cast<PicID>(id);
}

GameNumber Words::Number() {
    const std::string_view word = Word();
    if (word.size() >= 2 && word.starts_with('"') && word.ends_with('"')) {
        const std::string_view text = word.substr(1, word.size() - 2);
        if (ParseDecimal(text)) return GameNumber::Text(std::string(text));
    } else if (const auto number = GameNumber::ParseBare(word)) {
        return *number;
    }
    throw BadLine("not a game number: " + std::string(word));
}

void Words::End() const {
    if (!rest_.empty()) throw BadLine("too much: " + std::string(rest_));
}

}  // namespace varnello::script
