#include "desktop/reports/report_order.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <numeric>

namespace varnello {
namespace {

constexpr int kDigitBits = 11;
constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;

struct Keyed {
    std::uint64_t key;
    int place;
};

/// A whole number that orders as the value does.
std::uint64_t KeyOf(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0);  // never -0
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    return bits & kSign ? ~bits : bits | kSign;
}

}  // namespace

/// Sorts digit by digit from the lowest; digits that all values share are left out.
std::vector<int> OrderOf(std::span<const double> values, bool descending) {
    std::vector<Keyed> from(values.size());
    std::uint64_t common = ~std::uint64_t{0};
    std::uint64_t any = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::uint64_t key = KeyOf(values[i]);
        from[i] = {descending ? ~key : key, static_cast<int>(i)};
        common &= from[i].key;
        any |= from[i].key;
    }
    const std::uint64_t differing = common ^ any;
    std::vector<Keyed> to(values.size());
    for (int shift = 0; shift < 64; shift += kDigitBits) {
        if ((differing >> shift & (kDigits - 1)) == 0) continue;
        std::array<std::size_t, kDigits> starts{};
        const auto digit = [&](const Keyed& entry) { return entry.key >> shift & (kDigits - 1); };
        for (const Keyed& entry : from) ++starts[digit(entry)];
        std::exclusive_scan(starts.begin(), starts.end(), starts.begin(), std::size_t{0});
        for (const Keyed& entry : from) to[starts[digit(entry)]++] = entry;
        from.swap(to);
    }
    std::vector<int> order(values.size());
    std::transform(from.begin(), from.end(), order.begin(),
                   [](const Keyed& entry) { return entry.place; });
    return order;
}

std::vector<double> AlphabetOf(const QStringList& texts) {
    std::vector<qsizetype> sorted(static_cast<std::size_t>(texts.size()));
    std::iota(sorted.begin(), sorted.end(), 0);
    std::stable_sort(sorted.begin(), sorted.end(), [&](auto a, auto b) {
        return QString::localeAwareCompare(texts[a], texts[b]) < 0;
    });
    std::vector<double> places(sorted.size());
    double place = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const bool same =
            i > 0 && QString::localeAwareCompare(texts[sorted[i - 1]], texts[sorted[i]]) == 0;
        if (!same) ++place;
        places[static_cast<std::size_t>(sorted[i])] = place;
    }
    return places;
}

}  // namespace varnello
