#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>

#include "desktop/appearance/table_painter.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"

// How long the table's own painter takes, on an image as the window's backing store is one.
using namespace varnello;

namespace {

/// A full table of 104 cards with a run of 13 on its way over it.
struct FullTable {
    explicit FullTable(double ratio)
        : engine(nothing.Interfaces({})),
          pictures(ratio),
          background(BackgroundPicture(ratio, {})),
          surface(background) {
        engine.data().Set(keys::Autoplay, 0);
        engine.life().StartGame("Double Baker's Spider", GameNumber::Number(1));
        table = engine.table();
        for (PicID id = 0; id < 13; ++id) {
            table.Card(id).MoveTo(5000, 3000 + 250 * id);
            table.BringToFront(id);
        }
    }

    QRect Run() const {
        return RectOnTable(pictures, 5000, 3000) | RectOnTable(pictures, 5000, 3000 + 250 * 12);
    }

    void Paint(const QRect& dirty) {
        QPainter painter(&surface);
        painter.setClipRect(dirty);
        painter.drawImage(dirty.topLeft(), background, dirty);
        PaintTable(painter, table, pictures, keys::DeckIndex.Default, dirty);
    }

    NullDesktop nothing;
    Engine engine;
    Table table;
    CardPictures pictures;
    QImage background;
    QImage surface;
};

void BM_RunOfThirteen(benchmark::State& state) {
    FullTable table(static_cast<double>(state.range(0)));
    const QRect dirty = table.Run().adjusted(-20, -20, 20, 20);
    for (auto _ : state) table.Paint(dirty);
}
BENCHMARK(BM_RunOfThirteen)->ArgName("ratio")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void BM_WholeTable(benchmark::State& state) {
    FullTable table(static_cast<double>(state.range(0)));
    for (auto _ : state) table.Paint(table.background.rect());
}
BENCHMARK(BM_WholeTable)->ArgName("ratio")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
