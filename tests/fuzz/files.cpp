#include <regex.h>

#include <cerrno>
#include <limits>
#include <optional>
#include <sstream>
#include <vector>

#include "engine/flow/engine.h"
#include "engine/null_desktop.h"
#include "target.h"

// A damaged score or favorites file: exactly its well-formed lines count, and what is appended
// leaves every byte that was there.
namespace varnello::test {
namespace {

/// A regular expression over bytes, NUL among them.
class Pattern {
public:
    explicit Pattern(const char* text) {
        Require(regcomp(&compiled_, text, REG_EXTENDED) == 0, text);
    }
    ~Pattern() { regfree(&compiled_); }
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;
    /// The groups of a line that matches.
    std::optional<std::vector<std::string>> Groups(const std::string& line) const {
        regmatch_t found[10]{};
        found[0].rm_eo = static_cast<regoff_t>(line.size());
        if (regexec(&compiled_, line.c_str(), 10, found, REG_STARTEND) != 0) return std::nullopt;
        std::vector<std::string> groups;
        for (std::size_t i = 1; i <= compiled_.re_nsub; ++i) {
            const auto at = static_cast<std::size_t>(found[i].rm_so);
            groups.push_back(line.substr(at, static_cast<std::size_t>(found[i].rm_eo) - at));
        }
        return groups;
    }

private:
    regex_t compiled_{};
};

#define NUMBER "([0-9]{1,15}|\"[^\"]*\")"
const Pattern kScoreLine("^\"([^\"]*)\",\"([^\"]*)\"," NUMBER
                         ",(-?[0-9]+),(-?[0-9]+),(-?[0-9]+),(-?[0-9]+)$");
const Pattern kFavoriteLine("^\"([^\"]*)\"," NUMBER "$");
#undef NUMBER

template <typename Integer>
bool Fits(const std::string& digits) {
    errno = 0;
    const long long value = std::strtoll(digits.c_str(), nullptr, 10);
    return errno == 0 && value >= std::numeric_limits<Integer>::min() &&
           value <= std::numeric_limits<Integer>::max();
}

/// Lines of a text that form records.
template <typename IsRecord>
std::vector<std::vector<std::string>> Records(const std::string& text, const Pattern& pattern,
                                              IsRecord&& isRecord) {
    std::vector<std::vector<std::string>> records;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        const auto groups = pattern.Groups(line);
        if (groups && isRecord(*groups)) records.push_back(*groups);
    }
    return records;
}

bool IsScore(const std::vector<std::string>& groups) {
    return Fits<std::int32_t>(groups[3]) && Fits<std::int32_t>(groups[4]) &&
           Fits<std::int32_t>(groups[5]) && Fits<std::int16_t>(groups[6]);
}

void CheckScores(cScore& score, const std::string& text) {
    const auto expected = Records(text, kScoreLine, IsScore);
    score.CloseScore();
    score.OpenScore("Player1");
    Require(score.ScoreTop() == static_cast<std::int32_t>(expected.size()), "scores in the list");
    for (std::int32_t i = 1; i <= score.ScoreTop(); ++i) {
        const ScoreRecord record = score.GetScore(i);
        const auto& groups = expected[static_cast<std::size_t>(i - 1)];
        Require(record.Date == groups[0] && record.Game == groups[1] &&
                    record.GameNo.IsText() == groups[2].starts_with('"') &&
                    record.Time == std::strtoll(groups[3].c_str(), nullptr, 10) &&
                    record.Moves == std::strtoll(groups[4].c_str(), nullptr, 10) &&
                    record.Score == std::strtoll(groups[5].c_str(), nullptr, 10) &&
                    record.Status == std::strtoll(groups[6].c_str(), nullptr, 10),
                "a score reads otherwise");
    }
}

void CheckFavorites(Favorites& favorites, const std::string& text) {
    const auto expected = Records(text, kFavoriteLine, [](const auto&) { return true; });
    favorites.OpenFav();
    Require(favorites.FavTop() == static_cast<std::int16_t>(expected.size()),
            "favorites in the list");
    for (std::int16_t i = 1; i <= favorites.FavTop(); ++i) {
        const FavRecord& favorite = favorites.GetFav(i);
        const auto& groups = expected[static_cast<std::size_t>(i - 1)];
        Require(favorite.Game == groups[0], "a favorite's game");
        Require(favorite.GameNo.IsText() == groups[1].starts_with('"'), "a favorite's number");
        (void)favorites.NumbersOf(favorite.Game);
    }
}

void CheckAppended(const std::filesystem::path& file, const std::string& before) {
    const std::string after = ReadFile(file);
    Require(after.starts_with(before) && after.size() > before.size(), "bytes are lost");
    Require(after.ends_with("\r\n"), "a line without an end");
}

}  // namespace
}  // namespace varnello::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnello;
    constexpr std::size_t kMostBytes = 16384;
    if (size > kMostBytes) return 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const test::TempFolder folder;
    NullDesktop nothing;
    Engine engine(nothing.Interfaces(folder.Path()));
    engine.InitMain();
    const auto scores = ScorePath(engine.data(), "Player1");
    for (const auto& file : {scores, engine.favorites().File()}) {
        std::ofstream(file, std::ios::binary) << text;
    }
    test::CheckScores(engine.score(), text);
    test::CheckFavorites(engine.favorites(), text);

    engine.data().CurGName("Penguin");
    test::Require(engine.score().AddScore(Outcome::Won) &&
                      engine.favorites().AddFav("Penguin", GameNumber::Number(7)),
                  "not appended");
    test::CheckAppended(scores, text);
    test::CheckAppended(engine.favorites().File(), text);
    test::CheckScores(engine.score(), test::ReadFile(scores));
    test::CheckFavorites(engine.favorites(), test::ReadFile(engine.favorites().File()));
    return 0;
}
