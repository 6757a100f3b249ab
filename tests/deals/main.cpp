#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "../engine/board_checks.h"
#include "dealer.h"

// varnello-all-deals: deals every game from each of the 65,536 states that a game number can lead
// to, checks each deal, and prints a line for each game: a digest of every 16th deal, a digest of
// all, how many of the deals differ, the name.
//
//   varnello-all-deals          all deals
//   varnello-all-deals sample   every 16th one alone: the first column and the name
namespace varnello::test {
namespace {

// From 2^20 on, 65,536 whole numbers one after the other lead to all the states, each to its own.
constexpr double kFirstNumber = 1 << 20;
constexpr int kStates = 1 << 16;
constexpr int kSampleStep = 16;

/// All that a deal takes from its number: 16 bits of the generator's state.
std::uint32_t StateOf(double number) {
    const auto bits = std::bit_cast<std::uint64_t>(number);
    return static_cast<std::uint32_t>((bits >> 48) ^ (bits >> 32 & 0xFFFF));
}

/// Whether the numbers reach every state, and reach it as the generator takes it.
bool NumbersReachAllStates() {
    std::vector<bool> reached(kStates);
    for (int i = 0; i < kStates; ++i) {
        const std::uint32_t state = StateOf(kFirstNumber + i);
        Generator generator;
        Generator expected;
        generator.rtcRandomize(kFirstNumber + i);
        // A float whose high word has the state below and zeros above.
        expected.rtcRandomize(std::bit_cast<double>(std::uint64_t{state} << 32));
        if (generator.rtcRandomNext() != expected.rtcRandomNext()) return false;
        reached[state] = true;
    }
    return std::count(reached.begin(), reached.end(), true) == kStates;
}

/// FNV-1a, 64 bits.
class Digest {
public:
    void Add(std::uint64_t byte) { value_ = (value_ ^ byte) * 0x100000001B3; }
    void AddWord(std::uint64_t word) {
        for (int shift = 0; shift < 64; shift += 8) Add(word >> shift & 0xFF);
    }
    std::uint64_t Value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

/// Each pile that isn't empty: cell, pile, and from the bottom each card's number on the table, its
/// value 0 to 103, and 1 for a closed one.
std::uint64_t DigestOf(const Dealer& deal) {
    Digest digest;
    for (int cell = 0; cell < kCells; ++cell) {
        for (int pile = 0; pile < kPilesPerCell; ++pile) {
            const int top = deal.array.GetTop(static_cast<Cell>(cell), pile);
            if (top < 0) continue;
            digest.Add(static_cast<std::uint64_t>(cell));
            digest.Add(static_cast<std::uint64_t>(pile));
            for (int pos = 0; pos <= top; ++pos) {
                const PicID id = deal.array.GetPicID(static_cast<Cell>(cell), pile, pos);
                const KesCard& card = deal.table.Card(id);
                digest.Add(static_cast<std::uint64_t>(id));
                digest.Add(static_cast<std::uint64_t>(card.Suitpile * 13 + card.Num));
                digest.Add(card.FaceMode == FaceMode::Closed ? 1 : 0);
            }
        }
    }
    return digest.Value();
}

/// False, with the reason on the error stream, when a deal isn't as it should be.
bool DealAll(const GameRow& row, int step) {
    const std::string name(row.Name);
    Dealer deal(row);
    Digest sample;
    Digest all;
    std::vector<std::uint64_t> digests;
    for (int i = 0; i < kStates; i += step) {
        deal.Deal(kFirstNumber + i);
        if (const std::string fault = BoardFault(deal.array, deal.table, deal.games);
            !fault.empty()) {
            std::fprintf(stderr, "%s, number %.0f: %s\n", name.c_str(), kFirstNumber + i,
                         fault.c_str());
            return false;
        }
        digests.push_back(DigestOf(deal));
        all.AddWord(digests.back());
        if (i % kSampleStep == 0) sample.AddWord(digests.back());
    }
    std::printf("%016llx ", static_cast<unsigned long long>(sample.Value()));
    if (step == 1) {
        std::sort(digests.begin(), digests.end());
        const auto different = std::unique(digests.begin(), digests.end()) - digests.begin();
        std::printf("%016llx %td ", static_cast<unsigned long long>(all.Value()), different);
    }
    std::printf("%s\n", name.c_str());
    std::fflush(stdout);
    return true;
}

}  // namespace
}  // namespace varnello::test

int main(int argc, char** argv) {
    using namespace varnello;
    const bool sample = argc == 2 && std::string_view(argv[1]) == "sample";
    if (argc > 1 && !sample) {
        std::fputs("usage: varnello-all-deals [sample]\n", stderr);
        return 2;
    }
    if (!test::NumbersReachAllStates()) {
        std::fputs("the numbers don't reach every state\n", stderr);
        return 1;
    }
    const bool good = std::all_of(kCatalogue.begin(), kCatalogue.end(), [&](const GameRow& row) {
        return test::DealAll(row, sample ? test::kSampleStep : 1);
    });
    return good ? 0 : 1;
}
