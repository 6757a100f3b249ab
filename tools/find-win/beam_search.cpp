#include "beam_search.h"

#include <algorithm>

#include "hash_set.h"

namespace varnello::findwin {
namespace {

constexpr std::size_t kMostKept = 60'000'000;  // hashes of kept states, bounds the memory

struct Candidate {
    int cost;
    std::uint32_t parent;  ///< index in the layer
    std::uint64_t hash;
    Move move;

    bool operator<(const Candidate& other) const {
        return cost != other.cost ? cost < other.cost : hash < other.hash;
    }
};

/// How a kept state was reached.
struct Step {
    std::uint32_t before;  ///< index of the step before it, 0 for the start
    Move move;
};

struct Node {
    State state;
    std::uint32_t step;
};

class Beam {
public:
    Beam(const Rules& rules, const Evaluation& evaluation, const State& start, const Limits& limits)
        : rules_(rules),
          evaluation_(evaluation),
          limits_(limits),
          layer_{{start, 0}},
          steps_{{0, {}}} {
        kept_.Insert(start.Hash(rules.Map()));
    }

    std::optional<Line> Run() {
        for (int depth = 0; depth < limits_.gestures && !layer_.empty(); ++depth) {
            if (auto line = Expand()) return line;
            if (OutOfTime() || kept_.Size() > kMostKept) return std::nullopt;
            KeepBest();
        }
        return std::nullopt;
    }

private:
    bool OutOfTime() const { return std::chrono::steady_clock::now() > limits_.end; }

    /// Collects the states that follow the layer; the line if one of them is won.
    std::optional<Line> Expand() {
        candidates_.clear();
        seen_.Clear();
        std::vector<Move> moves;
        for (std::uint32_t i = 0; i < layer_.size(); ++i) {
            if (i % 4096 == 0 && OutOfTime()) return std::nullopt;
            FindMoves(rules_, layer_[i].state, moves);
            for (const Move& move : moves) {
                State next = layer_[i].state;
                Apply(rules_, next, move);
                if (rules_.Won(next)) return LineTo(layer_[i].step, move);
                const std::uint64_t hash = next.Hash(rules_.Map());
                if (kept_.Contains(hash) || !seen_.Insert(hash)) continue;
                candidates_.push_back({evaluation_.Cost(next), i, hash, move});
            }
        }
        return std::nullopt;
    }

    void KeepBest() {
        if (candidates_.size() > limits_.width) {
            const auto end = candidates_.begin() + static_cast<std::ptrdiff_t>(limits_.width);
            std::nth_element(candidates_.begin(), end, candidates_.end());
            candidates_.erase(end, candidates_.end());
        }
        nextLayer_.clear();
        for (const Candidate& candidate : candidates_) {
            const Node& parent = layer_[candidate.parent];
            nextLayer_.push_back({parent.state, static_cast<std::uint32_t>(steps_.size())});
            Apply(rules_, nextLayer_.back().state, candidate.move);
            steps_.push_back({parent.step, candidate.move});
            kept_.Insert(candidate.hash);
        }
        layer_.swap(nextLayer_);
    }

    Line LineTo(std::uint32_t step, const Move& last) const {
        Line line{last};
        for (; step != 0; step = steps_[step].before) line.push_back(steps_[step].move);
        std::reverse(line.begin(), line.end());
        return line;
    }

    const Rules& rules_;
    const Evaluation& evaluation_;
    Limits limits_;
    std::vector<Node> layer_;
    std::vector<Node> nextLayer_;
    std::vector<Candidate> candidates_;
    std::vector<Step> steps_;
    HashSet kept_;
    HashSet seen_;  ///< in the layer that is being collected
};

}  // namespace

std::optional<Line> BeamSearch(const Rules& rules, const Evaluation& evaluation, const State& start,
                               const Limits& limits) {
    return Beam(rules, evaluation, start, limits).Run();
}

}  // namespace varnello::findwin
