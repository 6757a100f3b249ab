#include <algorithm>
#include <cctype>
#include <set>

#include "fixture.h"

// The deals of all games of the catalogue.
namespace varnello::test {
namespace {

struct DealCase {
    const char* game;
    int tableau, foundations, reserves, stock;  // cards after the deal
};

// clang-format off
const DealCase kDeals[] = {
    {"Avenue", 48, 4, 0, 0},              {"Baker's Game", 52, 0, 0, 0},
    {"Baker's Spider", 52, 0, 0, 0},      {"Bastion", 50, 0, 2, 0},
    {"Carnival", 48, 4, 0, 0},            {"Cascade", 35, 0, 0, 17},
    {"Cone Freecell", 52, 0, 0, 0},       {"Double Baker's Game", 96, 8, 0, 0},
    {"Double Baker's Spider", 104, 0, 0, 0}, {"Double Cascade", 40, 8, 0, 56},
    {"Double Freecell", 96, 8, 0, 0},     {"Double Galaxy", 104, 0, 0, 0},
    {"Double Klondike Freecell", 45, 0, 0, 59}, {"Double Spidercells", 104, 0, 0, 0},
    {"Eight Off", 48, 0, 4, 0},           {"Fancell", 48, 4, 0, 0},
    {"Forecell", 48, 0, 4, 0},            {"Four Colors", 52, 0, 0, 0},
    {"Freecell", 52, 0, 0, 0},            {"Freecell AK", 48, 4, 0, 0},
    {"Galaxy", 52, 0, 0, 0},              {"Klondike Freecell", 36, 0, 0, 16},
    {"Milligan Cell", 8, 0, 0, 96},       {"Oasis", 32, 0, 0, 20},
    {"Penguin", 49, 3, 0, 0},             {"SeaTowers", 50, 0, 2, 0},
    {"See-Saw", 52, 0, 0, 0},             {"Seven By Four", 52, 0, 0, 0},
    {"Spidercells", 52, 0, 0, 0},         {"Stalactites", 48, 4, 0, 0},
    {"Stripped Freecell", 24, 2, 0, 0},   {"Tuxedo", 52, 0, 0, 0},
    {"Two Cells", 52, 0, 0, 0},           {"Vertical Freecell", 48, 4, 0, 0},
    {"Zodiac", 96, 8, 0, 0}};
// clang-format on

class Deals : public EngineTest, public ::testing::WithParamInterface<DealCase> {
protected:
    void SetUp() override { engine.data.Set(keys::Autoplay, 0); }
    int Count(Cell cell) const {
        int cards = 0;
        for (int pile = 0; pile < kPilesPerCell; ++pile) {
            cards += engine.array().GetTop(cell, pile) + 1;
        }
        return cards;
    }
    const KesCard& At(Cell cell, int pile, int pos) const {
        return engine.table.Card(engine.array().GetPicID(cell, pile, pos));
    }
};

TEST_P(Deals, LayEveryCardOutOnce) {
    const DealCase& deal = GetParam();
    for (const double number : {1.0, 32.0, 4711.0, 999'999'999'999'999.0}) {
        Start(deal.game, number);
        EXPECT_EQ(Count(Cell::Home), deal.tableau);
        EXPECT_EQ(Count(Cell::Goal), deal.foundations);
        EXPECT_EQ(Count(Cell::Res), deal.reserves);
        EXPECT_EQ(Count(Cell::Stock), deal.stock);
        EXPECT_EQ(Count(Cell::Waste), 0);
        std::set<PicID> seen;
        for (int c = 0; c < kCells; ++c) {
            const auto cell = static_cast<Cell>(c);
            for (int pile = 0; pile < kPilesPerCell; ++pile) {
                for (int pos = 0; pos <= engine.array().GetTop(cell, pile); ++pos) {
                    const PicID id = engine.array().GetPicID(cell, pile, pos);
                    EXPECT_TRUE(seen.insert(id).second) << id;
                    EXPECT_EQ(engine.table.Card(id).Loc, (Place{cell, I16(pile), I16(pos)}));
                    const bool closed =
                        cell == Cell::Stock && engine.games.StockType() != StockType::Open;
                    EXPECT_EQ(engine.table.Card(id).FaceMode == FaceMode::Closed, closed);
                }
            }
        }
        EXPECT_EQ(seen.size(), static_cast<std::size_t>(engine.games.TotalCards()));
        EXPECT_EQ(engine.table.VisibleCards().size(), seen.size());
        EXPECT_EQ(engine.trans().GetTransID(), 0);
    }
}

TEST_P(Deals, ShowASlotForEachPile) {
    Start(GetParam().game);
    const cGames& games = engine.games;
    const auto shown = [](const auto& slots) {
        return std::count_if(slots.begin(), slots.end(), [](auto& slot) { return slot.Visible; });
    };
    EXPECT_EQ(shown(engine.table.PicHome), games.Piles(Cell::Home));
    EXPECT_EQ(shown(engine.table.PicRes), games.Piles(Cell::Res));
    EXPECT_EQ(shown(engine.table.PicRight), games.Piles(Cell::Goal));
    EXPECT_EQ(shown(engine.table.PicWaste), games.Piles(Cell::Waste));
    const std::string game = GetParam().game;
    EXPECT_EQ(shown(engine.table.PicStock), game == "Cascade" || game == "Oasis" ? 1 : 0);
    for (int pile = 0; pile < games.Piles(Cell::Home); ++pile) {
        const KesEmpty& slot = engine.table.PicHome[static_cast<std::size_t>(pile)];
        EXPECT_EQ(slot.Picture, games.EmptyNum() < 0 ? 14 : games.EmptyNum());
        if (games.Piles(Cell::Home) > 0 && engine.array().GetTop(Cell::Home, pile) >= 0) {
            EXPECT_EQ(slot.Left, At(Cell::Home, pile, 0).Left);
            EXPECT_EQ(slot.Top, At(Cell::Home, pile, 0).Top);
        }
    }
    for (int pile = 0; pile < games.Piles(Cell::Res); ++pile) {
        EXPECT_EQ(engine.table.PicRes[static_cast<std::size_t>(pile)].Picture, 14);
    }
}

std::string DealName(const ::testing::TestParamInfo<DealCase>& info) {
    std::string name;
    for (const char* c = info.param.game; *c; ++c) {
        if (std::isalnum(static_cast<unsigned char>(*c))) name += *c;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Deals, ::testing::ValuesIn(kDeals), DealName);

TEST_F(Deals, TableHoldsTheWholeCatalogue) {
    ASSERT_EQ(std::size(kDeals), static_cast<std::size_t>(engine.data.TotalGames()));
    for (std::int16_t id = 1; id <= engine.data.TotalGames(); ++id) {
        const std::string name = kDeals[id - 1].game;
        EXPECT_EQ(engine.data.GetGName(id), name);
        EXPECT_EQ(engine.data.GetGameID(name), id);
    }
    EXPECT_EQ(engine.data.GetGameID("freecell"), 0);
    EXPECT_EQ(engine.data.GetGameID(""), 0);
}

}  // namespace
}  // namespace varnello::test
