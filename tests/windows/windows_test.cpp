#include <QClipboard>
#include <QDir>
#include <QToolTip>

#include "desktop/accessible/windows.h"
#include "desktop/platform/text.h"
#include "hands.h"
#include "sight.h"

// Tables of what a person does in the windows and what must have changed then: in what is seen of
// them, in files and settings, in the game. Each scene of a table begins with a new program.
//
// VARNELLO_TABLE=players.table picks a table. With VARNELLO_ACCEPT=1 what changed is written into
// the tables; read the difference. With VARNELLO_FAIL_FAST=1 the first failure is the last.
using namespace varnello;
using namespace varnello::test;

namespace {

/// An act and what it changes, or a line that isn't one.
struct Line {
    QString text;
    QStringList changes;
    bool IsAct() const { return !text.isEmpty() && !text.startsWith('#') && !IsScene(); }
    bool IsScene() const { return text.startsWith("scene "); }
};

using ActTable = QList<Line>;
const QString kIndent = "    ";

ActTable ReadTable(const QString& path) {
    QFile file(path);
    ActTable table;
    if (!file.open(QIODevice::ReadOnly)) return table;
    for (const QString& text : QString::fromUtf8(file.readAll()).chopped(1).split('\n')) {
        if (text.startsWith(kIndent) && !table.isEmpty()) {
            table.last().changes << text.trimmed();
        } else {
            table << Line{text, {}};
        }
    }
    return table;
}

void WriteTable(const QString& path, const ActTable& table) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) qFatal("can't write %s", qPrintable(path));
    for (const Line& line : table) {
        file.write((line.text + '\n').toUtf8());
        for (const QString& change : line.changes) file.write((kIndent + change + '\n').toUtf8());
    }
}

/// Two windows of the same title may stand in another order.
bool SameLines(QStringList some, QStringList others) {
    some.sort();
    others.sort();
    return some == others;
}

/// Acts from within the event loop, so that a window that waits for its end doesn't stop the scene.
class Scene : public QObject {
public:
    explicit Scene(QList<Line*> acts) : acts_(std::move(acts)) {
        before_ = Now();
        QTimer::singleShot(0, this, &Scene::Act);
    }

    /// How long an act may take to show what it changes, in milliseconds.
    inline static int patience = 8000;

    bool Over() const { return over_; }
    /// What went wrong, in words; empty if nothing did.
    QString wrong;

private:
    void Act() {
        if (at_ == acts_.size()) return End();
        time_.start();
        QTimer::singleShot(0, this, &Scene::Compare);
        const QString act = acts_[at_]->text;  // what opens may stay open until the scene ends
        if (act == "look") before_ = {};       // all that is seen is new then
        const QString unknown = act == "look" ? QString() : Do(act, fixture_);
        if (!unknown.isEmpty() && wrong.isEmpty()) {
            wrong = act + ": " + unknown;
            End();
        }
    }

    void Compare() {
        if (over_) return;
        const Sight now = Now();
        const bool rests = now == last_;
        last_ = now;
        // The counters go on when the act is over, and not between a win and its window, so that
        // no result depends on the moment.
        resting_ = resting_ || rests;
        if (resting_ && fixture_.engine().life().phase() != Phase::Won) fixture_.Beat();
        const QStringList changes = Changes(before_, now);
        Line& line = *acts_[at_];
        if (qEnvironmentVariableIsSet("VARNELLO_ACCEPT")) {
            if (!rests || !settled_.isValid()) settled_.start();
            line.changes = changes;
            if (settled_.elapsed() < 600) return Again();
            settled_.invalidate();
        } else if (!SameLines(changes, line.changes) || !rests) {
            looks_ = 0;
            if (time_.elapsed() < patience) return Again();
            patience = 500;  // the first failure counts; others needn't take as long
            wrong = Difference(line, changes);
            return End();
        } else if (++looks_ < 3) {
            return Again();  // what is to be painted yet is painted by then
        }
        // A picture that is hidden for a while is compared with what it was.
        auto pictures = before_.pictures;
        pictures.insert(now.pictures);
        before_ = now;
        before_.pictures = pictures;
        looks_ = 0;
        resting_ = false;
        ++at_;
        QTimer::singleShot(0, this, &Scene::Act);
    }

    void Again() { QTimer::singleShot(25, this, &Scene::Compare); }

    void End() {
        over_ = true;
        // Whatever is still open keeps a call waiting.
        while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        if (QWidget* modal = QApplication::activeModalWidget()) {
            modal->close();
            QTimer::singleShot(0, this, &Scene::End);
        }
    }

