#include <QProcess>

#include "desktop/platform/settings_store.h"
#include "fixture.h"

// Several copies of the program on one home: what one writes, the others see, and nothing of it
// gets lost between them. The other copies are this program started again with a command.
using namespace varnello;

namespace {

/// An engine on the settings and results of the home that the environment names.
class Copy {
public:
    Copy() { engine.InitMain(); }

    QStringList Players() const {
        QStringList names;
        for (std::int16_t slot = 1; slot <= engine.data().TotalPlayers(); ++slot) {
            names << QString::fromStdString(engine.data().GetPlayer(slot));
        }
        return names;
    }

private:
    FileSettings settings_;
    NullDesktop nothing_;

public:
    Engine engine{{settings_, nothing_.clock, nothing_.surface, nothing_.sounds, nothing_.messages,
                   qEnvironmentVariable("XDG_CONFIG_HOME").toStdString() + "/data"}};
};

/// Commands of a copy: what to do, and with which text.
int RunCopy(const QStringList& words) {
    Copy copy;
    for (const QString& name : words.mid(1)) {
        const std::string text = name.toStdString();
        if (words[0] == "add") copy.engine.players().EnterPlayer({}, text);
        if (words[0] == "rename") copy.engine.players().EnterPlayer("Player1", text);
        if (words[0] == "autoplay") copy.engine.data().Set(keys::Autoplay, name.toShort());
    }
    return 0;
}

void InAnotherCopy(const QStringList& words) {
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), words), 0);
}

}  // namespace

class CopiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", home_->path().toUtf8());
    }

    void WhatOneWritesTheOtherSees() {
        Copy copy;
        InAnotherCopy({"add", "Bea"});
        copy.engine.players().EnterPlayer({}, "Cid");
        QCOMPARE(copy.Players(), QStringList({"Player1", "Bea", "Cid"}));
        QCOMPARE(copy.engine.data().Get(keys::Autoplay), 1);
        InAnotherCopy({"autoplay", "0"});
        QCOMPARE(copy.engine.data().Get(keys::Autoplay), 0);
    }

    void NoPlayerGetsLostBetweenManyWhoAdd() {
        Copy copy;
        QList<QProcess*> copies;
        QStringList all{"Player1"};
        for (const QString letter : {"a", "b", "c"}) {
            QStringList names;
            for (int i = 1; i <= 6; ++i) names << letter + QString::number(i);
            all << names;
            copies << new QProcess(this);
            copies.last()->start(QCoreApplication::applicationFilePath(),
                                 QStringList("add") + names);
        }
        for (QProcess* process : copies) QVERIFY(process->waitForFinished());
        QStringList players = copy.Players();
        players.sort();
        all.sort();
        QCOMPARE(players, all);
    }

    void AGameGoesWithItsRenamedPlayer() {
        Copy copy;
        copy.engine.life().StartGame("Freecell", GameNumber::Number(1));
        InAnotherCopy({"rename", "Anna"});
        copy.engine.life().LeaveGame();
        const std::string folder = copy.engine.data().AppDir().string();
        QCOMPARE(ReadLines(folder + "/Anna.sre").size(), std::size_t{1});
        QVERIFY2(ReadLines(folder + "/Player1.sre").empty(), "the result went to the old name");
    }

    void LeftoversOfAnInterruptedWriteGo() {
        const QString folder = home_->path() + "/Varnello";
        QVERIFY(QDir().mkpath(folder));
        const auto make = [&](const QString& name, int age) {
            QFile file(folder + '/' + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("x");
            file.flush();
            const auto time = QDateTime::currentDateTime().addSecs(-age);
            QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        };
        make("Varnello.ini.AbCdEf", 7200);
        make("Varnello.ini.ZyXwVu", 0);  // another copy is about to put it into place
        make("Varnello.ini.backup", 7200);
        make("notes.txt", 7200);
        const FileSettings settings;
        QCOMPARE(QDir(folder).entryList(QDir::Files),
                 QStringList({"notes.txt", "Varnello.ini.backup", "Varnello.ini.ZyXwVu"}));
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    const bool copy =
        !words.isEmpty() && QStringList({"add", "rename", "autoplay"}).contains(words[0]);
    if (copy) return RunCopy(words);
    CopiesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "copies_test.moc"
