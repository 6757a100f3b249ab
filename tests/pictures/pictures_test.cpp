#include <QDir>
#include <QMenuBar>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QTabWidget>
#include <fstream>

#include "../desktop/fixture.h"
#include "desktop/appearance/colours.h"
#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/ground.h"
#include "desktop/appearance/icons.h"
#include "desktop/appearance/looks.h"
#include "desktop/appearance/preview.h"
#include "desktop/charts/row_chart.h"
#include "desktop/charts/share_chart.h"
#include "desktop/charts/totals_chart.h"
#include "desktop/customize/look_icons.h"
#include "desktop/customize/look_preview.h"
#include "desktop/platform/text.h"
#include "desktop/reports/finish_dialog.h"
#include "desktop/reports/report_cells.h"
#include "desktop/window/splash.h"

// What the program draws, coarsely: each picture as a grid of average colours, one digit for each
// of red, green and blue. Another processor or font library changes an average by next to nothing;
// a bar, a card or a mark that is missing, elsewhere or in another colour changes it by more than
// the one step that is let pass.
//
// With VARNELLO_ACCEPT=1 the pictures are written into pictures.expected. Those that differ are
// left beside the program as PNG files.
using namespace varnello;
using namespace varnello::test;

namespace {

/// The digits of a channel, from none of it to all.
const QString kDigits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_";
constexpr QSize kChartCells(40, 30);
constexpr QSize kWindowCells(48, 32);

/// A grid of such cells, row by row.
QStringList Sketch(const QImage& picture, const QSize& cells) {
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(opaque.rect(), picture, picture.rect());
    const QImage small = opaque.scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QStringList rows;
    for (int y = 0; y < cells.height(); ++y) {
        QString row;
        for (int x = 0; x < cells.width(); ++x) {
            const QColor cell = small.pixelColor(x, y);
            for (const int part : {cell.red(), cell.green(), cell.blue()}) {
                row += kDigits[(part * int(kDigits.size() - 1) + 127) / 255];
            }
        }
        rows << row;
    }
    return rows;
}

/// The first cell that isn't as expected, in words; empty if there is none.
QString Difference(const QStringList& rows, const QStringList& expected) {
    if (rows.size() != expected.size()) return "is of another size";
    for (qsizetype y = 0; y < rows.size(); ++y) {
        if (rows[y].size() != expected[y].size()) return "is of another size";
        for (qsizetype i = 0; i < rows[y].size(); ++i) {
            if (std::abs(kDigits.indexOf(rows[y][i]) - kDigits.indexOf(expected[y][i])) <= 1)
                continue;
            const qsizetype x = i / 3;
            return QString("differs in column %1 of %2, row %3 of %4: #%5 instead of #%6")
                .arg(x + 1)
                .arg(rows[y].size() / 3)
                .arg(y + 1)
                .arg(rows.size())
                .arg(rows[y].mid(x * 3, 3), expected[y].mid(x * 3, 3));
        }
    }
    return {};
}

/// Pictures side by side, each with this many pixels.
QImage Strip(const QList<QIcon>& icons, const QSize& each, QIcon::Mode mode = QIcon::Normal) {
    QImage strip(each.width() * int(icons.size()), each.height(), QImage::Format_RGB32);
    strip.fill(QColor(0x80, 0xB0, 0x80));
    QPainter painter(&strip);
    int x = 0;
    for (const QIcon& icon : icons) {
        icon.paint(&painter, QRect(QPoint(x, 0), each), Qt::AlignCenter, mode);
        x += each.width();
    }
    return strip;
}

}  // namespace

class PicturesTest : public QObject {
    Q_OBJECT

    QMap<QString, QStringList> expected_, seen_;

    void Compare(const QString& name, const QImage& picture, const QSize& cells = {16, 10}) {
        QVERIFY2(!seen_.contains(name) && !picture.isNull(), qPrintable(name));
        const QStringList rows = seen_[name] = Sketch(picture, cells);
        const QString difference = Difference(rows, expected_[name]);
        if (difference.isEmpty() || qEnvironmentVariableIsSet("VARNELLO_ACCEPT")) return;
        const QString file = QString(name).replace(QRegularExpression("\\W+"), "-") + ".png";
        picture.save(QDir(QCoreApplication::applicationDirPath()).filePath(file));
        QFAIL(qPrintable(name + ' ' + difference + "; it is left as " + file));
    }

