#pragma once

#include <array>
#include <cassert>
#include <cstdint>

#include "engine/board/generator.h"
#include "engine/board/table.h"
#include "engine/definitions/game_record.h"
#include "engine/desktop.h"

namespace varnello {

/// One call of `MoveCard`, in the order of its arguments.
struct CardMove {
    varnello::PicID PicID;
    Place To;
    MoveKind tMod = MoveKind::Play;
    int Speed = 0;                    ///< steps of the flight; 0 or less: the card jumps
    int mCards = 0;                   ///< cards lying above this one that go with it
    FaceMode DFace = FaceMode::Open;  ///< the face of every moved card at its target
};

/// What a card's move sets off further up. The game flow implements it, so that the board needs to
/// know nothing of the log and the rules.
class MoveFollower {
public:
    virtual ~MoveFollower() = default;
    /// Whether a game is being played and isn't won yet.
    virtual bool Playing() const = 0;
    /// A move is accepted and about to be made; nothing has changed place yet.
    virtual void MoveBegins(const CardMove& move) = 0;
    /// The move belongs into the log. The card still holds its old place.
    virtual void SaveTrans(const CardMove& move) = 0;
    virtual void AutoPlay() = 0;
    /// The last step of a move.
    virtual void CheckWon() = 0;
};

/// Which card lies where, and the one door through which a card changes its place. Indexes outside
/// the tables are a fault of the caller.
class cArray {
public:
    cArray(const cGames& games, Table& table, Generator& generator, TableSurface& surface,
           MoveFollower& follower);

    /// Position of the pile's top card, -1 for an empty pile.
    int GetTop(Cell cell, int pile) const { return TopIndex(cell, pile); }
    /// The top card; the pile must not be empty.
    PicID GetTopPicID(Cell cell, int pile) const {
        assert(GetTop(cell, pile) >= 0);
        return GetPicID(cell, pile, GetTop(cell, pile));
    }
    /// Entries above the top are reliable for reserves only.
    PicID GetPicID(Cell cell, int pile, int pos) const { return CardGrid(cell, pile, pos); }

    void AddtoWaste(PicID id);
    /// Moves the whole waste back at once, unlogged.
    void MoveWasteStock();
    void MoveCard(CardMove move);
    /// Turns a card where it lies.
    void Turn(PicID id, FaceMode face);
    /// Tells the surface how a card looks that was moved by hand.
    void ShowCard(PicID id) { surface_.CardChanged(id, table_.Card(id)); }
    /// Tells the surface how the slot of a pile looks.
    void ShowSlot(Cell cell, int pile) {
        surface_.SlotChanged(cell, pile, table_.Slot(cell, pile));
    }
    /// Whether a game is being played and isn't won yet.
    bool Playing() const { return follower_.Playing(); }

    /// The card value at a position of the shuffled deck.
    std::int16_t GetRandom(int position) const {
        return DealOrder_[static_cast<std::size_t>(position)];
    }
    /// Empties the tables and shuffles `TotalCards` cards for a game number.
    void Init(double GameNo);
    void RandomInit(double GameNo);
    /// Empties the tables: with no game running the board counts as empty.
    void Clear();

    int TotalGoalCards() const;
    int ClosedCards(int pile) const;

    int GetCordX(const Place& place) const;
    int GetCordY(const Place& place) const;

private:
    void PlaceCard(PicID id, Place to, const CardMove& move, int Speed);

    static std::size_t PileIndex(Cell cell, int pile) {
        return static_cast<std::size_t>(cell) * kPilesPerCell + static_cast<std::size_t>(pile);
    }
    std::int16_t& TopIndex(Cell cell, int pile) { return topIndex_[PileIndex(cell, pile)]; }
    std::int16_t TopIndex(Cell cell, int pile) const { return topIndex_[PileIndex(cell, pile)]; }
    PicID& CardGrid(Cell cell, int pile, int pos) {
        return cardGrid_[PileIndex(cell, pile)][static_cast<std::size_t>(pos)];
    }
    PicID CardGrid(Cell cell, int pile, int pos) const {
        return cardGrid_[PileIndex(cell, pile)][static_cast<std::size_t>(pos)];
    }

    const cGames& games_;
    Table& table_;
    Generator& generator_;
    TableSurface& surface_;
    MoveFollower& follower_;
    // One position more than there are cards: a pile can hold every card of the game.
    static constexpr std::size_t kAllPiles = std::size_t{kCells} * kPilesPerCell;
    std::array<std::array<PicID, kCardObjects + 1>, kAllPiles> cardGrid_;
    std::array<std::int16_t, kAllPiles> topIndex_;
    std::array<std::int16_t, kCardObjects + 1> DealOrder_{};
};

}  // namespace varnello
