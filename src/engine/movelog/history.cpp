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

std::vector<HistoryRow> HistoryOf(const cTrans& log) {
    std::vector<HistoryRow> rows;
    for (int i = 1; i <= log.TransTop(); ++i) {
        const auto index = static_cast<std::int16_t>(i);
        const TransRec& record = log.Record(index);
        rows.push_back({.Number = index,
                        .Source = PlaceText(record.From),
                        .Destination = PlaceText(record.To),
                        .Cards = Saturate16(record.mCards + 1),
                        .Mark = MarkOf(i, log.GetTransID())});
    }
    return rows;
}

}  // namespace varnello