    static QString Difference(const Line& line, const QStringList& changes) {
        QString told = line.text + ": a person doesn't see what should be there";
        for (const QString& change : line.changes) {
            if (!changes.contains(change)) told += "\n  should be: " + change;
        }
        for (const QString& change : changes) {
            if (!line.changes.contains(change)) told += "\n  but there is: " + change;
        }
        if (!told.contains('\n')) told += " in this order:\n" + changes.join('\n');
        return told;
    }

    Sight Now() {
        Sight sight;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window != &fixture_.window &&
                !window->inherits("QTipLabel") && !window->inherits("QComboBoxPrivateContainer")) {
                Look(*window, sight);
            }
        }
        Engine& engine = fixture_.engine();
        const cData& data = engine.data();
        sight.lines << "title: " + fixture_.window.windowTitle()
                    << "counters: " + fixture_.window.menu().Counters().text()
                    << QString("moves: %1 of %2")
                           .arg(engine.trans().GetTransID())
                           .arg(engine.trans().TransTop())
                    << "player: " + ToQt(data.CurPlayer());
        static const QRegularExpression size("size=\\d+ \\d+;?");  // of this screen
        for (const auto& [key, text] : fixture_.settings.stored) {
            QString kept = ToQt(text);
            kept.remove(size);
            sight.lines << QString("setting: %1 = %2").arg(ToQt(key), kept);
        }
        for (const QString& name : QDir(ToQt(fixture_.Folder())).entryList(QDir::Files)) {
            int number = 0;
            for (const std::string& text :
                 ReadLines(fixture_.Folder() + '/' + name.toStdString())) {
                sight.lines << QString("%1 %2: %3").arg(name).arg(++number).arg(ToQt(text));
            }
        }
        static const QRegularExpression figure("[1-9]");
        for (const QString& name : QDir(fixture_.folder.path()).entryList(QDir::Files)) {
            for (const std::string& text :
                 ReadLines(fixture_.folder.path().toStdString() + '/' + name.toStdString())) {
                const QString line = ToQt(text);
                if (line.contains(figure)) sight.lines << name + ": " + line.simplified();
            }
        }
        int heard = 0;
        for (const Sound sound : fixture_.sounds.heard) {
            sight.lines << QString("heard %1: %2").arg(++heard).arg(ToQt(RowOf(sound).Name()));
        }
        sight.lines
            << "clipboard: " +
                   QGuiApplication::clipboard()->text().replace('\t', "\\t").replace('\n', "\\n");
        for (QString& line : sight.lines) line.replace(fixture_.folder.path(), "HOME");
        QString tip = QToolTip::isVisible() ? QToolTip::text() : QString();
        sight.lines << "tip: " + tip.replace('\n', " / ");
        LookAtCommands(fixture_.window, sight);
        if (fixture_.window.property("listen").toBool()) Listen(fixture_.window.table(), sight);
        LookAtPicture(fixture_.window.table(), "table", sight);
        return sight;
    }

    WindowFixture fixture_;
    QList<Line*> acts_;
    qsizetype at_ = 0;
    Sight before_, last_;
    int looks_ = 0;
    bool resting_ = false;
    QElapsedTimer time_, settled_;
    bool over_ = false;
};

}  // namespace

class WindowsTest : public QObject {
    Q_OBJECT

    QMap<QString, ActTable> tables_;

private Q_SLOTS:
    void initTestCase() { DescribeWindows(); }

    void ShowWhatWasDone_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<qsizetype>("first");
        const QString one = qEnvironmentVariable("VARNELLO_TABLE", "*.table");
        for (const QString& file : QDir(VARNELLO_TABLES).entryList({one})) {
            ActTable& table = tables_[file] = ReadTable(VARNELLO_TABLES "/" + file);
            for (qsizetype i = 0; i < table.size(); ++i) {
                if (!table[i].IsScene()) continue;
                QTest::addRow("%s",
                              qPrintable(file.section('.', 0, 0) + ", " + table[i].text.mid(6)))
                    << file << i + 1;
            }
        }
    }

    void ShowWhatWasDone() {
        QFETCH(QString, file);
        QFETCH(qsizetype, first);
        ActTable& table = tables_[file];
        QList<Line*> acts;
        for (qsizetype i = first; i < table.size() && !table[i].IsScene(); ++i) {
            if (table[i].IsAct()) acts << &table[i];
        }
        QGuiApplication::clipboard()->clear();
        QApplication::setKeyboardInputInterval(0);
        static bool failed = false;
        if (failed && qEnvironmentVariableIsSet("VARNELLO_FAIL_FAST")) QSKIP("another failed");
        Scene scene(acts);
        while (!scene.Over()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (qEnvironmentVariableIsSet("VARNELLO_ACCEPT")) {
            WriteTable(VARNELLO_TABLES "/" + file, table);
        }
        failed = failed || !scene.wrong.isEmpty();
        QVERIFY2(scene.wrong.isEmpty(), qPrintable(scene.wrong));
    }
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"
