#include <QPaintEngine>
#include <QTest>
#include <memory>

#include "desktop/charts/row_chart.h"
#include "desktop/charts/share_chart.h"
#include "desktop/charts/totals_chart.h"

// The texts of charts of all sizes: whole, apart, and there.
using namespace varnello;

namespace {

constexpr double kMost = 2147483647;
const std::vector<Series> kShare{Series::Won, Series::Lost};
const std::vector<Series> kPlayedWon{Series::Played, Series::Won};
const std::vector<Series> kFigures{Series::Score, Series::Moves, Series::Time};

template <typename Kind>
std::shared_ptr<Chart> Shown(const ChartTable& table, const QSize& size = {400, 300}) {
    auto chart = std::make_shared<Kind>(QStringLiteral("chart"));
    chart->resize(size);
    chart->show();
    chart->Show(table);
    return chart;
}
using Maker = std::shared_ptr<Chart> (*)(const ChartTable&, const QSize&);
constexpr Maker kMakers[] = {Shown<ShareChart>, Shown<TotalsChart>, Shown<RowChart>};

/// Texts and where they stand, instead of a picture.
class TextPage : public QPaintDevice, private QPaintEngine {
public:
    explicit TextPage(const QSize& size) : QPaintEngine(AllFeatures), size_(size) {}
    QPaintEngine* paintEngine() const override { return const_cast<TextPage*>(this); }
    QStringList texts;
    QList<QRectF> rooms;

private:
    int metric(PaintDeviceMetric metric) const override {
        if (metric == PdmWidth) return size_.width();
        if (metric == PdmHeight) return size_.height();
        return metric == PdmDpiX || metric == PdmDpiY ? 96 : QPaintDevice::metric(metric);
    }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& state) override {
        if (state.state() & DirtyTransform) transform_ = state.transform();
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        texts << item.text();
        const double height = item.ascent() * 0.8;  // of capitals and digits
        rooms << transform_.mapRect(QRectF(at.x(), at.y() - height, item.width(), height));
    }
    Type type() const override { return User; }

    QSize size_;
    QTransform transform_;
};

ChartTable ManyRows(int count, double unit, int negatives = 3) {
    ChartTable table{.series = kFigures};
    for (int i = 1; i <= count; ++i) {
        table.rows.push_back({unit * (i % 7 - negatives), unit * (i % 11), unit * (i * 13 % 17)});
    }
    return table;
}

ChartTable Days(int count, double unit) {
    ChartTable table = ManyRows(count, unit);
    for (int i = 1 - count; i <= 0; ++i) {
        table.rowNames << QDate(2026, 11, 22).addDays(i).toString("M/d/yyyy");
    }
    return table;
}

}  // namespace

class ChartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void TextsAreWholeAndApart_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<ChartTable>("table");
        QTest::addColumn<QStringList>("texts");  // among others
        const auto row = [](const char* name, int kind, const ChartTable& table,
                            const QStringList& texts) {
            QTest::newRow(name) << kind << table << texts;
        };
        row("share", 0, {.series = kShare, .rows = {{123456, 54321}}},
            {"Won : 123456", "Lost : 54321", "69.4%"});
        row("totals", 1, {.series = kFigures, .rows = {{53, 100, 176525}}},
            {"Score", "Moves", "Time", "53", "49:02:05", "0:00:00", "0"});
        row("greatest totals", 1, {.series = kFigures, .rows = {{kMost, kMost, kMost}}},
            {"2,147,483,647", "596523:14:07"});
        row("one row", 2, ManyRows(1, 10), {"1", "Score", "Moves", "Time", "0:00:00"});
        row("days", 2, Days(30, 100), {"11/22/2026", "0"});
        row("extremes", 2, {.series = kFigures, .rows = {{kMost, 0, -kMost}}}, {"0", "0:00:00"});
        row("odd values", 2,
            {.series = kFigures, .rows = {{1e308, INFINITY}, {-1e308}, {}, {0.25, 1, 2, 3}}}, {});
        row("thousands", 2, ManyRows(2000, 1), {"Score"});
        row("one scale for games", 2, {.series = kPlayedWon, .rows = {{4, 2}, {4, 2}}}, {"4", "4"});
    }

    void TextsAreWholeAndApart() {
        QFETCH(int, kind);
        QFETCH(ChartTable, table);
        QFETCH(QStringList, texts);
        for (const QSize& size : {QSize(1, 1), QSize(260, 200), QSize(330, 260), QSize(700, 400)}) {
            const auto chart = kMakers[kind](table, size);
            QVERIFY(!chart->grab().isNull());
            if (size.width() < 260) continue;
            TextPage page(size);
            chart->render(&page);
            for (qsizetype i = 0; i < page.texts.size(); ++i) {
                const QByteArray what =
                    page.texts[i].toUtf8() + " in " + QByteArray::number(size.width());
                QVERIFY2(QRectF({}, size).contains(page.rooms[i]), what);
                for (qsizetype other = 0; other < i; ++other) {
                    QVERIFY2(!page.rooms[other].intersects(page.rooms[i]),
                             what + " over " + page.texts[other].toUtf8());
                }
            }
            if (size.width() < 330) continue;
            for (const QString& text : texts) {
                QVERIFY2(page.texts.removeOne(text),
                         qPrintable(text + " of " + page.texts.join('|')));
            }
        }
    }
};

QTEST_MAIN(ChartsTest)
#include "charts_test.moc"