    template <typename Kind>
    void CompareChart(const QString& name, const ChartTable& table) {
        for (const QColor& paper : {QColor(Qt::white), QColor(0x20, 0x20, 0x28)}) {
            Kind chart(name);
            chart.setPalette(QPalette(QColor(0x80, 0x80, 0x80), paper));
            chart.resize(400, 300);
            chart.Show(table);
            const bool light = paper == QColor(Qt::white);
            Compare(name + (light ? "" : ", in the dark"), chart.grab().toImage(), kChartCells);
        }
    }

private Q_SLOTS:
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QApplication::setStyle(QStyleFactory::create("Fusion"));
        QApplication::setFont(QFont("DejaVu Sans", 9));
        QApplication::setCursorFlashTime(0);
        QFile file(VARNELLO_PICTURES);
        QVERIFY(file.open(QIODevice::ReadOnly) || qEnvironmentVariableIsSet("VARNELLO_ACCEPT"));
        QString name;
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
            if (line.startsWith(' ')) {
                expected_[name] << line.trimmed();
            } else {
                name = line;
            }
        }
    }

    void Charts() {
        const std::vector<Series> share{Series::Won, Series::Lost};
        const std::vector<Series> games{Series::Played, Series::Won};
        const std::vector<Series> figures{Series::Score, Series::Moves, Series::Time};
        CompareChart<ShareChart>("one won, three lost", {.series = share, .rows = {{1, 3}}});
        CompareChart<ShareChart>("all won", {.series = share, .rows = {{7, 0}}});
        CompareChart<TotalsChart>("one game", {.series = figures, .rows = {{50, 120, 4000}}});
        CompareChart<TotalsChart>(
            "games", {.series = figures, .rows = {{-20, 30, 90}, {5, 60, 7000}, {52, 99, 300}}});
        CompareChart<RowChart>("months", {.series = games,
                                          .rows = {{5, 2}, {}, {9, kNoValue}, {3, 3}},
                                          .rowNames = {"May", "June", "July", "August"}});
        CompareChart<RowChart>(
            "figures of games",
            {.series = figures,
             .rows = {{-20, 30, 90}, {5, 60, 700}, {}, {52, 99, 350}, {41, 90, kNoValue}},
             .firstRow = 0});
        ChartTable many{.series = figures};
        for (int i = 0; i < 120; ++i) many.rows.push_back({double(i % 50), 9.0 * i, 100.0 * i});
        CompareChart<RowChart>("many games", many);
        CompareChart<RowChart>("nothing", {.series = figures});
    }

    void Backgrounds() {
        const std::pair<const char*, BackgroundChoice> choices[] = {
            {"a fade", {.bgIndex = 1003}},
            {"a colour", {.bgIndex = 1012, .fade = false}},
            {"a custom fade", {.bgIndex = 1000, .customColor = 0x40A0F0}},
            {"a colour by hand", {.bgIndex = 1025, .fade = false}},
            {"no colour", {.bgIndex = 1000, .fade = false, .customColor = 1 << 24}},
            {"a colour beyond the table", {.bgIndex = 1026}},
            {"nonsense", {.bgIndex = -3}},
            {"a tile", {.bgIndex = 71}}};
        for (const auto& [name, choice] : choices) {
            for (const QSize& size : {QSize(600, 260), QSize(260, 600)}) {
                Compare(QString("ground with %1, %2 wide").arg(name).arg(size.width()),
                        GroundPicture(size, QRect(60, 40, 160, 130), 0.25, choice), kChartCells);
            }
            LookPreview preview("");
            preview.resize(300, 200);
            preview.ShowBackground(choice);
            Compare(QString("preview of ") + name, preview.grab().toImage());
            preview.ShowDeck(532);
            Compare(QString("preview of a deck on ") + name, preview.grab().toImage());
        }
        for (const LookGroup& group : TileGroups()) {
            QList<QIcon> icons;
            for (const int id : group.ids) {
                icons << BackgroundIcon({.bgIndex = id});
                const QImage tile = TilePicture(1, {.bgIndex = id});
                const QString size = QString("%1 x %2").arg(tile.width()).arg(tile.height());
                Compare(QString("tile %1, %2").arg(id).arg(size), tile, {6, 4});
            }
            Compare(QString("tiles of ") + group.name, Strip(icons, {16, 16}),
                    {int(icons.size()) * 3, 3});
        }
        QList<QIcon> colours;
        for (int i = kCustomBackground; i <= kFirstColour + kOfferedColours; ++i) {
            colours << BackgroundIcon({.bgIndex = i, .fade = i % 2 == 0});
        }
        Compare("colours", Strip(colours, {16, 16}), {int(colours.size()) * 2, 2});
    }

    void Cards() {
        const CardPictures pictures(1);
        Compare("faces", *pictures.MainPic(1).sheet, {13 * 4, 4 * 6});
        KesCard card;
        card.SetValue(2, 11, 2);
        card.FaceMode = FaceMode::Open;
        card.Selected = true;
        const CardPictures::Part chosen = pictures.Shown(card, 531);
        Compare("a selected card", chosen.sheet->copy(chosen.rect));
        Compare("slots", *pictures.RightPic(0).sheet, {18 * 4, 6});
        for (const LookGroup& group : DeckGroups()) {
            QList<QIcon> decks, icons;
            for (const int id : group.ids) {
                decks << QPixmap::fromImage(*pictures.DeckPic(id).sheet);
                icons << DeckIcon(id);
            }
            Compare(QString("decks of ") + group.name, Strip(decks, pictures.CardSize()),
                    {int(decks.size()) * 6, 8});
            Compare(QString("icons of ") + group.name, Strip(icons, {16, 16}),
                    {int(icons.size()) * 4, 4});
        }
    }

    void IconsAndMarks() {
        QList<QIcon> icons, marks;
        for (const QString& name : QDir(":/icons").entryList()) {
            icons << SmallIcon(name.section('.', 0, 0));
        }
        icons << ProgramIcon();
        Compare("icons", Strip(icons, {18, 18}), {int(icons.size()) * 4, 4});
        Compare("grey icons", Strip(icons, {18, 18}, QIcon::Disabled), {int(icons.size()) * 4, 4});
        for (const GameRow& game : kCatalogue) marks << GameMark(std::string(game.Name));
        Compare("marks", Strip(marks, kGameMarkSize * 2), {int(marks.size()) * 5, 4});
        Compare("chosen marks", Strip(marks.mid(0, 5), kGameMarkSize * 2, QIcon::Selected),
                {25, 4});
    }

    void Previews() {
        varnello::Previews previews;
        for (const GameRow& row : kCatalogue) {
            const std::string name(row.Name);
            Compare("preview of " + ToQt(name), previews.Of(name, 1).toImage());
        }
        Compare("large preview", previews.Of("Zodiac", 1.5).toImage(), {32, 20});
        Compare("small preview", previews.Of("Zodiac", 0.5).toImage());
    }

    void Cells() {
        QStandardItemModel model(1, 6);
        const char* const texts[] = {"left", "12,345", "bold", "too long for its cell", "icon", ""};
        for (int column = 0; column < 6; ++column) {
            model.setItem(0, column, new QStandardItem(texts[column]));
        }
        model.item(0, 1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QFont bold = QApplication::font();
        bold.setWeight(QFont::Black);
        bold.setPixelSize(20);
        model.item(0, 2)->setFont(bold);
        model.item(0, 4)->setIcon(SmallIcon("player"));
        const ReportCells cells;
        QImage picture(70 * 6, 24 * 3, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 6; ++column) {
                QStyleOptionViewItem option;
                option.rect = QRect(column * 70, row * 24, 70, 24);
                option.font = QApplication::font();
                option.palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::darkRed);
                option.state = QStyle::State_Enabled;
                option.decorationSize = QSize(16, 16);
                if (row > 0) option.state |= QStyle::State_Selected;
                if (row == 1) option.state |= QStyle::State_Active;
                cells.paint(&painter, option, model.index(0, column));
            }
        }
        Compare("cells of a report", picture, {6 * 10, 9});
    }

    void Table() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell", 6);
        const auto compare = [&](const QString& name) {
            QVERIFY2(fixture.ScreenIsTrue(),
                     qPrintable(name + ": the screen shows something else"));
            const QImage table = OnScreen(fixture.window.table());
            Compare(name, table, {48, 32});
            Compare(name + ", a corner",
                    table.copy(table.width() - 300, table.height() - 300, 300, 300));
        };
        compare("a deal");
        const PicID card = fixture.Top(Cell::Home, 3);
        fixture.Press(fixture.CentreOf(card));
        fixture.Move(fixture.At(2980 + 700, 1000));
        compare("a card over a reserve");
        fixture.Move(fixture.At(9000, 9000));
        compare("a card over nothing");
        QTest::keyClick(&fixture.window, Qt::Key_Escape);
        fixture.Press(fixture.CentreOf(15) - QPoint(0, 40));  // with another on it
        fixture.Move(fixture.At(9000, 9000));
        compare("two cards over nothing");
        QTest::keyClick(&fixture.window, Qt::Key_Escape);
        compare("the deal again");
        fixture.DragToReserve(0, 0);
        const QPoint lower = fixture.CentreOf(fixture.Top(Cell::Home, 0));
        fixture.Press(fixture.CentreOf(card));
        fixture.Move(lower);
        compare("a card over one that takes it");
        fixture.Release(lower);
        compare("a card on another");
        fixture.window.table().ZoomBy(1);
        compare("a larger deal");
        QTRY_VERIFY2(fixture.window.toolbar().Button(7)->isEnabled(), "Undo stays grey");
        const QRect buttons(fixture.window.toolbar().mapTo(&fixture.window, QPoint()),
                            QSize(640, 25));
        Compare("toolbar", fixture.window.grab(buttons).toImage(), {128, 5});
        fixture.engine().life().StartGame("Cascade", GameNumber::Number(2));
        compare("a stock");
    }

    void Windows() {
        WindowFixture fixture;
        const MainMenu& menu = fixture.window.menu();
        const auto compare = [&](QAction* item, const QString& how) {
            const QString name = "window of " + item->text().remove('&').remove('.') + how;
            int seen = 0;
            WhenOpen<QDialog>([&](QDialog& dialog) {
                QVERIFY2(QTest::qWaitForWindowActive(&dialog), qPrintable(name));
                auto* tabs = dialog.findChild<QTabWidget*>();
                do {
                    if (tabs) tabs->setCurrentIndex(seen);
                    const QString tab = tabs ? ", " + tabs->tabText(seen) : "";
                    Compare(name + tab, dialog.grab().toImage(), kWindowCells);
                } while (++seen < (tabs ? tabs->count() : 0));
                dialog.reject();
            });
            item->trigger();
            QTRY_VERIFY2(seen > 0, qPrintable(name));
        };
        const auto compareMenus = [&](const QString& how) {
            for (auto* menu : fixture.window.menuBar()->findChildren<QMenu*>()) {
                Compare("menu " + menu->title() + how, menu->grab().toImage(), kWindowCells);
            }
        };
        compareMenus(" at the start");
        for (const StatItem item :
             {StatItem::Game, StatItem::Log, StatItem::Session, StatItem::HighScore}) {
            compare(menu.mStat(item), " without a result");
        }
        std::ofstream(fixture.Folder() + "/Player1.sre")
            << R"("11/21/2026 1:00:00 PM","Freecell",123456789012345,900000,2000000000,-1234567890,1
"9/20/2026 1:00:00 PM","Freecell",12,3000,90,-80,0
"some day long ago, in winter","Penguin",7,61,70,20,1
)";
        fixture.StartWithoutAutoplay("Freecell", 6);
        fixture.engine().life().EndGame(Outcome::NotWon);
        fixture.Start("Freecell", 6);
        for (int i = 0; i < 3; ++i) fixture.DragToReserve(i, i);
        fixture.engine().commands().Undo();
        QAction* const items[] = {
            menu.mFile(FileItem::Number),      menu.mFav(FavItem::Organize),
            menu.mFav(FavItem::Play),          menu.mStat(StatItem::Game),
            menu.mStat(StatItem::Session),     menu.mStat(StatItem::Log),
            menu.mStat(StatItem::HighScore),   menu.mTools(ToolsItem::Players),
            menu.mTools(ToolsItem::Customize), menu.mTools(ToolsItem::History),
            menu.mHelp(HelpItem::About)};
        const QPalette light = QApplication::palette();
        const QPalette dark(QColor(0x40, 0x40, 0x48), QColor(0x20, 0x20, 0x28));
        menu.mHelp(HelpItem::Rules)->trigger();
        const auto windows = QApplication::topLevelWidgets();
        const auto isHelp = [](QWidget* window) {
            return window->inherits("varnello::HelpWindow");
        };
        QWidget* const help = *std::find_if(windows.begin(), windows.end(), isHelp);
        for (const QPalette& palette : {light, dark}) {
            QApplication::setPalette(palette);
            const QString how = palette == dark ? " in the dark" : "";
            Compare("help" + how, help->grab().toImage(), kWindowCells);
            menu.mFile(FileItem::Select)->trigger();
            Compare("selector" + how, fixture.window.select()->grab().toImage(), kWindowCells);
            fixture.window.select()->reject();
            for (QAction* item : items) compare(item, how);
        }
        QApplication::setPalette(light);
        OwnWins wins{.Others = std::vector<ScoreRecord>(2), .Place = 2};
        wins.Others[0].Time = 900;
        wins.Others[1].Moves = 180;
        FinishDialog won({"Freecell", {}, 52, 120, 600}, wins, nullptr);
        Compare("window of a win", won.grab().toImage(), kWindowCells);
        fixture.Beat();
        Compare("menus", fixture.window.menuBar()->grab().toImage(), {80, 3});
        compareMenus("");
        Splash splash;
        Compare("splash", splash.grab().toImage(), kWindowCells);
    }

    void NothingIsLeftOut() {
        if (qEnvironmentVariableIsSet("VARNELLO_ACCEPT")) {
            QFile file(VARNELLO_PICTURES);
            QVERIFY(file.open(QIODevice::WriteOnly));
            for (auto picture = seen_.begin(); picture != seen_.end(); ++picture) {
                file.write((picture.key() + '\n').toUtf8());
                for (const QString& row : *picture) file.write(("    " + row + '\n').toUtf8());
            }
        } else {
            QCOMPARE(seen_.keys(), expected_.keys());
        }
    }
};

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
