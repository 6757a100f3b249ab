#include "engine/definitions/describe.h"

#include <array>

#include "engine/definitions/check_row.h"

// What `say` has in store is chosen here, by the rules that the engine follows: a test plays what
// each sentence claims.
namespace varnello {
namespace {

using say::Text;
using Sentences = std::vector<Phrase>;

std::string_view OneOfRank(int rank) {
    constexpr std::array<std::string_view, kRanks> kWords{
        Text("an Ace"), Text("a 2"),     Text("a 3"),   Text("a 4"), Text("a 5"),
        Text("a 6"),    Text("a 7"),     Text("an 8"),  Text("a 9"), Text("a 10"),
        Text("a Jack"), Text("a Queen"), Text("a King")};
    return kWords.at(static_cast<std::size_t>(rank));
}

std::string_view Ranks(GoalType type) {
    switch (type) {
        case GoalType::Twos: return Text("2s");
        case GoalType::Kings: return Text("Kings");
        default: break;
    }
    return Text("Aces");
}

/// In a deck of one suit nobody asks for the suit.
std::string_view OrderWords(const GameRow& row, OrderCode order) {
    const bool oneSuit = SuitsOf(row) == 1;
    switch (order) {
        case OrderCode::DownSuit: return oneSuit ? Text("down") : Text("down in suit");
        case OrderCode::UpSuit: return oneSuit ? Text("up") : Text("up in suit");
        case OrderCode::EitherSuit:
            return oneSuit ? Text("up or down") : Text("up or down in suit");
        case OrderCode::DownColor: return Text("down in alternating colours");
        case OrderCode::UpColor: return Text("up in alternating colours");
        case OrderCode::EitherColor: return Text("up or down in alternating colours");
        case OrderCode::DownAny: return oneSuit ? Text("down") : Text("down regardless of suit");
        case OrderCode::UpAny: return oneSuit ? Text("up") : Text("up regardless of suit");
        case OrderCode::EitherAny:
            return oneSuit ? Text("up or down") : Text("up or down regardless of suit");
        case OrderCode::Anything:
        case OrderCode::Nothing: break;
    }
    return Text("in any order");
}

/// How a run lies from King down to Ace, by the order in which it goes up.
std::string_view RunWords(OrderCode order) {
    if (order == OrderCode::UpSuit) return Text("in suit");
    return order == OrderCode::UpColor ? Text("in alternating colours")
                                       : Text("regardless of suit");
}

bool IsSpider(const GameRow& row) { return row.Ext.Tag == Tag::Spider; }

Phrase Pack(const GameRow& row) {
    if (SuitsOf(row) == 1) return {say::kOneSuit, row.Ext.TotalCards};
    if (row.Ext.TotalCards == 104) return {say::kTwoPacks};
    if (row.Ext.TotalCards == 52) return {say::kOnePack};
    return {say::kHalfPack};
}

Sentences Aim(const GameRow& row) {
    const int cards = row.Ext.TotalCards;
    Sentences aim{{say::kAim, row.Goal.Piles, {cards}}};
    if (IsSpider(row)) {
        aim =
            SuitsOf(row) == 1
                ? Sentences{{say::kAimRuns, row.Goal.Piles, {cards}}}
                : Sentences{{say::kAimSuitRuns, row.Goal.Piles, {cards, RunWords(row.Goal.Order)}}};
    }
    aim.push_back(Pack(row));
    if (cards > 26 && SuitsOf(row) == 2) aim.push_back({say::kTwoSuits});
    return aim;
}

Phrase Tableau(const GameRow& row) {
    const int piles = row.Home.Piles;
    const int cards = row.Home.Cards;
    const int suits = SuitsOf(row);
    if (cards == 0) return {say::kEmptyTableau, piles};
    if (cards == 1) return {say::kOneCard, piles};
    switch (row.Home.HomeType) {
        case HomeType::Staircase: return {say::kStaircase, piles};
        case HomeType::ReverseStaircase: return {say::kReverseStaircase, piles, {cards}};
        case HomeType::BySuit:
            if (row.Ext.TotalCards != kBySuitCards) return {say::kSomeBySuit, piles, {suits}};
            if (piles == suits) return {say::kBySuitExactly, piles};
            return {say::kBySuit, piles, {suits == 4 ? Text("four") : Text("two")}};
        case HomeType::Cone: return {piles == 9 ? say::kCone : say::kWideCone, piles};
        case HomeType::AtRandom:
            return {cards == row.Ext.TotalCards ? say::kAtRandom : say::kRestAtRandom, piles};
        case HomeType::Rows:
        case HomeType::ClosedCorner: break;
    }
    return {say::kRows, piles, {cards}};
}

Phrase Reserve(const GameRow& row) {
    if (row.Res.Cards == 0) return {say::kReserve, row.Res.Piles};
    if (row.Res.Cards == row.Res.Piles) return {say::kReserveFull, row.Res.Piles};
    return {say::kReserveFilled, row.Res.Piles, {int{row.Res.Cards}}};
}

/// Which cards of the tableau are dealt closed; nothing when none is.
Sentences ClosedCards(const GameRow& row) {
    const int open = row.Home.CardsOpen;
    switch (row.Home.HomeType) {
        case HomeType::Rows:
            if (open > 0 && open < row.Home.Cards) return {{say::kLastOpen, open}};
            break;
        case HomeType::Staircase:
            if (open > 0 && row.Home.Piles > 1) return {{say::kTopsOpen}};
            break;
        case HomeType::ReverseStaircase:
            if (open > 0 && row.Home.Piles > 1) return {{say::kFirstPileOpen}};
            break;
        case HomeType::ClosedCorner: return {{say::kCornerClosed}};
        default: break;
    }
    return {};
}

Sentences Layout(const GameRow& row) {
    const int left = CardsLeftOnStock(row);
    Sentences layout{Tableau(row)};
    if (row.Res.Piles > 0) layout.push_back(Reserve(row));
    if (row.Waste && row.Waste->Cards > 0) layout.push_back({say::kWasteStarts});
    if (left > 0) layout.push_back({say::kStockLeft, left});
    if (const Sentences closed = ClosedCards(row); !closed.empty()) {
        layout.insert(layout.end(), closed.begin(), closed.end());
        layout.push_back({say::kUncovers});
    } else {
        const bool closedStock = left > 0 && row.Stock.StockType != StockType::Open;
        layout.push_back({closedStock ? say::kStockClosed : say::kAllOpen});
    }
    return layout;
}

/// What going round means where cards lie in this order: nothing in some.
Sentences GoingRound(OrderCode order, say::Sentence down, say::Sentence up, say::Sentence either) {
    if (BuildsDown(order)) return {{down}};
    if (BuildsUp(order)) return {{up}};
    if (BuildsEitherWay(order)) return {{either}};
    return {};
}

void Append(Sentences& to, const Sentences& more) { to.insert(to.end(), more.begin(), more.end()); }

Sentences Building(const GameRow& row) {
    const OrderCode order = row.Home.Order;
    if (order == OrderCode::Nothing) return {{say::kNothingLaid}};
    Sentences building{{say::kBuilt, 0, {OrderWords(row, order)}}};
    if (row.Home.AK != 0) {
        Append(building, GoingRound(order, say::kKingOnAce, say::kAceOnKing, say::kNeighbours));
    }
    return building;
}

/// Whether more than one card can be moved at a time.
bool HasGroups(const GameRow& row) {
    const bool hasRoom = row.Home.Piles > 1 || row.Res.Piles > 0 || !HasStackLimit(row.Ext.Tag);
    return row.Home.MultiMove != 0 && MultiOrderOf(row) != OrderCode::Nothing && hasRoom;
}

Phrase Groups(const GameRow& row) {
    if (!HasGroups(row)) return {say::kOneAtATime};
    const PhraseWord order = OrderWords(row, MultiOrderOf(row));
    if (!HasStackLimit(row.Ext.Tag)) return {say::kGroups, 0, {order}};
    return {row.Res.Piles > 0 ? say::kGroupsByPlaces : say::kGroupsByPiles, 0, {order}};
}

Phrase EmptyPile(const GameRow& row) {
    if (row.Ext.Tag == Tag::Penguin) {
        if (row.Goal.GoalType == GoalType::FirstCard) return {say::kTakesBelowBase};
        return {say::kTakesRank, 0, {OneOfRank(kKing)}};  // below the Ace
    }
    if (row.Home.EmptyNum == kAnyCard) {
        return {HasGroups(row) ? say::kTakesAnyGroup : say::kTakesAnyCard};
    }
    if (row.Home.EmptyNum >= 0) return {say::kTakesRank, 0, {OneOfRank(row.Home.EmptyNum)}};
    return {say::kTakesNone};
}

Phrase FoundationStart(const GameRow& row) {
    const int cards = row.Goal.Cards;
    switch (row.Goal.GoalType) {
        case GoalType::WholeRuns: return {say::kBeginEmpty};
        case GoalType::AcesAndKings: return {say::kHalfKings};
        case GoalType::SuitpileRank: return {say::kRisingRanks, 0, {OneOfRank(cards - 1)}};
        case GoalType::FirstCard: return {say::kFirstCard, cards};
        case GoalType::FirstCards: return {say::kFirstCards, cards};
        case GoalType::Aces:
        case GoalType::Twos:
        case GoalType::Kings: break;
    }
    if (IsSpider(row)) return {say::kBeginEmpty};
    if (cards == 0) return {say::kBeginWithAces};
    if (cards < SuitPilesOf(row)) return {say::kAcesStart, cards};
    return {cards == 2 ? say::kBothStart : say::kAllStart, cards, {Ranks(row.Goal.GoalType)}};
}

Sentences Foundations(const GameRow& row) {
    if (IsSpider(row)) return {{say::kRunsOnly}, FoundationStart(row)};
    const bool twoWays = row.Ext.Tag == Tag::FreecellAK && row.Goal.Piles > 2;
    Sentences foundations{{twoWays ? say::kFoundationsUpAndDown : say::kFoundations,
                           0,
                           {OrderWords(row, row.Goal.Order)}}};
    if (row.Goal.AK != 0) {
        const OrderCode order = row.Goal.Order;
        if (!twoWays) {
            Append(foundations,
                   GoingRound(order, say::kKingAfterAce, say::kAceAfterKing, say::kRoundBothWays));
        } else if (BuildsUp(order) || BuildsEitherWay(order)) {
            foundations.push_back({say::kRoundBothWays});
        } else {
            foundations.push_back({say::kKingAfterAce});
        }
    }
    foundations.push_back(FoundationStart(row));
    foundations.push_back({say::kTakenBack});
    return foundations;
}

Sentences Stock(const GameRow& row) {
    if (row.Stock.StockType == StockType::Open) return {{say::kStockOpen}};
    if (row.Stock.StockMove == StockMove::Row) return {{say::kStockRow}};
    const bool redeals = row.Stock.StockNum == StockNum::Redeal;
    return {{say::kStockToWaste}, {redeals ? say::kStockRedeal : say::kStockOnce}};
}

Phrase Autoplay(const GameRow& row) {
    if (IsSpider(row)) return {say::kRunsGoUp};
    return {row.Ext.DisAutoPlay != 0 ? say::kNoAutoplay : say::kAutoplay};
}

}  // namespace

std::string GameFact::English() const {
    std::string english;
    for (const Phrase& sentence : Sentences) {
        if (!english.empty()) english += ' ';
        english += sentence.English();
    }
    return english;
}

std::vector<GameFact> Describe(const GameRow& row) {
    std::vector<GameFact> facts{{Text("Aim"), Aim(row)},
                                {Text("Layout"), Layout(row)},
                                {Text("Building"), Building(row)},
                                {Text("Groups"), {Groups(row)}},
                                {Text("Empty piles"), {EmptyPile(row)}},
                                {Text("Foundations"), Foundations(row)}};
    if (CardsLeftOnStock(row) > 0) facts.push_back({Text("Stock"), Stock(row)});
    facts.push_back({Text("Autoplay"), {Autoplay(row)}});
    return facts;
}

}  // namespace varnello
