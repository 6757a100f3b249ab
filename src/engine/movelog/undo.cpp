#include "engine/movelog/log.h"

// Undo walks the log down, redo walks it up. A step may win the game; then the walk ends with it.
namespace varnello {
namespace {

constexpr int kQuickSpeed = 4;  // up to here a step is too quick for a sound

}  // namespace

void cTrans::UndoRecord(const TransRec& record, int Speed) {
    if (record.MoveKind == MoveKind::Uncover) {
        array_.Turn(array_.GetPicID(record.FromCell, record.FromPile, record.FromPos - 1),
                    FaceMode::Closed);
    }
    array_.MoveCard({.PicID = record.PicID,
                     .To = record.From(),
                     .tMod = MoveKind::UndoRedo,
                     .Speed = Speed,
                     .mCards = record.mCards});
    if (record.MoveKind == MoveKind::FromStock) array_.Turn(record.PicID, FaceMode::Closed);
    if (record.MoveKind == MoveKind::ToStock) array_.Turn(record.PicID, FaceMode::Open);
}

void cTrans::RedoRecord(const TransRec& record, int Speed) {
    array_.MoveCard({.PicID = record.PicID,
                     .To = record.To(),
                     .tMod = MoveKind::UndoRedo,
                     .Speed = Speed,
                     .mCards = record.mCards});
    if (record.MoveKind == MoveKind::Uncover) {
        array_.Turn(array_.GetPicID(record.FromCell, record.FromPile, record.FromPos - 1),
                    FaceMode::Open);
    }
    if (record.MoveKind == MoveKind::FromStock) array_.Turn(record.PicID, FaceMode::Open);
    if (record.MoveKind == MoveKind::ToStock) array_.Turn(record.PicID, FaceMode::Closed);
}

bool cTrans::Undo(int& Speed) {
    while (TransID_ >= 1) {
        const TransRec record = At(TransID_);
        if (record.InGroup) Speed = kQuickSpeed;
        if (Speed > kQuickSpeed) data_.PlaySound(Sound::Undo);
        UndoRecord(record, Speed);
        --TransID_;
        if (!At(TransID_).InGroup || !array_.Playing()) return true;
    }
    return false;
}

bool cTrans::Redo(int& Speed) {
    while (TransID_ != TransTop_) {
        if (At(TransID_).InGroup) Speed = kQuickSpeed;
        ++TransID_;
        const TransRec record = At(TransID_);
        if (Speed > kQuickSpeed) data_.PlaySound(Sound::Redo);
        RedoRecord(record, Speed);
        if (!record.InGroup || !array_.Playing()) return true;
    }
    return false;
}

void cTrans::UndoAll(int Speed) {
    while (UndoPossible() && array_.Playing()) Undo(Speed);
}

void cTrans::RedoAll(int Speed) {
    while (RedoPossible() && array_.Playing()) Redo(Speed);
}

}  // namespace varnello
