#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>
#include <set>

#include "desktop/choosers/favorites_dialogs.h"
#include "desktop/choosers/number_dialog.h"
#include "desktop/choosers/players_dialog.h"
#include "desktop/choosers/select_dialog.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/help/about_dialog.h"
#include "desktop/help/help_window.h"
#include "desktop/help/pages.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "desktop/reports/finish_dialog.h"
#include "desktop/reports/game_stat_dialog.h"
#include "desktop/reports/high_score_dialog.h"
#include "desktop/reports/history_dialog.h"
#include "desktop/reports/log_dialog.h"
#include "desktop/reports/session_dialog.h"
#include "fixture.h"

using namespace varnello;

namespace {

/// A language in which each text stands in brackets and is one and a half times as long.
class Pseudo : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        if (QByteArray(context) == "QGuiApplication" || QByteArray(context) == "QShortcut")
            return {};
        const QString text = QString::fromUtf8(source);
        return QStringLiteral("[%1%2]").arg(text, QString(text.size() / 2, 'o'));
    }
};

/// All texts of a window, with the word for where each stands.
class Texts {
public:
    explicit Texts(const QWidget& window) {
        Add(window);
        for (const auto* child : window.findChildren<QWidget*>()) Add(*child);
        for (const auto* action : window.findChildren<QAction*>()) {
            Add("action", action->text());
            Add("tip", action->toolTip());
        }
    }
    std::vector<std::pair<QByteArray, QString>> all;

private:
    void Add(const QByteArray& where, const QString& text) { all.emplace_back(where, text); }
    void Add(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex at = model.index(row, column, parent);
                Add("cell", at.data().toString());
                Add(model, at);
            }
        }
    }
    void Add(const QWidget& widget) {
        const QByteArray name = widget.metaObject()->className();
        for (const char* property : {"windowTitle", "text", "title", "placeholderText", "toolTip",
                                     "accessibleName", "accessibleDescription"}) {
            if (qobject_cast<const QLineEdit*>(&widget) && !qstrcmp(property, "text")) continue;
            Add(name + '.' + property, widget.property(property).toString());
        }
        if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < bar->count(); ++i) Add("tab", bar->tabText(i));
        }
        if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) Add(*combo->model());
        if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
            if (!view->model() || qobject_cast<const QHeaderView*>(view)) return;
            Add(*view->model());
            const auto* headed =
                view->findChild<QHeaderView*>(QString(), Qt::FindDirectChildrenOnly);
            for (int i = 0; headed && !headed->isHidden() && i < view->model()->columnCount();
                 ++i) {
                Add("header", view->model()->headerData(i, Qt::Horizontal).toString());
            }
        }
    }
};

/// What is left of a text without what was translated, names, and numbers.
QString Untranslated(QString text) {
    static const QRegularExpression inner(QStringLiteral("\\[[^\\[\\]]*\\]"));
    while (text.contains(inner)) text.remove(inner);
    if (FindGame(text.toStdString())) return {};
    for (const char* name : {"Player1", "Varnello", "Freecell"}) text.remove(QLatin1String(name));
    static const QRegularExpression noLetters(QStringLiteral("[^\\p{L}]"));
    return text.remove(noLetters);
}

bool Fits(const QSize& needed, const QSize& room) {
    return needed.width() <= room.width() && needed.height() <= room.height();
}

/// What is cut off, by name.
QStringList CutOff(const QWidget& window) {
    constexpr int kMargins = 14;  // pixels of a header
    QStringList cut;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->property("wordWrap").toBool()) continue;
        const auto shows = [&](const char* kind) { return widget->inherits(kind); };
        QString text = widget->property("text").toString() + widget->accessibleName();
        bool fits = true;
        if (shows("QGroupBox")) {
            fits = Fits(widget->minimumSizeHint(), widget->size());
        } else if (shows("QComboBox") || shows("QTabBar") ||
                   ((shows("QLabel") || shows("QAbstractButton")) && !text.isEmpty())) {
            fits = Fits(widget->sizeHint(), widget->size());
        } else if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
            for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
                text = header->model()->headerData(i, Qt::Horizontal).toString();
                const int needed = header->fontMetrics().horizontalAdvance(text) + kMargins;
                if (needed > header->sectionSize(i)) cut << text;
            }
        } else if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
            fits = list->count() == 0 || list->sizeHintForColumn(0) <= list->viewport()->width();
        }
        if (!fits) cut << QString::fromLatin1(widget->metaObject()->className()) + ' ' + text;
    }
    return cut;
}

