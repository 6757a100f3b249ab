#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "engine/common/number_text.h"
#include "engine/definitions/codes.h"
#include "engine/settings/game_number.h"

namespace varnello::script {

/// A line that can't be carried out; its text says why.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Takes the arguments of a line one after the other. Each taker throws `BadLine` when the next
/// argument is missing or malformed.
class Words {
public:
    explicit Words(std::string_view line) : rest_(Trim(line)) {}

    bool Empty() const { return rest_.empty(); }
    std::string_view Word();
    /// All that is left of the line; not empty.
    std::string Rest();
    /// A whole number that fits the type.
    template <typename Integer>
    Integer Whole() {
        const std::string_view word = Word();
        const auto value = ParseWhole<Integer>(word);
        if (!value) throw BadLine("not a whole number in range: " + std::string(word));
        return *value;
    }
    PicID Card();
    /// A game number: 1 to 15 bare digits, or a number in double quotes.
    GameNumber Number();
    /// All that is left of the line, the name of a game.
    std::string Game();
    /// To be called when a line has all its arguments.
    void End() const;

private:
    std::string_view rest_;
};

}  // namespace varnello::script
