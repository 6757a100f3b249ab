#include "dealer.h"

#include "engine/rules/deal.h"

namespace varnello::test {

void Dealer::Deal(double number) {
    SelectRow(games, row_);  // the last deal may have set the base rank
    table.Clear();
    array.Init(number);
    const Playfield field{data_, games, generator_, table, array, trans_};
    SetCardValues(field);
    NewDeal(field);
}

}  // namespace varnello::test
