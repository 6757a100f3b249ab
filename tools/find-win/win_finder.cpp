#include "win_finder.h"

#include <array>
#include <span>

namespace varnello::findwin {
namespace {

constexpr int kLongestLine = 500;
constexpr std::array<std::size_t, 5> kWidths{100, 1'000, 10'000, 60'000, 200'000};

// No evaluation suits every deal; each gets its turn at each width.
constexpr std::array<Weights, 5> kByCards{{
    {.left = 4, .inStock = 2, .breaks = 4, .reserve = 3, .emptyHome = 6, .blocked = 6, .dig = 2},
    {.left = 2, .inStock = 1, .breaks = 4, .reserve = 4, .emptyHome = 8, .blocked = 4, .dig = 1},
    {.left = 6, .inStock = 2, .breaks = 2, .reserve = 2, .emptyHome = 4, .blocked = 5, .dig = 4},
    {.left = 3, .inStock = 5, .breaks = 5, .reserve = 6, .emptyHome = 10, .blocked = 2, .dig = 3},
    {.left = 1, .inStock = 0, .breaks = 3, .reserve = 1, .emptyHome = 3, .blocked = 8, .dig = 1},
}};
constexpr std::array<Weights, 5> kByRuns{{
    {.left = 2, .breaks = 4, .reserve = 4, .emptyHome = 8, .depth = 2, .allowed = 3},
    {.left = 1, .breaks = 5, .reserve = 3, .emptyHome = 6, .depth = 0, .allowed = 4},
    {.left = 4, .breaks = 4, .reserve = 6, .emptyHome = 12, .depth = 4, .allowed = 2},
    {.left = 0, .breaks = 3, .reserve = 2, .emptyHome = 4, .depth = 1, .allowed = 0},
    {.left = 2, .breaks = 8, .reserve = 8, .emptyHome = 20, .depth = 8, .allowed = 8},
}};

}  // namespace

std::optional<Line> FindWin(const Rules& rules, const State& start, const Effort& effort) {
    const std::span<const Weights> sets =
        rules.TakesRuns() ? std::span(kByRuns) : std::span(kByCards);
    std::optional<Line> best;
    int shortenings = effort.shortenings;
    for (const std::size_t width : kWidths) {
        if (best && shortenings-- == 0) break;
        for (const Weights& weights : sets) {
            if (std::chrono::steady_clock::now() > effort.end) return best;
            const int most = best ? static_cast<int>(best->size()) - 1 : kLongestLine;
            const Evaluation evaluation(rules, weights);
            if (auto line = BeamSearch(rules, evaluation, start, {width, most, effort.end})) {
                best = std::move(line);
            }
        }
    }
    return best;
}

}  // namespace varnello::findwin
