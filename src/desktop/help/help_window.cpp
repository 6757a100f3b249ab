#include "desktop/help/help_window.h"

#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/appearance/icons.h"
#include "desktop/help/pages.h"
#include "desktop/platform/place_beside.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr QSize kSize(720, 680);
constexpr int kFrame = 32;       // what a window manager may add at the top
constexpr int kSide = 4;         // and at the other sides
constexpr int kFindWidth = 220;  // at most

}  // namespace

HelpWindow::HelpWindow(SettingsStore& store, const QWidget& table)
    : QWidget(nullptr, Qt::Window),
      table_(table),
      browser_(new PageBrowser),
      find_(new QLineEdit),
      found_(new QLabel) {
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    AddTools();
    all->addWidget(browser_);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
        found_->clear();
        browser_->setAccessibleName(PageOf(page.path()).title);
        setWindowTitle(tr("%1 - %2", "a help page, the program")
                           .arg(PageOf(page.path()).title, ToQt(kProductName)));
    });
    auto* memory = new WindowMemory(this, store, "Help", kSize);
    memory->Keep(
        "place",
        [this] { return WasMoved() ? QString::fromLatin1(saveGeometry().toBase64()) : QString(); },
        [this](const QString& place) {
            restoreGeometry(QByteArray::fromBase64(place.toLatin1()));
        });
}

void HelpWindow::AddTools() {
    auto* tools = new QToolBar;
    tools->setAccessibleName(tr("Pages"));
    layout()->addWidget(tools);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setIconSize(QSize(16, 16));
    QAction* contents = tools->addAction(SmallIcon(QStringLiteral("help")), tr("Contents"));
    QAction* back = tools->addAction(SmallIcon(QStringLiteral("undo")), tr("Back"));
    QAction* forward = tools->addAction(SmallIcon(QStringLiteral("redo")), tr("Forward"));
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QAction::triggered, this, [this] { ShowPage(PageNameOf(0)); });
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    find_->setPlaceholderText(tr("Find in page"));
    find_->setAccessibleName(find_->placeholderText());
    find_->setClearButtonEnabled(true);
    for (auto* clear : find_->findChildren<QToolButton*>()) clear->setAccessibleName(tr("Clear"));
    find_->setMaximumWidth(kFindWidth);
    found_->setContentsMargins(8, 0, 8, 0);
    tools->addSeparator();
    tools->addWidget(find_);
    tools->addWidget(found_);
    connect(find_, &QLineEdit::textChanged, this, [this] { Find(From::Here); });
    connect(find_, &QLineEdit::returnPressed, this, [this] { Find(From::Next); });
    const auto onKey = [this](const QKeySequence& key, auto act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    onKey(QKeySequence::Find, [this] {
        find_->setFocus();
        find_->selectAll();
    });
    onKey(Qt::Key_F3, [this] { Find(From::Next); });
    onKey(Qt::SHIFT | Qt::Key_F3, [this] { Find(From::Previous); });
    onKey(Qt::Key_Escape, [this] { close(); });
}

void HelpWindow::ShowPage(const QString& name) {
    browser_->Show(name);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::showEvent(QShowEvent* event) {
    if (!event->spontaneous() && !testAttribute(Qt::WA_Moved)) OpenBeside();
    QWidget::showEvent(event);
}

void HelpWindow::OpenBeside() {
    QRect table(QPoint(), table_.sizeHint().boundedTo(table_.size()));
    table.moveLeft((table_.width() - table.width()) / 2);
    table.moveTopLeft(table_.mapToGlobal(table.topLeft()));
    const QRect available = table_.screen()->availableGeometry();
    const QRect place = PlaceBeside(available, table, size() + QSize(2 * kSide, kFrame + kSide));
    beside_ = place.adjusted(kSide, kFrame, -kSide, -kSide);
    setGeometry(beside_);
}

bool HelpWindow::WasMoved() const {
    // A window manager moves it by its frame.
    return (pos() - beside_.topLeft()).manhattanLength() > 2 * kFrame || size() != beside_.size();
}

void HelpWindow::Find(From from) {
    const QString text = find_->text();
    found_->clear();
    QTextCursor cursor = browser_->textCursor();
    if (from == From::Here) cursor.setPosition(cursor.selectionStart());
    const auto flags =
        from == From::Previous ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextDocument& page = *browser_->document();
    QTextCursor match;
    if (!text.isEmpty()) {
        match = page.find(text, cursor, flags);
        if (match.isNull()) {
            // Once more around, from the other end.
            cursor.movePosition(from == From::Previous ? QTextCursor::End : QTextCursor::Start);
            match = page.find(text, cursor, flags);
        }
        if (match.isNull()) found_->setText(tr("Not on this page"));
    }
    if (match.isNull()) {
        match = cursor;
        match.clearSelection();
    }
    browser_->setTextCursor(match);
}

}  // namespace varnello
