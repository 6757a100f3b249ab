#include <QDialogButtonBox>
#include <QMessageBox>

#include "desktop/customize/customize_dialog.h"
#include "desktop/platform/text.h"
#include "fixture.h"

// What the customize dialog does at once, and what waits for OK.
using namespace varnello;

namespace {

/// The controls as a person knows them.
struct Parts {
    explicit Parts(const CustomizeDialog& dialog)
        : backgrounds(Named<QTreeWidget>(dialog, "Backgrounds")),
          decks(Named<QTreeWidget>(dialog, "Decks")),
          sounds(Named<QListWidget>(dialog, "Select Sound")),
          range(Named<QComboBox>(dialog, "Random Range Selection between 0 and ")),
          fade(Captioned(dialog, "&Fade Background")),
          custom(Captioned(dialog, "Colors..")),
          clearRecent(Captioned(dialog, "Clear")),
          sliders(dialog.findChildren<QSlider*>()) {}

    QTreeWidget *backgrounds, *decks;
    QListWidget* sounds;
    QComboBox* range;
    QAbstractButton *fade, *custom, *clearRecent;
    QList<QSlider*> sliders;
};

QTreeWidgetItem* ItemCalled(const QTreeWidget* tree, const QString& text) {
    return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

void ChangeEverything(CustomizeDialog& dialog) {
    Parts(dialog).backgrounds->setCurrentItem(ItemCalled(Parts(dialog).backgrounds, "Bricks 02"));
    Parts(dialog).decks->setCurrentItem(ItemCalled(Parts(dialog).decks, "Nature 04"));
    Parts(dialog).sliders[0]->setValue(0);
    Parts(dialog).sliders[3]->setValue(50);
    Parts(dialog).sounds->item(0)->setCheckState(Qt::Unchecked);
    Parts(dialog).sounds->item(1)->setCheckState(Qt::Checked);
}

}  // namespace

class CustomizeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensOnTheStoredSettings() {
        WindowFixture fixture;
        CustomizeDialog dialog(fixture.engine(), &fixture.window);
        QCOMPARE(Parts(dialog).backgrounds->currentItem()->text(0), "Dark Green");
        QCOMPARE(Parts(dialog).decks->currentItem()->text(0), "Misc 01");
        QVERIFY(Parts(dialog).fade->isEnabled() && Parts(dialog).fade->isChecked());
        QVERIFY(!Parts(dialog).custom->isEnabled());
        QVERIFY(!Parts(dialog).clearRecent->isEnabled());
        QCOMPARE(Parts(dialog).range->currentText(), "999,999,999,999,999");
        QCOMPARE(Parts(dialog).range->itemText(3), "9,999");
        const int positions[] = {45, 45, 48, 43};
        for (int i = 1; i <= 4; ++i)
            QCOMPARE(Parts(dialog).sliders[i - 1]->value(), positions[i - 1]);
        QCOMPARE(Parts(dialog).sounds->item(1)->text(), "Card Up");
        QCOMPARE(Parts(dialog).sounds->item(1)->checkState(), Qt::Unchecked);
        QCOMPARE(Parts(dialog).sounds->item(6)->checkState(), Qt::Checked);
    }

    void EachControlSetsItsOwnSetting() {
        const auto box = [](const char* text) {
            return [=](CustomizeDialog& dialog) {
                for (auto* one : dialog.findChildren<QCheckBox*>()) {
                    if (one->text() == text) one->click();
                }
            };
        };
        const auto slider = [](const char* name) {
            return [=](CustomizeDialog& dialog) { Named<QSlider>(dialog, name)->setValue(7); };
        };
        const auto sound = [](const char* name) {
            return [=](CustomizeDialog& dialog) {
                QListWidgetItem* item =
                    Parts(dialog).sounds->findItems(name, Qt::MatchExactly).value(0);
                item->setCheckState(item->checkState() ? Qt::Unchecked : Qt::Checked);
            };
        };
        const std::pair<const char*, std::function<void(CustomizeDialog&)>> controls[] = {
            {"ShowTime", box("Show Time")},
            {"ShowScore", box("Show Score")},
            {"ShowMoves", box("Show Moves")},
            {"Fade", box("&Fade Background")},
            {"RangeIndex",
             [](CustomizeDialog& dialog) { QTest::keyClick(Parts(dialog).range, Qt::Key_Home); }},
            {"CardSpeed", slider("Card Moving Speed")},
            {"UndoSpeed", slider("Undo/Redo Speed")},
            {"UndoallSpeed", slider("Undoall/Redoall Speed")},
            {"ReplaySpeed", slider("Replay Speed")},
            {"SoundStart", sound("Initial Shuffle")},
            {"SoundCardUp", sound("Card Up")},
            {"SoundCardDown", sound("Card Down")},
            {"SoundAutoPlay", sound("Autoplay Move")},
            {"SoundUndo", sound("Undo")},
            {"SoundRedo", sound("Redo")},
            {"SoundWin", sound("Game Won")},
        };
        for (const auto& [key, change] : controls) {
            WindowFixture fixture;
            const cData& data = fixture.engine().data();
            std::vector<int> before;
            for (const NumberKey& each : NumberKeys()) before.push_back(data.Get(each));
            CustomizeDialog dialog(fixture.engine(), &fixture.window);
            change(dialog);
            Q_EMIT dialog.findChild<QDialogButtonBox*>()->accepted();
            QStringList changed;
            for (std::size_t i = 0; i < before.size(); ++i) {
                const NumberKey each = NumberKeys()[i];
                if (data.Get(each) != before[i]) changed << ToQt(each.Key);
            }
            QCOMPARE(changed, QStringList{key});
        }
    }

