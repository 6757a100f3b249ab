#include "engine/movelog/log.h"

#include "engine/common/rounding.h"

namespace varnello {
namespace {

constexpr std::size_t kBlock = 100;  // records

}  // namespace

cTrans::cTrans(cArray& array, Table& table, cData& data)
    : array_(array), table_(table), data_(data), records_(kBlock + 1) {}

void cTrans::Clear() {
    TransID_ = 0;
    TransTop_ = 0;
    MultiFlag_ = false;
    records_.assign(kBlock + 1, {});
}

void cTrans::SaveTrans(const CardMove& move) {
    TransTop_ = ++TransID_;
    if (TransID_ > TransCap()) records_.resize(records_.size() + kBlock);
    const Place from = table_.Card(move.PicID).Loc;
    At(TransID_) = {.PicID = move.PicID,
                    .FromCell = from.Cell,
                    .FromPile = from.Pile,
                    .FromPos = from.Pos,
                    .DCell = move.To.Cell,
                    .DPile = move.To.Pile,
                    .DPos = move.To.Pos,
                    .mCards = Narrow16(move.mCards),
                    .MoveKind = move.tMod,
                    .InGroup = MultiFlag_};
}

void cTrans::EndMulti() {
    At(TransID_).InGroup = false;
    MultiFlag_ = false;
}

std::int16_t cTrans::GetTransID() const { return Saturate16(static_cast<std::int64_t>(TransID_)); }

std::int16_t cTrans::TransTop() const { return Saturate16(static_cast<std::int64_t>(TransTop_)); }

std::string_view ConvertCell(Cell cell) {
    switch (cell) {
        case Cell::Home: return say::Text("Tableau");
        case Cell::Stock: return say::Text("Stock");
        case Cell::Waste: return say::Text("Waste");
        case Cell::Goal: return say::Text("Foundation");
        case Cell::Res: return say::Text("Reserve");
    }
    return {};
}

}  // namespace varnello
