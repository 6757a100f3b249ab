#include "hand_board.h"

#include <map>

#include "engine/rules/autoplay.h"
#include "engine/rules/stock.h"

namespace varnello::test {
namespace {

constexpr std::string_view kCellLetters = "tswgr";
constexpr std::string_view kSuits = "HSDC";

// A place that no game has, so that laying a card out empties no pile.
constexpr Place kNowhere{Cell::Waste, kPilesPerCell - 1, 0};

bool IsPileName(std::string_view word) { return kCellLetters.find(word[0]) != word.npos; }

Place BottomOf(const std::string& pile) {
    return {static_cast<Cell>(kCellLetters.find(pile[0])), I16(std::stoi(pile.substr(1))), 0};
}

}  // namespace

std::string TextOf(const KesCard& card) {
    std::string text = card.FaceMode == FaceMode::Closed ? "-" : "";
    text += kUp[static_cast<std::size_t>(card.Num)];
    text += kSuits[static_cast<std::size_t>(card.Suit)];
    return card.Suitpile >= 4 ? text + '+' : text;
}

HandBoard::HandBoard(const GameRow& row, std::string_view piles) {
    sounds.on = true;
    data.GameRunning = true;
    Autoplay(false);
    SelectRow(games, row);
    for (KesCard& card : table.PicCards) card.Loc = kNowhere;
    Lay(piles);
}

void HandBoard::Lay(std::string_view piles) {
    Place to;
    std::istringstream words{std::string(piles)};
    for (std::string word; words >> word;) {
        if (word.ends_with(',')) word.pop_back();
        if (IsPileName(word)) {
            to = BottomOf(word);
            continue;
        }
        const bool closed = word[0] == '-';
        if (closed) word.erase(0, 1);
        const int suit = static_cast<int>(kSuits.find(word.at(1)));
        const bool secondPack = word.find('+') != word.npos;
        table.Card(next_).SetValue(I16(suit), I16(static_cast<int>(kUp.find(word[0]))),
                                   I16(secondPack ? suit + 4 : suit));
        to.Pos = I16(array.GetTop(to.Cell, to.Pile) + 1);
        array.MoveCard({.PicID = next_++,
                        .To = to,
                        .tMod = MoveKind::Deal,
                        .DFace = closed ? FaceMode::Closed : FaceMode::Open});
    }
    out = {};
}

std::string HandBoard::Text() const {
    std::string text;
    for (std::size_t c = 0; c < kCellLetters.size(); ++c) {
        const auto cell = static_cast<Cell>(c);
        for (int pile = 0; pile < kPilesPerCell; ++pile) {
            if (array.GetTop(cell, pile) < 0) continue;
            if (!text.empty()) text += ", ";
            text += kCellLetters[c] + std::to_string(pile);
            for (int pos = 0; pos <= array.GetTop(cell, pile); ++pos) {
                text += ' ' + TextOf(table.Card(array.GetPicID(cell, pile, pos)));
            }
        }
    }
    return text;
}

PicID HandBoard::Id(std::string_view card) const {
    for (PicID id = 0; id < next_; ++id) {
        if (TextOf(table.Card(id)).ends_with(card)) return id;
    }
    throw std::runtime_error("no card " + std::string(card));
}

void HandBoard::Do(const std::string& acts) {
    int jump = 0;
    const std::map<std::string, std::function<void()>> commands{
        {"undo", [&] { trans.Undo(jump); }},
        {"redo", [&] { trans.Redo(jump); }},
        {"undoall", [&] { trans.UndoAll(jump); }},
        {"redoall", [&] { trans.RedoAll(jump); }},
        {"autoplay", [&] { varnello::AutoPlay(field); }},
        {"slot", [&] { gestures.StockClick(); }},
        {"row", [&] { DealRow(field); }}};
    std::istringstream words(acts);
    for (std::string word; words >> word;) {
        if (const auto command = commands.find(word); command != commands.end()) {
            command->second();
            continue;
        }
        const std::size_t end = word.find_first_of(">@");
        const std::string card = word.substr(0, end);
        Press(card);
        if (word[card.size()] == '>') {
            Place at = BottomOf(word.substr(end + 1));
            if (at.Cell == Cell::Home) at = {at.Cell, at.Pile, array.GetTop(at.Cell, at.Pile)};
            Drag(card, array.GetCordX(at), array.GetCordY(at));
        } else if (word[card.size()] == '@') {
            const std::size_t comma = word.find(',');
            Drag(card, std::stod(word.substr(end + 1)), std::stod(word.substr(comma + 1)));
        }
        Release(card);
    }
}

void HandBoard::Drag(std::string_view card, double left, double top) {
    const KesCard& held = Card(card);
    gestures.MouseMove(Id(card), left - held.Left + gestures.DownX(),
                       top - held.Top + gestures.DownY());
}

bool HandBoard::PicksUp(std::string_view card) {
    Press(card);
    const bool armed = gestures.Dragging();
    gestures.Reset();
    return armed;
}

void HandBoard::AutoPlay() { varnello::AutoPlay(field); }

void HandBoard::CheckWon() {
    if (array.TotalGoalCards() == games.TotalCards()) ++wins;
}

void ExpectPlays(const GameRow& row, const std::vector<BoardCase>& cases, bool autoplay) {
    for (const BoardCase& c : cases) {
        SCOPED_TRACE(c.before + " | " + c.acts);
        HandBoard board(row, c.before);
        const std::string before = board.Text();
        board.Autoplay(autoplay);
        board.Do(c.acts);
        EXPECT_EQ(board.Text(), c.after.empty() ? before : c.after);
        for (const PicID id : board.table.VisibleCards()) {
            if (before.find('-') != before.npos) break;
            const KesCard& card = board.table.Card(id);
            EXPECT_EQ(card.Left, board.array.GetCordX(card.Loc)) << id;
            EXPECT_EQ(card.Top, board.array.GetCordY(card.Loc)) << id;
        }
        EXPECT_TRUE(LooksSame(board.surface.scene, board.table));
        board.Do("undoall");
        EXPECT_EQ(board.Text(), before);
        EXPECT_TRUE(LooksSame(board.surface.scene, board.table));
    }
}

GameRow Freecells(int piles) {
    return {.Name = "Freecells",
            .Ext = {.BaseX = 11900, .TotalCards = 52},
            .Home = {.Piles = I16(piles),
                     .Order = OrderCode::DownColor,
                     .StartX = -790,
                     .StartY = 3000,
                     .PileWidth = 1500,
                     .PosWidth = 250},
            .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 5210, .PileWidth = 1500},
            .Res = {.Piles = 4, .StartX = -790, .PileWidth = 1500}};
}

std::string Cards(std::string_view ranks, std::string_view suits, std::string_view pack) {
    std::string text;
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        text.append(i == 0 ? "" : " ").append(1, ranks[i]);
        text.append(1, suits[i % suits.size()]).append(pack);
    }
    return text;
}

}  // namespace varnello::test
