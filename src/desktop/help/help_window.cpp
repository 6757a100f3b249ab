#include "desktop/help/help_window.h"

#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/appearance/icons.h"
#include "desktop/appearance/preview.h"
#include "desktop/help/pages.h"
#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr QSize kSize(640, 620);
constexpr int kMargin = 14;
const QString kPreviewScheme = QStringLiteral("preview");
const QString kPageScheme = QStringLiteral("page");

QUrl UrlOf(const QString& page) {
    QUrl url;
    url.setScheme(kPageScheme);
    url.setPath(page);
    return url;
}

/// The page that a link names: "playing", or "game:" and a game.
QString PageOfLink(const QUrl& link) {
    const bool plain = link.scheme().isEmpty() || link.scheme() == kPageScheme;
    return plain ? link.path() : link.scheme() + ':' + link.path();
}

/// Serves the pages and the pictures in them; nothing comes from outside the program.
class Pages : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type == QTextDocument::ImageResource && name.scheme() == kPreviewScheme) {
            return PreviewOf(name.path().toStdString(), devicePixelRatioF());
        }
        const HelpPage page = PageOf(name.path());
        if (page.html.isEmpty()) return {};
        return QStringLiteral("<h1>%1</h1>%2").arg(page.title.toHtmlEscaped(), page.html);
    }
};

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), browser_(new Pages), find_(new QLineEdit) {
    resize(kSize);
    auto* tools = new QToolBar;
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setIconSize(QSize(16, 16));
    QAction* contents = tools->addAction(SmallIcon(QStringLiteral("help")), tr("Contents"));
    QAction* back = tools->addAction(SmallIcon(QStringLiteral("undo")), tr("Back"));
    QAction* forward = tools->addAction(SmallIcon(QStringLiteral("redo")), tr("Forward"));
    find_->setPlaceholderText(tr("Find in page"));
    find_->setAccessibleName(find_->placeholderText());
    find_->setClearButtonEnabled(true);
    tools->addSeparator();
    tools->addWidget(find_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(tools);
    all->addWidget(browser_);

    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QAction::triggered, this, [this] { ShowPage(PageNameOf(0)); });
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { Open(PageOfLink(link)); });
    connect(browser_, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) {
        browser_->document()->setDocumentMargin(kMargin);
        setWindowTitle(PageOf(source.path()).title + QStringLiteral(" - ") + ToQt(kProductName));
    });
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(find_, &QLineEdit::returnPressed, this, [this] { Find(false); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, find_,
            [this] { find_->setFocus(); });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { Find(false); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { Find(true); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void HelpWindow::ShowPage(const QString& name) {
    Open(name);
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::Open(const QString& page) {
    if (!PageOf(page).html.isEmpty()) {
        browser_->setSource(UrlOf(page), QTextDocument::HtmlResource);
    }
}

void HelpWindow::Find(bool backward) {
    const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find_->text().isEmpty() || browser_->find(find_->text(), flags)) return;
    // Once more around, from the other end.
    browser_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    browser_->find(find_->text(), flags);
}

}  // namespace varnello
