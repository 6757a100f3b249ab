#include "hands.h"

#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QTabBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolTip>
#include <QTreeView>
#include <fstream>

#include "desktop/accessible/table_voice.h"
#include "desktop/charts/chart.h"
#include "sight.h"

namespace varnello::test {
namespace {

constexpr int kGrip = 150;         // twips from a card's corner, where no other card lies
constexpr int kNeverOver = 60000;  // milliseconds that letters count for a search

/// A game of five cards, four of which start the foundations: the fifth one wins it.
void SelectAlmostWon(cGames& games, const std::string&) {
    GameRow row = *FindGame("Stripped Freecell");
    row.Ext.TotalCards = 5;
    row.Home.Cards = 1;
    row.Goal.GoalType = GoalType::FirstCards;
    row.Goal.Order = OrderCode::Anything;
    row.Goal.Cards = 4;
    row.Stock.StockType = StockType::Closed;
    SelectRow(games, row);
}

/// Three cards each of the first four piles lie closed.
void SelectClosedCorner(cGames& games, const std::string&) {
    GameRow row = *FindGame("Freecell");
    row.Home.HomeType = HomeType::ClosedCorner;
    SelectRow(games, row);
}

/// The window that gets what is typed; the main one if there is no other.
QWidget& Front(WindowFixture& fixture) {
    if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return *modal;
    QWidget* active = QApplication::activeWindow();
    if (active && active != &fixture.window) return *active;
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other->isVisible() && qobject_cast<QDialog*>(other)) return *other;
    }
    return fixture.window;
}

template <typename Widget>
Widget* Find(const QWidget& window, const QString& name) {
    for (auto* widget : window.findChildren<Widget*>()) {
        if (widget->isVisibleTo(&window) && NameOf(*widget) == name) return widget;
    }
    return nullptr;
}

QAction* ItemOf(const QWidget& menu, const QString& caption) {
    for (QAction* item : menu.actions()) {
        if (item->menu()) {
            if (QAction* found = ItemOf(*item->menu(), caption)) return found;
        } else if (Plain(item->text()) == caption) {
            return item;
        }
    }
    return nullptr;
}

bool Click(QWidget& window, const QString& name) {
    if (auto* menu = qobject_cast<QMenu*>(&window)) {
        QAction* item = ItemOf(*menu, name);
        if (item) QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(item).center());
        return item;
    }
    for (auto* bar : window.findChildren<QTabBar*>()) {
        for (int i = 0; i < bar->count(); ++i) {
            if (Plain(bar->tabText(i)) != name) continue;
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(i).center());
            return true;
        }
    }
    auto* button = Find<QAbstractButton>(window, name);
    if (!button) return false;
    const bool box = button->inherits("QCheckBox");
    QTest::mouseClick(button, Qt::LeftButton, {}, box ? QPoint(8, button->height() / 2) : QPoint());
    return true;
}

bool Choose(QComboBox& combo, const QString& text) {
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int i = 0; i < combo.count() && combo.currentText() != text; ++i) {
        QTest::keyClick(&combo, Qt::Key_Down);
    }
    return combo.currentText() == text;
}

/// The cell of this text; in a tree its groups are opened on the way.
QModelIndex CellOf(QAbstractItemView& view, const QString& text, const QModelIndex& parent = {}) {
    const QAbstractItemModel& model = *view.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex at = model.index(row, column, parent);
            if (at.data().toString() == text) return at;
        }
        const QModelIndex below = CellOf(view, text, model.index(row, 0, parent));
        if (below.isValid()) return below;
    }
    return {};
}

