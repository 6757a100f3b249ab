#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fixture.h"

namespace varnello::test {

/// The board, the log and the rules alone, with cards laid out by hand and autoplay off. As in the
/// flow a move is logged and sets off autoplay; a win is only counted.
///
/// A board is a text like "t0 -9C AH, g1 AS+": a pile is named by its kind, of tableau, stock,
/// waste, goal and reserve, and its number, then its cards from the bottom up. A card is a rank of
/// A23456789TJQK and a suit of HSDC, with "+" behind it for the second pack and "-" before it when
/// it is closed.
class HandBoard : private MoveFollower {
public:
    explicit HandBoard(const GameRow& row, std::string_view piles = "");

    void Lay(std::string_view piles);
    /// All cards in the form of `Lay`, the piles in the order named there.
    std::string Text() const;
    /// The card with this text, whatever its face. Cards are numbered as they are laid.
    PicID Id(std::string_view card) const;
    KesCard& Card(std::string_view card) { return table.Card(Id(card)); }

    /// Carries out words: "9H" presses and releases a card, "9H>t0" drops it on a pile,
    /// "9H@20,-300" so that it stands there, "slot" clicks on the stock's place, "row" deals one;
    /// then "undo", "redo", "undoall", "redoall" and "autoplay".
    void Do(const std::string& acts);
    void Press(std::string_view card) { gestures.MouseDown(Id(card), 532, 720); }
    void Drag(std::string_view card, double left, double top);
    void Release(std::string_view card) { gestures.MouseUp(Id(card)); }
    bool PicksUp(std::string_view card);

    void Autoplay(bool on) { data.Set(keys::Autoplay, on ? 1 : 0); }
    /// The moves and sounds since the last call.
    std::string Heard() { return std::exchange(out, std::ostringstream()).str(); }

    std::ostringstream out;
    script::MemoryStore store;
    FollowingSurface surface;
    script::PrintedSounds sounds{out};
    cData data{store, sounds, {}};
    cGames games;
    Generator generator;
    Table table;
    cArray array{games, table, generator, surface, *this};
    cTrans trans{array, table, data};
    Playfield field{data, games, generator, table, array, trans};
    Gestures gestures{field};
    int wins = 0;

private:
    bool Playing() const override { return data.GameRunning; }
    void MoveBegins(const CardMove& move) override { script::PrintMove(out, move); }
    void SaveTrans(const CardMove& move) override { trans.SaveTrans(move); }
    void AutoPlay() override;
    void CheckWon() override;

    PicID next_ = 0;
};

/// A card in the form of `HandBoard`.
std::string TextOf(const KesCard& card);

struct BoardCase {
    std::string before, acts;
    std::string after = "";  ///< empty: as before
};

/// Plays each case on a board of its own. Undoing everything must lead back to where it began, and
/// without closed cards, which lie closer, every card must stand where its place is.
void ExpectPlays(const GameRow& row, const std::vector<BoardCase>& cases, bool autoplay = false);

/// Tableau piles 1500 twips apart at (1000, 3000), reserves above them, and foundations to the
/// right of those. A black card goes on a red one, and the other way round.
GameRow Freecells(int piles = 4);

/// The cards of these ranks, one suit or two in turn, as a pile's text.
std::string Cards(std::string_view ranks, std::string_view suits, std::string_view pack = "");
inline constexpr std::string_view kUp = "A23456789TJQK";
inline constexpr std::string_view kDown = "KQJT98765432A";

}  // namespace varnello::test
