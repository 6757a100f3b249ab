#pragma once

#include "engine/common/phrase.h"

/// The sentences of which the rules of a game consist. A sentence is chosen as a whole; the words
/// that stand in for %1 and %2 are in `definitions/describe.cpp`.
namespace varnello::say {

// Aim.
inline constexpr Sentence kAim{"Bring all %1 cards to the %n foundations."};
inline constexpr Sentence kAimRuns{
    "Bring all %1 cards to the foundations, in whole runs of thirteen from King down to Ace.",
    "Bring all %1 cards to the foundation, in whole runs of thirteen from King down to Ace."};
inline constexpr Sentence kAimSuitRuns{
    "Bring all %1 cards to the foundations, in whole runs of thirteen from King down to Ace %2.",
    "Bring all %1 cards to the foundation, in whole runs of thirteen from King down to Ace %2."};
inline constexpr Sentence kHalfPack{"Half a pack is used: the hearts and the spades, 26 cards."};
inline constexpr Sentence kOnePack{"One pack of 52 cards is used."};
inline constexpr Sentence kTwoPacks{"Two packs, 104 cards, are used."};
inline constexpr Sentence kOneSuit{"%n cards are used, all of them hearts."};
inline constexpr Sentence kTwoSuits{"Half of the cards are hearts, the other half spades."};

// Layout.
inline constexpr Sentence kEmptyTableau{"The tableau has %n piles, which begin empty.",
                                        "The tableau has one pile, which begins empty."};
inline constexpr Sentence kOneCard{"One card is dealt to the first of the %n piles of the tableau.",
                                   "One card is dealt to the one pile of the tableau."};
inline constexpr Sentence kRows{"%1 cards are dealt in rows to the %n piles of the tableau.",
                                "%1 cards are dealt to the one pile of the tableau."};
inline constexpr Sentence kStaircase{
    "The tableau is a staircase of %n piles: one card on the first and one more on each that "
    "follows."};
inline constexpr Sentence kReverseStaircase{
    "%1 cards are dealt in rows to the %n piles of the tableau, each row at least a pile shorter "
    "than "
    "the one before."};
inline constexpr Sentence kBySuit{
    "Each card is dealt to the pile of its suit: %1 of the %n piles of the tableau hold one suit "
    "each, the others begin empty."};
inline constexpr Sentence kBySuitExactly{
    "Each card is dealt to the pile of its suit: the %n piles of the tableau hold one suit each."};
inline constexpr Sentence kSomeBySuit{
    "52 cards are dealt, each to the pile of its suit, on the first %1 of the %n piles of the "
    "tableau."};
inline constexpr Sentence kCone{
    "The %n piles of the tableau hold 4, 5, 6, 7, 8, 7, 6, 5 and 4 cards."};
inline constexpr Sentence kWideCone{
    "The first nine of the %n piles of the tableau hold 4, 5, 6, 7, 8, 7, 6, 5 and 4 cards, the "
    "others begin empty."};
inline constexpr Sentence kAtRandom{
    "Every card is dealt to one of the %n piles of the tableau, drawn at random."};
inline constexpr Sentence kRestAtRandom{
    "Every other card is dealt to one of the %n piles of the tableau, drawn at random."};
inline constexpr Sentence kReserve{"The reserve has %n cells; each holds one card of any kind.",
                                   "The reserve has one cell; it holds one card of any kind."};
inline constexpr Sentence kReserveFilled{
    "The reserve has %n cells, %1 of them filled at the start; each holds one card of any kind."};
inline constexpr Sentence kReserveFull{
    "The reserve has %n cells, all filled at the start; each holds one card of any kind.",
    "The reserve has one cell, filled at the start; it holds one card of any kind."};
inline constexpr Sentence kWasteStarts{"One card lies on the waste from the start."};
inline constexpr Sentence kStockLeft{"The other %n cards stay on the stock.",
                                     "The last card stays on the stock."};
inline constexpr Sentence kAllOpen{"All cards lie open."};
inline constexpr Sentence kStockClosed{"All cards but those of the stock lie open."};
inline constexpr Sentence kLastOpen{
    "The last %n cards dealt to the tableau lie open, those before them closed.",
    "The last card dealt to the tableau lies open, those before it closed."};
inline constexpr Sentence kTopsOpen{
    "The top card of each tableau pile lies open, those below it closed."};
inline constexpr Sentence kFirstPileOpen{
    "The cards of the first tableau pile lie open, those of the others closed."};
inline constexpr Sentence kCornerClosed{
    "The first three cards of the first four tableau piles lie closed, the others open."};
inline constexpr Sentence kUncovers{"A closed card is opened when the card on it leaves."};

// Building.
inline constexpr Sentence kBuilt{"Tableau piles are built %1."};
inline constexpr Sentence kNothingLaid{"No card can be laid on a card of the tableau."};
inline constexpr Sentence kKingOnAce{"Ranks go round: a King may lie on an Ace."};
inline constexpr Sentence kAceOnKing{"Ranks go round: an Ace may lie on a King."};
inline constexpr Sentence kNeighbours{"Ranks go round: a King and an Ace may lie on one another."};

// Groups.
inline constexpr Sentence kOneAtATime{"Cards are moved one at a time."};
inline constexpr Sentence kGroups{
    "Cards at the end of a pile that run %1 can be moved together, however many they are."};
inline constexpr Sentence kGroupsByPlaces{
    "Cards at the end of a pile that run %1 can be moved together, as many as the free places "
    "allow: one more than the free reserve cells, times one more than the empty tableau piles."};
inline constexpr Sentence kGroupsByPiles{
    "Cards at the end of a pile that run %1 can be moved together, as many as the free places "
    "allow: one more than the empty tableau piles."};

// Empty piles.
inline constexpr Sentence kTakesAnyGroup{"An empty tableau pile takes any card or group."};
inline constexpr Sentence kTakesAnyCard{"An empty tableau pile takes any card."};
inline constexpr Sentence kTakesRank{"An empty tableau pile takes only %1."};
inline constexpr Sentence kTakesBelowBase{
    "An empty tableau pile takes only the rank just below the base rank."};
inline constexpr Sentence kTakesNone{"An empty tableau pile takes no card."};

// Foundations.
inline constexpr Sentence kRunsOnly{"The foundations take whole runs only."};
inline constexpr Sentence kFoundations{
    "The foundations are built %1 until they hold thirteen cards."};
inline constexpr Sentence kFoundationsUpAndDown{
    "The first two foundations are built %1, the others down in suit, until they hold thirteen "
    "cards."};
inline constexpr Sentence kAceAfterKing{"Ranks go round: after a King comes an Ace."};
inline constexpr Sentence kKingAfterAce{"Ranks go round: after an Ace comes a King."};
inline constexpr Sentence kRoundBothWays{
    "Ranks go round: upwards an Ace follows a King, downwards a King an Ace."};
inline constexpr Sentence kBeginEmpty{"They begin empty."};
inline constexpr Sentence kBeginWithAces{"They begin empty, each with an Ace."};
inline constexpr Sentence kAllStart{"All %n %1 lie there from the start."};
inline constexpr Sentence kBothStart{"Both %1 lie there from the start."};
inline constexpr Sentence kAcesStart{
    "%n Aces lie there from the start; an empty foundation takes another.",
    "One Ace lies there from the start; an empty foundation takes another."};
inline constexpr Sentence kHalfKings{
    "Aces lie on the first half of them from the start, Kings on the others."};
inline constexpr Sentence kRisingRanks{
    "An Ace lies on the first of them from the start, on each that follows the next rank, on the "
    "last %1."};
inline constexpr Sentence kFirstCard{
    "The first card of the deal sets the base rank; %n cards of that rank lie there from the "
    "start, "
    "and every foundation begins with it.",
    "The first card of the deal sets the base rank and lies there from the start; every foundation "
    "begins with that rank."};
inline constexpr Sentence kFirstCards{
    "The first %n cards of the deal start them, whatever they are."};
inline constexpr Sentence kTakenBack{"The top card of a foundation may be taken back."};

// Stock.
inline constexpr Sentence kStockOpen{
    "The stock lies open; its top card can be moved like a card of the tableau."};
inline constexpr Sentence kStockRow{
    "A click on the stock deals one card to each tableau pile, whatever lies there."};
inline constexpr Sentence kStockToWaste{
    "A click on the stock turns its top card over onto the waste, whose top card can be moved."};
inline constexpr Sentence kStockOnce{"The stock is gone through once."};
inline constexpr Sentence kStockRedeal{
    "When the stock is empty, a click on its place turns the waste over, as often as you like."};

// Autoplay.
inline constexpr Sentence kRunsGoUp{"A finished run goes to a foundation by itself, always."};
inline constexpr Sentence kNoAutoplay{"No card goes up by itself in this game."};
inline constexpr Sentence kAutoplay{
    "With Autoplay on, after each move every card that fits a foundation goes up by itself."};

}  // namespace varnello::say