bool ActOn(QAbstractItemView& view, const QString& verb, const QString& text) {
    if (verb == "sort") {
        const QHeaderView* header = HeaderOf(view);
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            if (view.model()->headerData(column, Qt::Horizontal).toString() != text) continue;
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(column) + 9, 9});
            return true;
        }
        return false;
    }
    const QModelIndex cell = CellOf(view, text);
    if (!cell.isValid()) return false;
    if (auto* tree = qobject_cast<QTreeView*>(&view)) {
        for (QModelIndex up = cell.parent(); up.isValid(); up = up.parent()) tree->expand(up);
    }
    view.scrollTo(cell);
    const QPoint at = view.visualRect(cell).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
    if (verb == "tick") QTest::keyClick(&view, Qt::Key_Space);
    if (verb == "open") QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
    if (verb == "menuof") {
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, at, view.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(&view, &ask);
    }
    return true;
}

bool Follow(QTextBrowser& page, const QString& link) {
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            if (at.fragment().charFormat().anchorHref() != link) continue;
            QTextCursor cursor(page.document());
            cursor.setPosition(at.fragment().position() + 1);
            page.setTextCursor(cursor);
            QTest::mouseClick(page.viewport(), Qt::LeftButton, {},
                              page.cursorRect(cursor).center());
            return true;
        }
    }
    return false;
}

/// What happens apart from the windows; false for another verb.
bool Arrange(const QString& verb, const QString& what, const QString& value,
             WindowFixture& fixture) {
    Engine& engine = fixture.engine();
    const auto number = GameNumber::Number(what.section(' ', 0, 0).toDouble());
    if (verb == "start") {
        engine.life().StartGame(what.section(' ', 1).toStdString(), number);
    } else if (verb == "end") {
        engine.life().EndGame(Outcome::NotWon);
    } else if (verb == "almost") {
        engine.life().SelectBy(SelectAlmostWon);
        engine.life().StartGame("Stripped Freecell", number);
    } else if (verb == "closed") {
        engine.life().SelectBy(SelectClosedCorner);
        engine.life().StartGame("Freecell", number);
    } else if (verb == "player") {
        engine.data().AddPlayer(what.toStdString());
    } else if (verb == "set") {
        engine.data().SetText(what.toStdString(), value.toStdString());
    } else if (verb == "write") {
        std::ofstream(fixture.Folder() + '/' + what.toStdString(), std::ios::app)
            << value.toStdString() << "\r\n";
    } else if (verb == "clock") {
        fixture.clock.now.minute += what.toInt();
    } else if (verb == "listen") {
        fixture.window.setProperty("listen", true);
        fixture.window.table().findChild<TableVoice*>()->SpeakAlways();
    } else if (verb == "copied") {
        QGuiApplication::clipboard()->setText(
            QString(what).replace("\\t", "\t").replace("\\n", "\n"));
    } else {
        return false;
    }
    return true;
}

}  // namespace

