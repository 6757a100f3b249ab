#include "engine/board/generator.h"

#include <bit>

namespace varnello {
namespace {

constexpr std::uint32_t kMultiplier = 0x43FD43FD;
constexpr std::uint32_t kAddend = 0xC39EC3;
constexpr std::uint32_t kMask = 0xFFFFFF;
constexpr float kRange = 16777216.0F;  // 2^24

}  // namespace

float Generator::rtcRandomNext() {
    state_ = (state_ * kMultiplier + kAddend) & kMask;
    return static_cast<float>(state_) / kRange;
}

float Generator::rtcRandomNext(float negative) {
    const auto bits = std::bit_cast<std::uint32_t>(negative);
    state_ = (bits + (bits >> 24)) & kMask;
    return rtcRandomNext();
}

void Generator::rtcRandomize(double number) {
    const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32);
    const std::uint32_t mixed = (high & 0xFFFF) ^ (high >> 16);
    state_ = (mixed << 8) | (state_ & 0xFF);
}

}  // namespace varnello
