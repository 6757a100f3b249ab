#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "../deals/dealer.h"
#include "engine/definitions/check_row.h"
#include "engine/definitions/describe.h"
#include "hand_board.h"

// The rules in words: whatever a sentence claims is tried on the table, for the games of the
// catalogue and for rows made up at random.
namespace varnello::test {
namespace {

constexpr std::array<std::string_view, 13> kOneOfRank{"an Ace", "a 2",     "a 3",   "a 4", "a 5",
                                                      "a 6",    "a 7",     "an 8",  "a 9", "a 10",
                                                      "a Jack", "a Queen", "a King"};

/// The row on a layout with room for the most piles of each kind, none near another. What is said
/// of a game doesn't depend on where its piles stand.
GameRow Roomy(GameRow row) {
    const auto stand = [](auto& def, int top) {
        def.StartX = -1700;
        def.StartY = I16(top);
        def.PileWidth = 1100;
        def.PosWidth = 0;
        def.Div = 20;
        def.PileOrder = PileOrder::Down;
    };
    row.Ext.BaseX = 11900;
    row.Ext.BaseY = 0;
    stand(row.Res, 0);
    stand(row.Goal, 1500);
    stand(row.Home, 3000);
    row.Home.PosWidth = 40;
    row.Home.Div = 9;
    row.Home.DivWidth = 4000;
    row.Stock.StartX = 12000;
    row.Stock.StartY = 200;
    if (row.Waste) row.Waste->StartX = 12000;
    if (row.Waste) row.Waste->StartY = 2000;
    return row;
}

/// One game, dealt, with what a sentence about it needs to be tried.
struct Trial {
    explicit Trial(const GameRow& game) : row(Roomy(game)), deal(row) {
        deal.Deal(4711);
        for (PicID id = 0; id < row.Ext.TotalCards; ++id) {
            const KesCard& card = deal.table.Card(id);
            suits.insert("HSDC"[card.Suit]);
            if (card.Loc.Cell == Cell::Home && card.Loc.Pos >= 0) tableau.push_back(id);
        }
        // The last card of the deck is dealt first.
        std::reverse(tableau.begin(), tableau.end());
    }

    const GameRow row;
    Dealer deal;
    std::set<char> suits;
    std::vector<PicID> tableau;  ///< in the order dealt
    const GameFact* fact = nullptr;
    const Phrase* sentence = nullptr;

    bool Says(std::string_view words) const {
        return fact->English().find(words) != std::string::npos;
    }
    int N() const { return sentence->Count; }
    int Number(std::size_t i = 0) const { return std::get<int>(sentence->Words.at(i)); }
    std::string_view Words(std::size_t i = 0) const {
        return std::get<std::string_view>(sentence->Words.at(i));
    }

    // The deal.
    int Size(Cell cell, int pile) const { return deal.array.GetTop(cell, pile) + 1; }
    std::vector<int> Sizes(Cell cell) const {
        std::vector<int> sizes;
        for (int pile = 0; pile < deal.games.Piles(cell); ++pile) sizes.push_back(Size(cell, pile));
        return sizes;
    }
    const KesCard& At(Cell cell, int pile, int pos = 0) const {
        return deal.table.Card(deal.array.GetPicID(cell, pile, pos));
    }
    template <typename Test>
    bool All(Test&& test) const {
        const std::vector<PicID> cards = deal.table.VisibleCards();
        return std::all_of(cards.begin(), cards.end(),
                           [&](PicID id) { return test(deal.table.Card(id)); });
    }
    int Count(int rank, int suit = -1) const {
        const std::vector<PicID> cards = deal.table.VisibleCards();
        return static_cast<int>(std::count_if(cards.begin(), cards.end(), [&](PicID id) {
            const KesCard& card = deal.table.Card(id);
            return (rank < 0 || card.Num == rank) && (suit < 0 || card.Suit == suit);
        }));
    }
    int Cards() const { return Count(-1); }
    /// Whether just those tableau cards are closed that the test names, and no other but the
    /// stock's.
    template <typename Test>
    bool Closed(Test&& test) const {
        return All([&](const KesCard& card) {
            const bool stock =
                card.Loc.Cell == Cell::Stock && row.Stock.StockType != StockType::Open;
            const bool closed = card.Loc.Cell == Cell::Home ? test(card.Loc) : stock;
            return (card.FaceMode == FaceMode::Closed) == closed;
        });
    }

