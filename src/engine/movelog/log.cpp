#include "engine/movelog/log.h"

#include "engine/common/rounding.h"

namespace varnello {
namespace {

constexpr std::size_t kBlock = 100;  // the log grows in blocks, so that a move seldom allocates

}  // namespace

cTrans::cTrans(cArray& array, Table& table, cData& data)
    : array_(array), table_(table), data_(data), records_(kBlock + 1) {}

void cTrans::Clear() {
    transID_ = 0;
    transTop_ = 0;
    multiFlag_ = false;
    records_.assign(kBlock + 1, {});
}

void cTrans::SaveTrans(const CardMove& move) {
    transTop_ = ++transID_;
    if (transID_ >= records_.size()) records_.resize(records_.size() + kBlock);
    At(transID_) = {.PicId = move.PicId,
                    .From = table_.Card(move.PicId).Loc,
                    .To = move.To,
                    .mCards = Narrow16(move.mCards),
                    .MoveKind = move.tMod,
                    .InGroup = multiFlag_};
}

void cTrans::EndMulti() {
    At(transID_).InGroup = false;
    multiFlag_ = false;
}

std::int16_t cTrans::GetTransID() const { return Saturate16(static_cast<std::int64_t>(transID_)); }

std::int16_t cTrans::TransTop() const { return Saturate16(static_cast<std::int64_t>(transTop_)); }

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
