#include <QAbstractScrollArea>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <cmath>
#include <limits>
#include <memory>

#include "desktop/modules/chart_module.h"

// The charts as a window sees them: through the module, its texts and its tool tips.
using namespace varnello;

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kMost = 2147483647;
const QStringList kPlayedWon{"Played", "Won"};
const QStringList kFigures{"Score", "Moves", "Time"};

std::unique_ptr<Chart> Shown(ChartKind kind, const ChartTable& table, const QSize& size) {
    std::unique_ptr<Chart> chart(Charts()->NewChart(kind, nullptr));
    chart->resize(size);
    chart->show();
    chart->Show(table);
    return chart;
}

ChartTable ManyRows(int count, double unit, const QStringList& names = {}) {
    ChartTable table{kFigures, {}, names};
    for (int i = 1; i <= count; ++i) {
        table.rows << QList<double>{unit * (i % 7 - 3), unit * (i % 11), unit * (i * 13 % 17)};
    }
    return table;
}

QStringList Days(int count) {
    QStringList days;
    for (int i = 1 - count; i <= 0; ++i) {
        days << QDate(2026, 11, 22).addDays(i).toString("M/d/yyyy");
    }
    return days;
}

QList<QGraphicsTextItem*> TextsOf(const Chart& chart) {
    QList<QGraphicsTextItem*> texts;
    for (QGraphicsItem* item : chart.findChild<QGraphicsView*>()->scene()->items()) {
        auto* text = qgraphicsitem_cast<QGraphicsTextItem*>(item);
        if (text && text->isVisible() && !text->toPlainText().isEmpty()) texts << text;
    }
    return texts;
}

QRectF InkOf(const QGraphicsTextItem& text) {
    const double margin = text.document()->documentMargin();
    return text.sceneBoundingRect().adjusted(margin, margin, -margin, -margin);
}

bool SaysNothingPlayed(const Chart& chart) {
    const QString nothing = QStringLiteral("Nothing played yet");
    const auto* label = chart.findChild<QLabel*>();
    return label->isVisible() && label->text() == nothing &&
           chart.accessibleDescription() == nothing;
}

}  // namespace

class ChartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY2(Charts(), "the chart module can't be loaded");
    }

    void SaysWhenThereIsNothing() {
        const ChartTable tables[] = {
            {},
            {kFigures, {}, {}},
            {kFigures, {{0, 0, 0}}, {}},
            {kFigures, {{}, {0}, {kNone, 0, INFINITY}}, {"a"}},
            {{}, {{1, 2}, {3}}, {}},
        };
        for (const ChartKind kind : {ChartKind::Share, ChartKind::Totals, ChartKind::Rows}) {
            std::unique_ptr<Chart> chart(Charts()->NewChart(kind, nullptr));
            chart->show();
            QVERIFY(SaysNothingPlayed(*chart));
            for (const ChartTable& table : tables) {
                chart->Show({kFigures, {{1, 2, 3}}, {}});
                QVERIFY(!SaysNothingPlayed(*chart));
                chart->Show(table);
                QVERIFY(SaysNothingPlayed(*chart));
            }
        }
    }

    void TellsTheFiguresUnderTheMouse_data() {
        QTest::addColumn<ChartKind>("kind");
        QTest::addColumn<ChartTable>("table");
        QTest::addColumn<QPointF>("at");  // parts of the width and height
        QTest::addColumn<QString>("tip");
        const ChartTable share{{"Won : 12", "Lost : 30"}, {{12, 30}}, {}};
        const auto row = [](const char* name, ChartKind kind, const ChartTable& table, double x,
                            double y, const char* tip) {
            QTest::newRow(name) << kind << table << QPointF(x, y) << QString(tip);
        };
        row("first part", ChartKind::Share, share, 0.55, 0.1, "Won : 12 (28.6%)");
        row("last part", ChartKind::Share, share, 0.45, 0.1, "Lost : 30 (71.4%)");
        row("hole", ChartKind::Share, share, 0.5, 0.45, "");
        row("beside the ring", ChartKind::Share, share, 0.02, 0.5, "");
        row("nothing won", ChartKind::Share, {{"Won : 0", "Lost : 3"}, {{0, 3}}, {}}, 0.51, 0.1,
            "Lost : 3 (100%)");
        row("negative part", ChartKind::Share, {{"a", "b"}, {{-5, 3}}, {}}, 0.51, 0.1, "b (100%)");
        const ChartTable totals{kFigures, {{0, 123456, kMost}}, {}};
        row("first column", ChartKind::Totals, totals, 0.4, 0.5, "Score : 0");
        row("middle column", ChartKind::Totals, totals, 0.65, 0.1, "Moves : 123,456");
        row("last column", ChartKind::Totals, totals, 0.9, 0.8, "Time : 2,147,483,647");
        row("axis", ChartKind::Totals, totals, 0.02, 0.5, "");
        const ChartTable named{kPlayedWon, {{3, 1}, {}, {5, kNone}}, {"May", "June", "July"}};
        row("first row", ChartKind::Rows, named, 0.2, 0.5, "May\nPlayed : 3\nWon : 1");
        row("empty row", ChartKind::Rows, named, 0.5, 0.5, "");
        row("missing value", ChartKind::Rows, named, 0.9, 0.5, "July\nPlayed : 5");
        row("number and sign", ChartKind::Rows, {kFigures, {{-20, 5, 9}}, {}}, 0.5, 0.5,
            "1\nScore : -20\nMoves : 5\nTime : 9");
    }

    void TellsTheFiguresUnderTheMouse() {
        QFETCH(ChartKind, kind);
        QFETCH(ChartTable, table);
        QFETCH(QPointF, at);
        QFETCH(QString, tip);
        const auto chart = Shown(kind, table, {400, 300});
        QWidget* view = chart->findChild<QAbstractScrollArea*>()->viewport();
        const QPoint point(qRound(view->width() * at.x()), qRound(view->height() * at.y()));
        QHelpEvent ask(QEvent::ToolTip, point, view->mapToGlobal(point));
        QCoreApplication::sendEvent(view, &ask);
        QTRY_COMPARE(QToolTip::text(), tip);
        const QString values = tip.section('\n', tip.contains('\n') ? 1 : 0).replace('\n', ", ");
        QVERIFY2(chart->accessibleDescription().contains(values),
                 qPrintable(chart->accessibleDescription()));
    }

    void AnOpenTipFollowsTheMouse() {
        const auto chart = Shown(ChartKind::Rows, {{"a"}, {{1}, {2}, {3}}, {}}, {400, 300});
        QWidget* view = chart->findChild<QAbstractScrollArea*>()->viewport();
        const QPoint first(100, 150);
        const QPoint last(350, 150);
        QHelpEvent ask(QEvent::ToolTip, first, view->mapToGlobal(first));
        QCoreApplication::sendEvent(view, &ask);
        QCOMPARE(QToolTip::text(), "1\na : 1");
        QMouseEvent move(QEvent::MouseMove, last, view->mapToGlobal(last), Qt::NoButton,
                         Qt::NoButton, {});
        QCoreApplication::sendEvent(view, &move);
        QCOMPARE(QToolTip::text(), "3\na : 3");
    }

    void TextsAreWholeAndApart_data() {
        QTest::addColumn<ChartKind>("kind");
        QTest::addColumn<ChartTable>("table");
        QTest::addColumn<QStringList>("texts");  // among others
        const auto row = [](const char* name, ChartKind kind, const ChartTable& table,
                            const QStringList& texts) {
            QTest::newRow(name) << kind << table << texts;
        };
        row("share", ChartKind::Share, {{"Won : 123456", "Lost : 54321"}, {{123456, 54321}}, {}},
            {"Won : 123456", "Lost : 54321", "69.4%", "30.6%"});
        row("totals", ChartKind::Totals, {kFigures, {{53, 100, 125}}, {}},
            {"Score", "Moves", "Time", "0", "100"});
        row("greatest totals", ChartKind::Totals, {kFigures, {{kMost, kMost, kMost}}, {}},
            {"Score", "Moves", "Time", "2,000,000,000"});
        row("one row", ChartKind::Rows, ManyRows(1, 10), {"1", "Score", "Moves", "Time"});
        row("same names", ChartKind::Rows, {kPlayedWon, {{3, 1}, {5, 2}}, {"day", "day"}},
            {"day", "day"});
        row("days", ChartKind::Rows, ManyRows(30, 100, Days(30)), {"11/22/2026", "0", "1,000"});
        row("five days", ChartKind::Rows, ManyRows(5, 1, Days(5)), {"11/22/2026", "0"});
        row("fifty rows", ChartKind::Rows, ManyRows(50, 40000), {"10", "50", "200,000"});
        row("extremes", ChartKind::Rows, {kFigures, {{kMost, 0, -kMost}}, {}},
            {"-2,000,000,000", "2,000,000,000"});
    }

    void TextsAreWholeAndApart() {
        QFETCH(ChartKind, kind);
        QFETCH(ChartTable, table);
        QFETCH(QStringList, texts);
        for (const QSize& size : {QSize(240, 170), QSize(330, 240), QSize(700, 400)}) {
            const auto chart = Shown(kind, table, size);
            const QRectF room = chart->findChild<QGraphicsView*>()->viewport()->rect();
            const QList<QGraphicsTextItem*> all = TextsOf(*chart);
            QStringList seen;
            for (const QGraphicsTextItem* text : all) {
                seen << text->toPlainText().remove(QChar(0x200B));
                const QByteArray what =
                    seen.back().toUtf8() + " in " + QByteArray::number(size.width());
                QVERIFY2(room.contains(InkOf(*text)), what);
                QVERIFY2(!seen.back().contains("...") && !seen.back().contains(QChar(0x2026)),
                         what);
                for (const QGraphicsTextItem* other : all) {
                    QVERIFY2(other == text || !InkOf(*other).intersects(InkOf(*text)), what);
                }
            }
            if (size.width() < 330) continue;
            for (const QString& text : texts) {
                QVERIFY2(seen.removeOne(text), qPrintable(text + " of " + seen.join(' ')));
            }
        }
    }

    void OddTablesAreDrawn() {
        const ChartTable tables[] = {
            {{"a"}, {{1e308, 5}, {-1e308}, {}, {1}}, {"x"}},
            {{"a", "a", "b", "c", "d"}, {{kNone, -3}, {1, 2, 3, 4, 5, 6}}, {"", "", "", ""}},
            {{"", ""}, {{0.25, -0.25}}, {QString(500, 'w')}},
            ManyRows(2000, 1, Days(1500)),
        };
        for (const ChartKind kind : {ChartKind::Share, ChartKind::Totals, ChartKind::Rows}) {
            for (const ChartTable& table : tables) {
                for (const QSize& size : {QSize(1, 1), QSize(121, 81), QSize(330, 240)}) {
                    const auto chart = Shown(kind, table, size);
                    QVERIFY(!SaysNothingPlayed(*chart));
                    QVERIFY(!chart->grab().isNull());
                }
            }
        }
    }

    void FollowsPaletteAndFont() {
        const auto chart = Shown(ChartKind::Rows, ManyRows(5, 10), {330, 240});
        QPalette night;
        night.setColor(QPalette::Base, QColor(20, 30, 40));
        night.setColor(QPalette::Text, QColor(230, 220, 210));
        chart->setPalette(night);
        QFont large = chart->font();
        large.setPointSize(large.pointSize() + 4);
        chart->setFont(large);
        QCOMPARE(chart->grab().toImage().pixelColor(4, 4), QColor(20, 30, 40));
        for (const QGraphicsTextItem* text : TextsOf(*chart)) {
            QCOMPARE(text->defaultTextColor(), QColor(230, 220, 210));
            QCOMPARE(text->font().pointSize(), large.pointSize());
        }
    }
};

QTEST_MAIN(ChartsTest)
#include "charts_test.moc"