QString Do(const QString& act, WindowFixture& fixture) {
    const QString verb = act.section(' ', 0, 0);
    const QString rest = act.section(' ', 1);
    const QString what = rest.section(" = ", 0, 0);
    const QString value = rest.section(" = ", 1);
    const QString nothing = "nothing is called so";
    if (Arrange(verb, what, value, fixture)) return {};
    QWidget& front = Front(fixture);
    // A window manager would do it when the window over it closes.
    if (&front == &fixture.window) QApplication::setActiveWindow(&front);
    QWidget* focus = front.focusWidget() ? front.focusWidget() : &front;
    if (verb == "click") return Click(front, what) ? QString() : nothing;
    if (verb == "choose") {
        auto* combo = Find<QComboBox>(front, what);
        return combo && Choose(*combo, value) ? QString() : nothing;
    }
    if (verb == "menu") {
        QAction* item = ItemOf(*fixture.window.menuBar(), what);
        if (item) item->trigger();
        return item ? QString() : nothing;
    }
    if (verb == "go") {
        for (auto* widget : front.findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || NameOf(*widget) != what) continue;
            widget->setFocus();
            return {};
        }
        return nothing;
    }
    if (verb == "follow") {
        auto* page = front.findChild<QTextBrowser*>();
        return page && Follow(*page, what) ? QString() : nothing;
    }
    if (verb == "stock") {
        const PicID top = fixture.Top(Cell::Stock, 0);
        const KesEmpty& slot = fixture.engine().table().PicStock[0];
        const QPoint at =
            top == kNoCard ? fixture.At(slot.Left + 500, slot.Top + 700) : fixture.CentreOf(top);
        QTest::mouseClick(&fixture.window.table(), Qt::LeftButton, {}, at);
        return {};
    }
    if (verb == "lay") {
        const QStringList words = what.split(' ');
        const KesCard& card = fixture.Card(PicID(words[0].toInt()));
        const QPoint to = fixture.At(words[1].toInt() + kGrip, words[2].toInt() + kGrip);
        fixture.Press(fixture.At(card.Left + kGrip, card.Top + kGrip));
        fixture.Move(to);
        fixture.Release(to);
        return {};
    }
    if (verb == "point") {
        const PicID top = what == "stock" ? fixture.Top(Cell::Stock, 0)
                                          : fixture.Top(Cell::Home, what.toInt() - 1);
        fixture.Move(fixture.CentreOf(top), Qt::NoButton);
        return {};
    }
    if (verb == "hover") {  // over a point, in percent of the width and the height
        auto* part = Find<QWidget>(front, what);
        if (!part) return nothing;
        const QPoint at(part->width() * value.section(' ', 0, 0).toInt() / 100,
                        part->height() * value.section(' ', 1).toInt() / 100);
        if (QToolTip::isVisible() && dynamic_cast<Chart*>(part)) {  // it follows the mouse
            QMouseEvent move(QEvent::MouseMove, at, part->mapToGlobal(at), Qt::NoButton,
                             Qt::NoButton, {});
            QCoreApplication::sendEvent(part, &move);
        } else {
            QHelpEvent ask(QEvent::ToolTip, at, part->mapToGlobal(at));
            QCoreApplication::sendEvent(part, &ask);
        }
        return {};
    }
    if (verb == "wheel") {
        const QPoint at = fixture.window.table().rect().center();
        QWheelEvent turn(at, fixture.window.table().mapToGlobal(at), {},
                         {0, what.startsWith("up") ? 120 : -120}, {},
                         what.endsWith("Ctrl") ? Qt::ControlModifier : Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&fixture.window.table(), &turn);
        return {};
    }
    if (verb == "key") {
        const QKeyCombination key = QKeySequence(what)[0];
        QTest::keyClick(focus, key.key(), key.keyboardModifiers());
    } else if (verb == "type") {
        for (const QChar letter : what) {
            QTest::keyClick(focus, letter.toLatin1());
            QApplication::setKeyboardInputInterval(kNeverOver);
        }
        QApplication::setKeyboardInputInterval(0);  // the next one begins another search
    } else if (verb == "close") {
        front.close();
    } else if (verb == "file") {
        auto* files = qobject_cast<QFileDialog*>(&front);
        if (!files) return "no file is asked for";
        files->findChild<QLineEdit*>()->setText(fixture.folder.path() + '/' + what);
        QMetaObject::invokeMethod(files, "accept");
    } else if (verb == "colour") {
        auto* colours = qobject_cast<QColorDialog*>(&front);
        if (!colours) return "no colour is asked for";
        colours->setCurrentColor(QColor(what));
        colours->accept();
    } else if (verb == "drop") {
        fixture.DragToReserve(what.section(' ', 0, 0).toInt() - 1,
                              what.section(' ', 1).toInt() - 1);
    } else if (auto* list = Find<QAbstractItemView>(front, what)) {
        const bool found = ActOn(*list, verb, value);
        // The library leaves the button of a double click down.
        if (verb == "open") QTest::mouseRelease(&fixture.window, Qt::LeftButton);
        return found ? QString() : nothing;
    } else {
        return nothing;
    }
    return {};
}

}  // namespace varnello::test
