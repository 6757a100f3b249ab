#include "engine/movelog/history.h"

#include "engine/common/rounding.h"

namespace varnello {
namespace {

Phrase PlaceText(const Place& place) {
    return Say("%1 (Pile %2, Card %3)", {ConvertCell(place.Cell), place.Pile + 1, place.Pos + 1});
}

HistoryMark MarkOf(int index, int last) {
    if (index == last) return HistoryMark::Last;
    return index > last ? HistoryMark::Undone : HistoryMark::Applied;
}

}  // namespace

std::vector<HistoryRow> cTrans::CreateLV() const {
    std::vector<HistoryRow> rows;
    for (int i = 1; i <= TransTop(); ++i) {
        const auto index = static_cast<std::int16_t>(i);
        const TransRec& record = Record(index);
        rows.push_back({.Number = index,
                        .Source = PlaceText(record.From()),
                        .Destination = PlaceText(record.To()),
                        .Cards = Saturate16(record.mCards + 1),
                        .Mark = MarkOf(i, GetTransID())});
    }
    return rows;
}

}  // namespace varnello