    // The moves, on a board laid out by hand with what the deal has decided.
    struct Board : HandBoard {
        Board(const Trial& trial, const std::string& piles) : HandBoard(trial.row, piles) {
            games = trial.deal.games;
        }
        std::string After(const std::string& acts) {
            Do(acts);
            return Text();
        }
    };
    Board Lay(const std::string& piles) const { return {*this, piles}; }
    /// A King to an Ace as a pile's text, or fewer cards from the bottom up, as an order's words
    /// say.
    std::string Run(std::string_view order, std::size_t cards = 13) const {
        const bool up = order.starts_with("up") && !order.starts_with("up or down");
        const bool mixed = order.find("alternating") != order.npos;
        return test::Cards((up ? kUp : kDown).substr(0, cards), mixed ? "HS" : "H");
    }

    struct Pair {
        int below, above;
        char suitBelow, suitAbove;
    };
    /// Whether these words let the upper card lie on the lower; `round` what else is said of ranks.
    static bool Allows(std::string_view order, const Pair& p, bool kingOnAce, bool aceOnKing) {
        if (order == "in any order") return true;
        const bool up = order.starts_with("up");
        const bool down = order.find("down") != order.npos;
        const bool red = p.suitBelow == 'H' || p.suitBelow == 'D';
        const bool redAbove = p.suitAbove == 'H' || p.suitAbove == 'D';
        if (order.ends_with("in suit") && p.suitBelow != p.suitAbove) return false;
        if (order.ends_with("colours") && red == redAbove) return false;
        if (p.below == kAce && p.above == kKing) return kingOnAce;
        if (p.below == kKing && p.above == kAce) return aceOnKing;
        return (up && p.above == p.below + 1) || (down && p.above == p.below - 1);
    }
    /// Tries every card on a heart of every rank that is the pile's top card.
    template <typename Expect>
    bool TriesAll(Cell cell, int pile, Expect&& expect) const {
        const char letter = cell == Cell::Home ? 't' : 'g';
        const std::string to = letter + std::to_string(pile);
        Board board = Lay(to + " 2H, w0 3S+");
        KesCard& below = board.table.Card(0);
        KesCard& above = board.table.Card(1);
        const Place start = above.Loc;
        for (int low = 0; low < 13; ++low) {
            for (int high = 0; high < 13; ++high) {
                for (const char suit : suits) {
                    const int number = static_cast<int>(std::string("HSDC").find(suit));
                    below.SetValue(0, I16(low), 0);
                    above.SetValue(I16(number), I16(high), I16(number + 4));
                    board.Do(TextOf(above) + '>' + to);
                    const bool moved = above.Loc != start;
                    if (moved) board.Do("undo");
                    if (moved != expect({low, high, 'H', suit})) return false;
                }
            }
        }
        return true;
    }
    /// The ranks that an empty pile takes.
    std::set<int> TakenByEmpty(Cell cell, int pile) const {
        const std::string to = (cell == Cell::Home ? 't' : 'g') + std::to_string(pile);
        std::set<int> taken;
        for (int rank = 0; rank < 13; ++rank) {
            const std::string card{kUp[static_cast<std::size_t>(rank)], 'H'};
            if (Lay("w0 " + card).After(card + '>' + to) == to + ' ' + card) taken.insert(rank);
        }
        return taken;
    }
    /// All piles and cells but the first pile and so many others hold a card of the second pack.
    std::string Filled(int freePiles, int freeCells) const {
        std::string text;
        int card = 0;
        const auto fill = [&](char letter, int from, int to) {
            for (int pile = from; pile < to; ++pile, ++card) {
                text += std::string(", ") + letter + std::to_string(pile) + ' ' +
                        kUp[static_cast<std::size_t>(card % 13)] + "HSDC"[card / 13] + '+';
            }
        };
        fill('t', 1 + freePiles, row.Home.Piles);
        fill('r', freeCells, row.Res.Piles);
        return text;
    }
    /// Whether so many cards of a run can be lifted with this many other places free.
    bool Lifts(int cards, int freePiles, int freeCells) const {
        const std::string run = Run(Words(), static_cast<std::size_t>(cards));
        return Lay("t0 " + run + Filled(freePiles, freeCells)).PicksUp(run.substr(0, 2));
    }
    /// Only what runs as told is lifted; where ranks may go round nothing is told.
    bool LiftsPairs(const std::function<bool(const Pair&)>& expect) const {
        Board board = Lay("t0 2H 3S+");
        for (int low = 0; low < 13; ++low) {
            for (int high = 0; high < 13; ++high) {
                for (const char suit : suits) {
                    if (std::abs(low - high) == 12) continue;
                    const int number = static_cast<int>(std::string("HSDC").find(suit));
                    board.table.Card(0).SetValue(0, I16(low), 0);
                    board.table.Card(1).SetValue(I16(number), I16(high), I16(number + 4));
                    const bool lifted = board.PicksUp(TextOf(board.table.Card(0)));
                    if (lifted != expect({low, high, 'H', suit})) return false;
                }
            }
        }
        return true;
    }
    bool LiftsAsTold(int mostFreeCells, bool limited) const {
        for (int piles = 0; piles <= std::min(1, row.Home.Piles - 1); ++piles) {
            for (int cells = 0; cells <= std::min(2, mostFreeCells); ++cells) {
                const int most = limited ? (cells + 1) * (piles + 1) : 12;
                if (!Lifts(most, piles, cells)) return false;
                if (Lifts(most + 1, piles, cells) == limited) return false;
            }
        }
        return LiftsPairs([this](const Pair& p) { return Allows(Words(), p, false, false); });
    }
    bool FoundationsBuild() const {
        const Phrase& first = fact->Sentences.front();
        const auto order = std::get<std::string_view>(first.Words.at(0));
        const bool twoWays = first.English().starts_with("The first two");
        const bool round = Says("upwards");
        for (const int pile : {0, 1, row.Goal.Piles - 1}) {
            const std::string_view words = twoWays && pile >= 2 ? "down in suit" : order;
            const bool up = words.starts_with("up");
            const bool down = words.find("down") != words.npos;
            const bool king = Says("after an Ace comes a King") ? down : round && down;
            const bool ace = Says("after a King comes an Ace") ? up : round && up;
            if (!TriesAll(Cell::Goal, pile,
                          [&](const Pair& p) { return Allows(words, p, king, ace); })) {
                return false;
            }
        }
        // The thirteenth card is taken, and no other.
        const std::string run = Run(order, 13);
        const std::string pile = test::Cards(kUp.substr(0, 11), "H", "+") + ' ' + run.substr(15, 2);
        const std::string next = run.substr(18, 2);
        Board twelve = Lay("g0 " + pile + ", w0 " + next);
        Board thirteen = Lay("g0 QH+ " + pile + ", w0 " + next);
        return twelve.After(next + ">g0") != "w0 " + next + ", g0 " + pile &&
               thirteen.After(next + ">g0") == "w0 " + next + ", g0 QH+ " + pile;
    }
    /// Whether a card that fits goes up by itself from everywhere, after a move, if it is switched
    /// on.
    bool GoesUp(bool on) const {
        const std::string order(
            std::get<std::string_view>(Describe(row).at(5).Sentences.front().Words.at(0)));
        const std::string run = Run(order);
        const std::string low = run.substr(15, 2), high = run.substr(18, 2);
        for (const char* from : {"t0 ", "r0 ", "w0 "}) {
            if (*from == 'r' && row.Res.Piles == 0) continue;
            Board board = Lay(std::string(from) + high + ", g0 " + low);
            board.Autoplay(on);
            if (board.After("autoplay") != "g0 " + low + ' ' + high) return false;
        }
        return true;
    }
};

using namespace say;
using T = const Trial&;

bool GoalsHold(T t, int rank, int count) {
    const std::vector<int> sizes = t.Sizes(Cell::Goal);
    for (int pile = 0; pile < static_cast<int>(sizes.size()); ++pile) {
        const bool started = sizes[static_cast<std::size_t>(pile)] == 1;
        if (started != (pile < count)) return false;
        if (started && t.At(Cell::Goal, pile).Num != rank) return false;
    }
    return true;
}

bool EmptyGoalsTake(T t, int from, int rank) {
    for (int pile = from; pile < t.row.Goal.Piles; ++pile) {
        if (t.TakenByEmpty(Cell::Goal, pile) != std::set<int>{rank}) return false;
    }
    return true;
}

bool ReserveTakesOneOfAnyKind(T t) {
    return t.Sizes(Cell::Res).size() == static_cast<std::size_t>(t.N()) &&
           t.Lay("w0 9H").After("9H>r0") == "r0 9H" && t.Lay("w0 AC").After("AC>r0") == "r0 AC" &&
           t.Lay("w0 8H 9H").After("9H>r0 8H>r0") == "w0 8H, r0 9H";
}

bool ReserveFilled(T t, int filled) {
    const std::vector<int> sizes = t.Sizes(Cell::Res);
    return static_cast<int>(std::count(sizes.begin(), sizes.end(), 1)) == filled;
}

bool RunsGoUp(T t, std::string_view order) {
    const std::string suit = t.Run("down"), mixed = t.Run("down in alternating colours");
    const auto goes = [&](const std::string& run) {
        return t.Lay("t0 " + run).After("autoplay").starts_with("g");
    };
    return goes(suit) == (order != "in alternating colours") &&
           (t.suits.size() == 1 || goes(mixed) == (order != "in suit"));
}

template <typename Height>
bool Heights(T t, Height&& height) {
    const std::vector<int> sizes = t.Sizes(Cell::Home);
    if (t.N() != static_cast<int>(sizes.size())) return false;
    for (std::size_t pile = 0; pile < sizes.size(); ++pile) {
        if (sizes[pile] != height(static_cast<int>(pile))) return false;
    }
    return true;
}

bool InRows(T t) {
    return Heights(t, [&](int pile) { return (t.Number() + t.N() - 1 - pile) / t.N(); });
}

bool BySuit(T t, int piles) {
    bool right = t.N() == t.row.Home.Piles && piles == static_cast<int>(t.suits.size());
    for (const PicID id : t.tableau) {
        const KesCard& card = t.deal.table.Card(id);
        right = right && card.Suit == card.Loc.Pile && card.Loc.Pile < piles;
    }
    return right;
}

bool Cone(T t) {
    constexpr std::array kHeights{4, 5, 6, 7, 8, 7, 6, 5, 4};
    return Heights(t, [&](int pile) { return pile < 9 ? kHeights[std::size_t(pile)] : 0; });
}

bool TableauBuilds(T t) {
    const auto order = std::get<std::string_view>(t.fact->Sentences.front().Words.at(0));
    const bool both = t.Says("may lie on one another");
    return t.TriesAll(Cell::Home, 0, [&](const Trial::Pair& p) {
        return Trial::Allows(order, p, both || t.Says("a King may lie on an Ace"),
                             both || t.Says("an Ace may lie on a King"));
    });
}

struct Claim {
    Sentence Text;
    bool (*Holds)(T);
};

const Claim kClaims[] = {
    {kAim,
     [](T t) {
         return t.Cards() == t.Number() && t.row.Goal.Piles == t.N() &&
                t.row.Ext.Tag != Tag::Spider;
     }},
    {kAimRuns, [](T t) { return RunsGoUp(t, "") && t.Cards() == t.Number(); }},
    {kAimSuitRuns, [](T t) { return RunsGoUp(t, t.Words(1)); }},
    {kHalfPack,
     [](T t) {
         return t.Cards() == 26 && t.Count(-1, 0) == 13 && t.Count(-1, 1) == 13 &&
                t.Count(7, 0) == 1;
     }},
    {kOnePack, [](T t) { return t.Cards() == 52 && t.Count(7) == 4; }},
    {kTwoPacks, [](T t) { return t.Cards() == 104 && t.Count(7) == 8; }},
    {kOneSuit, [](T t) { return t.Cards() == t.N() && t.Count(-1, 0) == t.N(); }},
    {kTwoSuits,
     [](T t) { return 2 * t.Count(-1, 0) == t.Cards() && t.Count(-1, 1) == t.Count(-1, 0); }},

    {kEmptyTableau, [](T t) { return Heights(t, [](int) { return 0; }); }},
    {kOneCard, [](T t) { return Heights(t, [](int pile) { return pile == 0 ? 1 : 0; }); }},
    {kRows, InRows},
    {kStaircase, [](T t) { return Heights(t, [](int pile) { return pile + 1; }); }},
    {kReverseStaircase,
     [](T t) {
         std::map<int, int> rows;
         for (const PicID id : t.tableau) ++rows[t.deal.table.Card(id).Loc.Pos];
         for (const auto& [row, cards] : rows) {
             if (row > 0 && cards >= rows[row - 1]) return false;
         }
         return static_cast<int>(t.tableau.size()) == t.Number() && t.N() == t.row.Home.Piles;
     }},
    {kBySuit,
     [](T t) {
         return BySuit(t, t.Words() == "four" ? 4 : 2) && t.Cards() == int(t.tableau.size());
     }},
    {kBySuitExactly, [](T t) { return BySuit(t, t.N()) && t.Cards() == int(t.tableau.size()); }},
    {kSomeBySuit, [](T t) { return BySuit(t, t.Number()) && t.tableau.size() == 52; }},
    {kCone, [](T t) { return Cone(t) && t.N() == 9; }},
    {kWideCone, Cone},
    {kAtRandom, [](T t) { return t.Cards() == int(t.tableau.size()); }},
    {kRestAtRandom,
     [](T t) { return t.Cards() > int(t.tableau.size()) && t.Size(Cell::Stock, 0) == 0; }},
    {kReserve, [](T t) { return ReserveFilled(t, 0) && ReserveTakesOneOfAnyKind(t); }},
    {kReserveFilled,
     [](T t) { return ReserveFilled(t, t.Number()) && ReserveTakesOneOfAnyKind(t); }},
    {kReserveFull, [](T t) { return ReserveFilled(t, t.N()) && ReserveTakesOneOfAnyKind(t); }},
    {kWasteStarts, [](T t) { return t.Size(Cell::Waste, 0) == 1; }},
    {kStockLeft, [](T t) { return t.Size(Cell::Stock, 0) == t.N(); }},
    {kAllOpen,
     [](T t) { return t.All([](auto& card) { return card.FaceMode == FaceMode::Open; }); }},
    {kStockClosed, [](T t) { return t.Closed([](const Place&) { return false; }); }},
    {kLastOpen,
     [](T t) {
         const std::set<PicID> open(t.tableau.end() - t.N(), t.tableau.end());
         return t.Closed([&](const Place& at) {
             return !open.contains(t.deal.array.GetPicID(Cell::Home, at.Pile, at.Pos));
         });
     }},
    {kTopsOpen,
     [](T t) {
         return t.Closed([&](const Place& at) { return at.Pos + 1 < t.Size(Cell::Home, at.Pile); });
     }},
    {kFirstPileOpen, [](T t) { return t.Closed([](const Place& at) { return at.Pile > 0; }); }},
    {kCornerClosed,
     [](T t) { return t.Closed([](const Place& at) { return at.Pile < 4 && at.Pos < 3; }); }},
    {kUncovers,
     [](T t) {
         auto board = t.Lay("t0 -9C KH");
         board.array.MoveCard({.PicID = 1, .To = {Cell::Waste, 0, 0}});
         return board.Text() == "t0 9C, w0 KH";
     }},

    {kBuilt, TableauBuilds},
    {kKingOnAce, TableauBuilds},
    {kAceOnKing, TableauBuilds},
    {kNeighbours, TableauBuilds},
    {kNothingLaid,
     [](T t) { return t.TriesAll(Cell::Home, 0, [](const Trial::Pair&) { return false; }); }},

    {kOneAtATime, [](T t) { return t.LiftsPairs([](const Trial::Pair&) { return false; }); }},
    {kGroups, [](T t) { return t.LiftsAsTold(t.row.Res.Piles, false); }},
    {kGroupsByPlaces, [](T t) { return t.LiftsAsTold(t.row.Res.Piles, true); }},
    {kGroupsByPiles, [](T t) { return t.LiftsAsTold(0, true); }},

    {kTakesAnyGroup,
     [](T t) {
         const auto order =
             std::get<std::string_view>(Describe(t.row).at(3).Sentences.front().Words.at(0));
         const std::string pair = t.Run(order, 2);
         const bool moved = t.row.Home.Piles == 1 ||
                            t.Lay("t1 " + pair).After(pair.substr(0, 2) + ">t0") == "t0 " + pair;
         return moved && t.TakenByEmpty(Cell::Home, 0).size() == 13;
     }},
    {kTakesAnyCard, [](T t) { return t.TakenByEmpty(Cell::Home, 0).size() == 13; }},
    {kTakesRank,
     [](T t) {
         const auto rank = std::find(kOneOfRank.begin(), kOneOfRank.end(), t.Words());
         return t.TakenByEmpty(Cell::Home, 0) == std::set{int(rank - kOneOfRank.begin())};
     }},
    {kTakesBelowBase,
     [](T t) {
         return t.TakenByEmpty(Cell::Home, 0) == std::set{(t.At(Cell::Goal, 0).Num + 12) % 13};
     }},
    {kTakesNone, [](T t) { return t.TakenByEmpty(Cell::Home, 0).empty(); }},

    {kRunsOnly, [](T t) { return t.TakenByEmpty(Cell::Goal, 0).empty(); }},
    {kFoundations, [](T t) { return t.FoundationsBuild(); }},
    {kFoundationsUpAndDown, [](T t) { return t.FoundationsBuild(); }},
    {kAceAfterKing, [](T t) { return t.FoundationsBuild(); }},
    {kKingAfterAce, [](T t) { return t.FoundationsBuild(); }},
    {kRoundBothWays, [](T t) { return t.FoundationsBuild(); }},
    {kBeginEmpty, [](T t) { return GoalsHold(t, 0, 0); }},
    {kBeginWithAces, [](T t) { return GoalsHold(t, 0, 0) && EmptyGoalsTake(t, 0, kAce); }},
    {kAllStart,
     [](T t) {
         const int rank = t.Words() == "Aces" ? kAce : t.Words() == "Kings" ? kKing : 1;
         return GoalsHold(t, rank, t.N()) && t.Count(rank) == t.N();
     }},
    {kBothStart,
     [](T t) {
         const int rank = t.Words() == "Aces" ? kAce : t.Words() == "Kings" ? kKing : 1;
         return GoalsHold(t, rank, 2) && t.Count(rank) == 2;
     }},
    {kAcesStart,
     [](T t) {
         return GoalsHold(t, kAce, t.N()) && EmptyGoalsTake(t, t.N(), kAce) &&
                t.Count(kAce) > t.N();
     }},
    {kHalfKings,
     [](T t) {
         const int piles = t.row.Goal.Piles;
         for (int pile = 0; pile < piles; ++pile) {
             const int rank = pile < piles / 2 ? kAce : kKing;
             if (t.Size(Cell::Goal, pile) != 1 || t.At(Cell::Goal, pile).Num != rank) return false;
         }
         return true;
     }},
    {kRisingRanks,
     [](T t) {
         const int piles = t.row.Goal.Piles;
         for (int pile = 0; pile < piles; ++pile) {
             if (t.Size(Cell::Goal, pile) != 1 || t.At(Cell::Goal, pile).Num != pile) return false;
         }
         return kOneOfRank.at(std::size_t(piles - 1)) == t.Words();
     }},
    {kFirstCard,
     [](T t) {
         const int rank = t.deal.table.Card(0).Num;
         return GoalsHold(t, rank, t.N()) && EmptyGoalsTake(t, t.N(), rank);
     }},
    {kFirstCards,
     [](T t) {
         for (int pile = 0; pile < t.N(); ++pile) {
             if (t.deal.array.GetTopPicID(Cell::Goal, pile) != pile) return false;
         }
         return t.N() == t.row.Goal.Piles;
     }},
    {kTakenBack, [](T t) { return t.Lay("g0 AH 2H").PicksUp("2H"); }},

    {kStockOpen,
     [](T t) {
         return t.Lay("s0 7D 9H").PicksUp("9H") && t.Lay("s0 7D 9H").After("9H") == "s0 7D 9H";
     }},
    {kStockRow,
     [](T t) {
         const int piles = t.row.Home.Piles;
         auto board = t.Lay("t0 9H, s0 " + test::Cards(std::string(std::size_t(piles), '2'), "C"));
         board.gestures.MouseDown(board.array.GetTopPicID(Cell::Stock, 0), 0, 0);
         for (int pile = 0; pile < piles; ++pile) {
             if (board.array.GetTop(Cell::Home, pile) != (pile == 0 ? 1 : 0)) return false;
         }
         return true;
     }},
    {kStockToWaste,
     [](T t) {
         auto board = t.Lay("s0 -9H -5C");
         return board.After("5C") == "s0 -9H, w0 5C" && board.PicksUp("5C");
     }},
    {kStockOnce, [](T t) { return t.Lay("w0 9H").After("slot") == "w0 9H"; }},
    {kStockRedeal, [](T t) { return t.Lay("w0 9H 5C").After("slot 9H 5C slot") == "s0 -5C -9H"; }},

    {kRunsGoUp,
     [](T t) {
         return t.Lay("t0 " + t.Run(t.row.Goal.Order == OrderCode::UpColor ? "alternating" : ""))
             .After("autoplay")
             .starts_with("g");
     }},
    {kNoAutoplay, [](T t) { return !t.GoesUp(true); }},
    {kAutoplay, [](T t) { return t.GoesUp(true) && !t.GoesUp(false); }},
};

/// Rows of any values that can be dealt and won, on a layout that has room for all of them.
class RandomRows {
public:
    GameRow Next() {
        for (;;) {
            const GameRow row = Any();
            if (FaultOf(row).empty()) return row;
        }
    }

private:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    template <typename Code>
    Code Any(int codes) {
        return static_cast<Code>(Below(codes));
    }
    OrderCode AnyOrder() { return static_cast<OrderCode>(Below(13)); }
    GameRow Any() {
        GameRow row{.Name = "Random"};
        row.Ext.TotalCards = I16(26 << Below(3));
        row.Ext.Tag = static_cast<Tag>(1 + Below(5));
        row.Ext.DisAutoPlay = I16(Below(4) == 0 ? Below(2) * 2 - 1 : 0);
        row.Home = {.Piles = I16(1 + Below(kHomeSlots)),
                    .Order = AnyOrder(),
                    .AK = I16(Below(2)),
                    .EmptyNum = I16(Below(2) ? Below(16) - 3 : kAnyCard),
                    .MultiMove = I16(Below(4)),
                    .HomeType = Any<HomeType>(7),
                    .MultiOrder = AnyOrder(),
                    .SuitType = Any<SuitType>(3)};
        const int packs = SuitPilesOf(row);
        constexpr int kTypes[] = {0, 0, 0, 1, 12, 13, 14, 15, 16, 17};
        row.Goal = {.Piles = I16(Below(4) ? packs : 1 + Below(kGoalSlots)),
                    .Order = AnyOrder(),
                    .GoalType = static_cast<GoalType>(kTypes[Below(10)]),
                    .AK = I16(Below(2))};
        if (row.Ext.Tag == Tag::Spider) {
            row.Ext.GoalDiv = I16(Below(3) * 4);
        } else {
            row.Goal.Cards = I16(Below(2) ? row.Goal.Piles : Below(9));
        }
        row.Res.Piles = I16(Below(kResSlots + 1));
        if (Below(2)) row.Res.Cards = I16(Below(row.Res.Piles + 1));
        row.Stock = {.StockMove = Any<StockMove>(4),
                     .PosWidth = 30,
                     .StockNum = Any<StockNum>(3),
                     .StockType = Any<StockType>(3)};
        const int waste = Below(8) == 0 ? 1 : 0;
        const int left = row.Ext.TotalCards - row.Goal.Cards - row.Res.Cards - waste;
        row.Home.Cards = I16(Below(2) ? Below(left + 1) : left);
        if (Below(20) == 0) row.Home.Cards = I16(Below(2));
        row.Home.Cards = I16(row_check::PatternCards(row, left));
        if (Below(2)) row.Home.CardsOpen = I16(Below(row.Home.Cards + 1));
        if (TurnsOntoWaste(row)) row.Waste = WasteDef{.Piles = 1, .Cards = I16(waste)};
        return Roomy(row);
    }
    std::mt19937 random_{19};
};

/// Tries every sentence about a game and takes note of it.
void ExpectTrue(const GameRow& row, std::set<std::string_view>& said) {
    Trial trial(row);
    for (const GameFact& fact : Describe(row)) {
        for (const Phrase& sentence : fact.Sentences) {
            trial.fact = &fact;
            trial.sentence = &sentence;
            said.insert(sentence.Text.Many);
            const auto claim = std::find_if(std::begin(kClaims), std::end(kClaims), [&](auto& c) {
                return c.Text.Many == sentence.Text.Many;
            });
            ASSERT_NE(claim, std::end(kClaims)) << "never tried: " << sentence.English();
            EXPECT_TRUE(claim->Holds(trial)) << sentence.English();
        }
    }
}

TEST(Words, AreTrueInEveryGame) {
    std::set<std::string_view> said;
    for (const GameRow& row : kCatalogue) {
        SCOPED_TRACE(std::string(row.Name));
        ExpectTrue(row, said);
    }
    GameRow exact = *FindGame("Four Colors");
    exact.Home.Piles = 4;  // the one pattern that random rows hardly hit
    ExpectTrue(exact, said);
    RandomRows rows;
    for (int i = 0; i < 250 && !HasFailure(); ++i) {
        SCOPED_TRACE(testing::Message() << "row " << i);
        ExpectTrue(rows.Next(), said);
    }
    for (const Claim& c : kClaims) EXPECT_TRUE(said.contains(c.Text.Many)) << c.Text.Many;
}

}  // namespace
}  // namespace varnello::test
