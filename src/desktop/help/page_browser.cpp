#include "desktop/help/page_browser.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "desktop/appearance/colours.h"
#include "desktop/help/pages.h"

namespace varnello {
namespace {

constexpr int kMargin = 14;
constexpr int kPreviewPart = 2;  // a grid's previews are so many times smaller

const QString kPageScheme = QStringLiteral("page");
const QString kPreviewScheme = QStringLiteral("preview");
const QString kSmallScheme = QStringLiteral("small");

/// The page that a link names: "playing", or "game:" and a game.
QString PageOfLink(const QUrl& link) {
    const bool plain = link.scheme().isEmpty() || link.scheme() == kPageScheme;
    return plain ? link.path() : link.scheme() + ':' + link.path();
}

}  // namespace

PageBrowser::PageBrowser() {
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    FollowPalette();
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { Show(PageOfLink(link)); });
    connect(this, &QTextBrowser::sourceChanged, this,
            [this] { document()->setDocumentMargin(kMargin); });
}

void PageBrowser::Show(const QString& page) {
    if (PageOf(page, 1).html.isEmpty()) return;
    QUrl url;
    url.setScheme(kPageScheme);
    url.setPath(page);
    setSource(url, QTextDocument::HtmlResource);
}

int PageBrowser::Columns() const {
    const int free = viewport()->width() - 2 * kMargin - kContentsColumn - kGridGap;
    return std::max(1, free / (kSmallPreview.width() + kGridGap));
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::ImageResource) return Picture(name);
    columns_ = Columns();
    const HelpPage page = PageOf(name.path(), columns_);
    if (page.html.isEmpty()) return {};
    return QStringLiteral("<h1>%1</h1>%2").arg(page.title.toHtmlEscaped(), page.html);
}

QPixmap PageBrowser::Picture(const QUrl& name) {
    const bool small = name.scheme() == kSmallScheme;
    if (!small && name.scheme() != kPreviewScheme) return {};
    const double ratio = devicePixelRatioF();
    QPixmap& picture = pictures_[name.toString() + QString::number(ratio)];
    if (picture.isNull()) {
        const std::string game = name.path().toStdString();
        picture = previews_.Of(game, small ? ratio / kPreviewPart : ratio);
        picture.setDevicePixelRatio(ratio);
    }
    return picture;
}

void PageBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (Page() != PageNameOf(0) || Columns() == columns_) return;
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

void PageBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    FollowPalette();
    if (!Page().isEmpty()) reload();
}

void PageBrowser::FollowPalette() {
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1; text-decoration: none }")
                                         .arg(AccentColour(palette()).name()));
}

}  // namespace varnello
