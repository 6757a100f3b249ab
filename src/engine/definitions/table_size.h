#pragma once

#include <cstdint>

/// What the table has room for. It doesn't scale; all lengths are twips.
namespace varnello {

inline constexpr int kTableWidth = 15480;
inline constexpr int kTableHeight = 11205;
inline constexpr std::int16_t kCardWidth = 1065;
inline constexpr std::int16_t kCardHeight = 1440;

// The slot objects, and so the most piles that a game can have of a kind.
inline constexpr int kHomeSlots = 18;
inline constexpr int kResSlots = 10;
inline constexpr int kGoalSlots = 8;
inline constexpr int kWasteSlots = 1;
inline constexpr int kStockSlots = 1;
inline constexpr int kSlots = kHomeSlots + kResSlots + kGoalSlots + kWasteSlots + kStockSlots;

}  // namespace varnello
