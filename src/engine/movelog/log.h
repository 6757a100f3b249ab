#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/board/board.h"
#include "engine/settings/data.h"

namespace varnello {

/// One record of the move log: one call of `MoveCard`, however many cards it carried.
struct TransRec {
    PicID PicId = 0;  ///< with `mCards` above 0 the lowest card of the group
    Place From;
    Place To;
    std::int16_t mCards = 0;  ///< cards above `PicId` that moved with it
    varnello::MoveKind MoveKind = MoveKind::Play;
    bool InGroup = false;  ///< this record and the next belong to the same undo step
};

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
    bool UndoPossible() const { return transID_ >= 1; }
    bool RedoPossible() const { return transID_ < transTop_; }

    /// Joins the moves until `EndMulti` into one undo step. Brackets don't nest: the first end
    /// ends.
    void StartMulti() { multiFlag_ = true; }
    void EndMulti();

private:
    void UndoRecord(const TransRec& record, int Speed);
    void RedoRecord(const TransRec& record, int Speed);
    TransRec& At(std::size_t index) { return records_[index]; }

    cArray& array_;
    Table& table_;
    cData& data_;
    std::size_t transID_ = 0;   ///< index of the last applied record
    std::size_t transTop_ = 0;  ///< index of the last stored record
    bool multiFlag_ = false;
    std::vector<TransRec> records_;
};

/// The word that the move history shows for a cell.
std::string_view ConvertCell(Cell cell);

}  // namespace varnello