/// Names each fault of a window once.
class Faults {
public:
    /// `shows` does something with each sheet of the window.
    void LookAt(const char* name, QWidget& window) {
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        for (const auto& [where, text] : Texts(window).all) {
            const QString left = Untranslated(text);
            if (!left.isEmpty())
                found_.insert(
                    QStringLiteral("%1: %2 \"%3\" isn't translated").arg(name, where, text));
        }
        auto* sheets = window.findChild<QTabWidget*>();
        for (int sheet = 0; sheet < (sheets ? sheets->count() : 1); ++sheet) {
            if (sheets) sheets->setCurrentIndex(sheet);
            QCoreApplication::processEvents();
            for (const QString& text : CutOff(window)) {
                found_.insert(QStringLiteral("%1: %2 is cut off").arg(name, text));
            }
        }
        if (window.inherits("QDialog") && !Fits(window.frameSize(), {1040, 800}))
            found_.insert(QStringLiteral("%1 is larger than the screen").arg(name));
    }
    ~Faults() {
        for (const QString& fault : found_) qWarning("%s", qPrintable(fault));
    }
    bool None() const { return found_.empty(); }

private:
    std::set<QString> found_;
};

}  // namespace

class WordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryTextIsTranslatedAndFits();
    void FiguresGoByTheLocale();
};

void WordsTest::EveryTextIsTranslatedAndFits() {
    QLocale::setDefault(QLocale(QLocale::German));  // its dates have no letters
    Pseudo pseudo;
    QCoreApplication::installTranslator(&pseudo);
    {
        WindowFixture fixture;
        Engine& engine = fixture.engine();
        fixture.StartWithoutAutoplay("Freecell");
        engine.commands().CloseGame();
        fixture.StartWithoutAutoplay("Freecell");
        fixture.DragToReserve(0, 0);
        fixture.Beat();
        Faults faults;
        faults.LookAt("main window", fixture.window);
        const auto look = [&](const char* name, auto&& dialog) { faults.LookAt(name, dialog); };
        QWidget* const over = &fixture.window;
        look("selector", SelectDialog(engine, over));
        look("number", NumberDialog(engine, over));
        look("play favorites", PlayFavoriteDialog(engine, over));
        look("organize favorites", OrganizeFavoritesDialog(engine, over));
        look("players", PlayersDialog(engine, over));
        look("player's name", NameDialog(engine, PlayersDialog::tr("Add Player"), {}, over));
        look("customize", CustomizeDialog(engine, over));
        look("about", AboutDialog(over));
        HelpWindow help(fixture.settings, fixture.window);
        help.ShowPage(PageNameOf(0));
        faults.LookAt("help", help);
        WhenOpen<QMessageBox>([&](QMessageBox& box) {
            faults.LookAt("question", box);
            box.reject();
        });
        AskYesNo(over, kClearStatQuestion);
        look("history", HistoryDialog(engine.trans(), fixture.settings, over));
        engine.score().OpenAllScore();
        look("game statistics", GameStatDialog(engine, over));
        engine.score().OpenAllScore();
        look("session", SessionDialog(engine, over));
        engine.score().OpenAllScore();
        look("high score", HighScoreDialog(engine, false, over));
        engine.score().OpenAllScore();
        look("log", LogDialog(engine, over));
        OwnWins wins{.Others = std::vector<ScoreRecord>(4), .Place = 2};
        look("won", FinishDialog(engine.life().LoadFinish(), wins, over));
        QVERIFY(faults.None());
    }
    QCoreApplication::removeTranslator(&pseudo);
}

void WordsTest::FiguresGoByTheLocale() {
    struct Case {
        QLocale locale;
        const char* figure;
        const char* time;
        const char* phrase;
    };
    for (const Case& c :
         {Case{QLocale::c(), "-12.5%", "0:01:30", "0 and 999,999"},
          {QLocale(QLocale::German), "-12,5%", "0:01:30", "0 and 999.999"},
          {QLocale(QLocale::Arabic, QLocale::Egypt), "", "٠:٠١:٣٠", "٠ and ٩٩٩٬٩٩٩"}}) {
        QLocale::setDefault(c.locale);
        if (*c.figure) QCOMPARE(AsFigure(QStringLiteral("-12.5%")), QString::fromUtf8(c.figure));
        QCOMPARE(Localized(TimeCell(90)), QString::fromUtf8(c.time));
        QCOMPARE(Localized(Say("0 and %1", {Grouped{999'999}})), QString::fromUtf8(c.phrase));
    }
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(WordsTest)
#include "words_test.moc"
