#include "engine/movelog/log.h"

// Undo walks the log down, redo walks it up. A win during a redo may end this game and begin
// another one before `MoveCard` returns; from then on nothing here touches the cards.
namespace varnello {
namespace {

constexpr std::int16_t kQuickSpeed = 4;  // up to here a step is too quick for a sound

}  // namespace

void cTrans::UndoRecord(const TransRec& record, std::int16_t Speed) {
    const std::uint64_t serial = array_.Serial();
    if (record.MoveKind == MoveKind::Uncover) {
        const PicID opened =
            array_.GetPicID(record.From.Cell, record.From.Pile, record.From.Pos - 1);
        table_.Card(opened).FaceMode = FaceMode::Closed;
    }
    array_.MoveCard(record.PicId, record.From, MoveKind::UndoRedo, Speed, record.mCards,
                    FaceMode::Open);
    if (array_.Serial() != serial) return;
    KesCard& card = table_.Card(record.PicId);
    if (record.MoveKind == MoveKind::FromStock) card.FaceMode = FaceMode::Closed;
    if (record.MoveKind == MoveKind::ToStock) card.FaceMode = FaceMode::Open;
}

void cTrans::RedoRecord(const TransRec& record, std::int16_t Speed) {
    const std::uint64_t serial = array_.Serial();
    array_.MoveCard(record.PicId, record.To, MoveKind::UndoRedo, Speed, record.mCards,
                    FaceMode::Open);
    if (array_.Serial() != serial) return;
    if (record.MoveKind == MoveKind::Uncover) {
        const PicID opened =
            array_.GetPicID(record.From.Cell, record.From.Pile, record.From.Pos - 1);
        table_.Card(opened).FaceMode = FaceMode::Open;
    }
    KesCard& card = table_.Card(record.PicId);
    if (record.MoveKind == MoveKind::FromStock) card.FaceMode = FaceMode::Open;
    if (record.MoveKind == MoveKind::ToStock) card.FaceMode = FaceMode::Closed;
}

bool cTrans::Undo(std::int16_t& Speed) {
    const std::uint64_t serial = array_.Serial();
    while (transID_ >= 1) {
        const TransRec record = At(transID_);
        if (record.InGroup) Speed = kQuickSpeed;
        if (Speed > kQuickSpeed) data_.PlaySound(Sound::Undo);
        UndoRecord(record, Speed);
        --transID_;
        if (!At(transID_).InGroup || array_.Serial() != serial) return true;
    }
    return false;
}

bool cTrans::Redo(std::int16_t& Speed) {
    const std::uint64_t serial = array_.Serial();
    while (transID_ != transTop_) {
        if (At(transID_).InGroup) Speed = kQuickSpeed;
        ++transID_;
        const TransRec record = At(transID_);
        if (Speed > kQuickSpeed) data_.PlaySound(Sound::Redo);
        RedoRecord(record, Speed);
        if (!record.InGroup || array_.Serial() != serial) return true;
    }
    return false;
}

void cTrans::UndoAll(std::int16_t Speed) {
    const std::uint64_t serial = array_.Serial();
    while (UndoPossible() && array_.Serial() == serial) Undo(Speed);
}

void cTrans::RedoAll(std::int16_t Speed) {
    const std::uint64_t serial = array_.Serial();
    while (RedoPossible() && array_.Serial() == serial) Redo(Speed);
}

}  // namespace varnello