    void ColorControlsFollowTheTree() {
        WindowFixture fixture;
        CustomizeDialog dialog(fixture.engine(), &fixture.window);
        const auto choose = [&](const char* name) {
            Parts(dialog).backgrounds->setCurrentItem(ItemCalled(Parts(dialog).backgrounds, name));
            return std::pair(Parts(dialog).custom->isEnabled(), Parts(dialog).fade->isEnabled());
        };
        QCOMPARE(choose("Custom Color"), std::pair(true, true));
        QCOMPARE(choose("Wood"), std::pair(false, false));
        QCOMPARE(choose("Wood 03"), std::pair(false, false));
        QCOMPARE(choose("Purple"), std::pair(false, true));
        QVERIFY(Parts(dialog).fade->isChecked());
        QVERIFY(!ItemCalled(Parts(dialog).backgrounds, "Red"));  // known, but not offered
    }

    void WhatNoControlCanGiveStaysUnlessChanged() {
        WindowFixture fixture;
        cData& data = fixture.engine().data();
        const std::pair<NumberKey, std::int16_t> odd[] = {
            {keys::CardSpeed, 70},    {keys::ReplaySpeed, -4}, {keys::RangeIndex, 99},
            {keys::BGIndex, 1021},    {keys::Fade, 1},         {keys::DeckIndex, 777},
            {SwitchOf(Sound::Win), 5}};
        for (const auto& [key, value] : odd) data.Set(key, value);
        CustomizeDialog dialog(fixture.engine(), &fixture.window);
        QCOMPARE(Parts(dialog).sliders[0]->value(), 0);
        QCOMPARE(Parts(dialog).sliders[3]->value(), 50);
        QCOMPARE(Parts(dialog).range->currentIndex(), 14);
        QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(Parts(dialog).backgrounds, &tab);
        QVERIFY(Parts(dialog).fade->isEnabled());
        Parts(dialog).sliders[1]->setValue(1);
        Parts(dialog).fade->click();
        fixture.settings.writes = 0;
        Q_EMIT dialog.findChild<QDialogButtonBox*>()->accepted();
        QCOMPARE(fixture.settings.writes, 1);
        QCOMPARE(data.Get(keys::UndoSpeed), 49);
        for (const auto& [key, value] : odd) {
            QCOMPARE(data.Get(key), key.Key == keys::Fade.Key ? 0 : value);
        }
    }

    void CancelDropsAndOkStores() {
        WindowFixture fixture;
        cData& data = fixture.engine().data();
        CustomizeDialog cancelled(fixture.engine(), &fixture.window);
        ChangeEverything(cancelled);
        QCOMPARE(fixture.sounds.heard, std::vector{Sound::CardUp});  // the one that was ticked
        cancelled.reject();
        QCOMPARE(data.Get(keys::BGIndex), 1007);
        QCOMPARE(data.Get(keys::CardSpeed), 5);
        QCOMPARE(data.Get(SwitchOf(Sound::Start)), -1);

        fixture.Start("Cascade");
        const QImage before = fixture.window.table().grab().toImage();
        WhenOpen<CustomizeDialog>([](CustomizeDialog& dialog) {
            ChangeEverything(dialog);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                              Qt::LeftButton);
        });
        fixture.window.menu().mTools(ToolsItem::Customize)->trigger();
        QCOMPARE(data.Get(keys::BGIndex), 2);
        QCOMPARE(data.Get(keys::DeckIndex), 544);
        const QImage after = fixture.window.table().grab().toImage();
        QVERIFY(after != before);
        data.Set(keys::DeckIndex, 9999);
        fixture.window.table().RefreshDecks();
        QCOMPARE(fixture.window.table().grab().toImage(), after);  // the old back stays
    }

    void TheRecentListIsClearedAtOnceAfterAQuestion() {
        WindowFixture fixture;
        fixture.Start("Zodiac");
        CustomizeDialog dialog(fixture.engine(), &fixture.window);
        QStringList asked;
        const auto answer = [&](QMessageBox::StandardButton button) {
            WhenOpen<QMessageBox>([&asked, button](QMessageBox& box) {
                asked << box.text();
                box.button(button)->click();
            });
        };
        WhenOpen<QMessageBox>([&](QMessageBox& box) {  // by default nothing is lost
            asked << box.text();
            QTest::keyClick(&box, Qt::Key_Return);
        });
        Parts(dialog).clearRecent->click();
        QVERIFY(Parts(dialog).clearRecent->isEnabled());
        WhenOpen<QMessageBox>([&](QMessageBox& box) {
            asked << box.text();
            answer(QMessageBox::Ok);
            box.button(QMessageBox::Yes)->click();
        });
        Parts(dialog).clearRecent->click();
        QVERIFY(!Parts(dialog).clearRecent->isEnabled());
        QCOMPARE(fixture.engine().data().RecentCount(), 0);
        QCOMPARE(asked.value(1), "Are you sure you want to clear the Recent Games List ?");
        QTRY_COMPARE(asked.value(2), "Recent Games List has been Cleared.");
    }
};

QTEST_MAIN(CustomizeTest)
#include "customize_test.moc"
