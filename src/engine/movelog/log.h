#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/board/board.h"
#include "engine/settings/data.h"

namespace varnello {

/// One record of the move log: one call of `MoveCard`, however many cards it carried.
struct TransRec {
    varnello::PicID PicID = 0;   ///< with `mCards` above 0 the lowest card of the group
    Cell FromCell = Cell::Home;  ///< where the card lay
    std::int16_t FromPile = 0;
    std::int16_t FromPos = 0;
    Cell DCell = Cell::Home;  ///< where it went
    std::int16_t DPile = 0;
    std::int16_t DPos = 0;
    std::int16_t mCards = 0;  ///< cards above `PicID` that moved with it
    varnello::MoveKind MoveKind = MoveKind::Play;
    bool InGroup = false;  ///< this record and the next belong to the same undo step

    Place From() const { return {FromCell, FromPile, FromPos}; }
    Place To() const { return {DCell, DPile, DPos}; }
};

struct HistoryRow;

/// The moves of the running game, and undo and redo over them. A new game begins with an empty log.
class cTrans {
public:
    cTrans(cArray& array, Table& table, cData& data);

    /// Forgets everything, for a new game.
    void Clear();
    void SaveTrans(const CardMove& move);

    /// Takes back one undo step. `Speed` is the number of steps of a flight; above 4 the step has a
    /// sound. A step of several records sets it to 4 for the caller too. False at the log's start.
    bool Undo(int& Speed);
    /// Repeats one undo step; false at the log's end.
    bool Redo(int& Speed);
    /// Both stop at a step that wins the game.
    void UndoAll(int Speed);
    void RedoAll(int Speed);

    /// Moves made and not undone; the game's move counter. Stays at the limit of 16 bits.
    std::int16_t GetTransID() const;
    std::int16_t TransTop() const;
    /// Record 1 to `TransTop`; record 0 is all zero.
    const TransRec& Record(std::int16_t index) const {
        return records_[static_cast<std::size_t>(index)];
    }
    bool UndoPossible() const { return TransID_ >= 1; }
    bool RedoPossible() const { return TransID_ < TransTop_; }

    /// Joins the moves until `EndMulti` into one undo step. Brackets don't nest: the first end
    /// ends.
    void StartMulti() { MultiFlag_ = true; }
    void EndMulti();

    /// The whole log as people read it, the undone moves included.
    std::vector<HistoryRow> CreateLV() const;

private:
    void UndoRecord(const TransRec& record, int Speed);
    void RedoRecord(const TransRec& record, int Speed);
    TransRec& At(std::size_t index) { return records_[index]; }
    /// The highest index that there is room for; it grows in blocks, so that a move seldom
    /// allocates.
    std::size_t TransCap() const { return records_.size() - 1; }

    cArray& array_;
    Table& table_;
    cData& data_;
    std::size_t TransID_ = 0;   ///< index of the last applied record
    std::size_t TransTop_ = 0;  ///< index of the last stored record
    bool MultiFlag_ = false;
    std::vector<TransRec> records_;
};

/// The word that the move history shows for a cell.
std::string_view ConvertCell(Cell cell);

}  // namespace varnello
