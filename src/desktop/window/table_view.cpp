#include "desktop/window/table_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace varnello {
namespace {

constexpr double kShiftLeft = 20;  // twips that the table stands left of the middle

}  // namespace

TableView::TableView(Motion& motion, Engine& engine, QWidget* parent)
    : QWidget(parent), motion_(motion), engine_(engine) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Card table"));
    connect(&motion_, &Motion::Moved, this, [this] {
        const QRegion changed = ToWidget(TakeChanges());
        if (isVisible()) repaint(changed);
    });
    connect(&motion_, &Motion::Changed, this, &TableView::SyncSoon);
}

void TableView::SyncSoon() {
    if (std::exchange(syncing_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            syncing_ = false;
            update(ToWidget(TakeChanges()));
        },
        Qt::QueuedConnection);
}

QSize TableView::sizeHint() const {
    return {qRound(kTableWidth / kTwipsPerPixel), qRound(kTableHeight / kTwipsPerPixel)};
}

const CardPictures& TableView::Pictures() {
    if (!pictures_ || pictures_->Ratio() != Ratio()) {
        pictures_ = std::make_unique<CardPictures>(Ratio());
        background_ = {};
    }
    return *pictures_;
}

void TableView::RefreshBackground() {
    background_ = {};
    update();
}

void TableView::RefreshDecks() { update(); }

QPoint TableView::TableCorner() const {
    const double left = (width() - sizeHint().width()) / 2.0 - kShiftLeft / kTwipsPerPixel;
    return {static_cast<int>(std::lround(left * Ratio())), 0};
}

QPointF TableView::ToTwips(const QPointF& point) const {
    return (point * Ratio() - TableCorner()) / Ratio() * kTwipsPerPixel;
}

QPoint TableView::CardCentre(PicID id) const {
    const KesCard& card = engine_.table().Card(id);
    const QPointF twips(card.Left + kCardWidth / 2.0, card.Top + kCardHeight / 2.0);
    return (twips / kTwipsPerPixel + QPointF(TableCorner()) / Ratio()).toPoint();
}

TableView::Shown TableView::Look(const KesCard& card) {
    if (!card.Visible) return {};
    const bool closed = card.FaceMode == FaceMode::Closed;
    return {RectOnTable(Pictures(), card.Left, card.Top),
            closed ? 0 : card.Suit * 13 + card.Num + 1, card.Height};
}

TableView::Shown TableView::Look(const KesEmpty& slot) {
    if (!slot.Visible) return {};
    return {RectOnTable(Pictures(), slot.Left, slot.Top), slot.Picture, 0};
}

QRegion TableView::TakeChanges() {
    QRegion changed;
    const auto take = [&](Shown& shown, const Shown& now) {
        if (shown == now) return;
        changed += shown.at;
        changed += now.at;
        shown = now;
    };
    for (PicID id = 0; id < kCardObjects; ++id) {
        take(shownCards_[static_cast<std::size_t>(id)], Look(motion_.Scene().Card(id)));
    }
    std::size_t place = 0;
    ForEachSlot(motion_.Scene(), [&](const char*, int, const KesEmpty& slot) {
        take(shownSlots_[place++], Look(slot));
    });
    return changed;
}

QRegion TableView::ToWidget(const QRegion& device) const {
    QRegion region;
    for (const QRect& rect : device.translated(TableCorner())) {
        region += QRectF(rect.x() / Ratio(), rect.y() / Ratio(), rect.width() / Ratio(),
                         rect.height() / Ratio())
                      .toAlignedRect();
    }
    return region;
}

void TableView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const CardPictures& pictures = Pictures();
    if (background_.isNull()) {
        background_ = BackgroundPicture(Ratio(), StoredBackground(engine_.data()));
    }

    // From here on in device pixels with the table's corner at the origin, so that every edge stays
    // whole at any ratio.
    const QTransform device = painter.deviceTransform();
    const QPointF origin = device.map(QPointF(0, 0));
    const QPoint corner = QPoint(qRound(origin.x()), qRound(origin.y())) + TableCorner();
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) *
                              device.inverted());

    const QRect dirty = device.mapRect(QRectF(event->rect())).toAlignedRect().translated(-corner);
    const QRegion beside = QRegion(dirty) - background_.rect();
    for (const QRect& rect : beside) painter.fillRect(rect, palette().color(QPalette::Mid));
    const QRect part = dirty & background_.rect();
    painter.drawImage(part.topLeft(), background_, part);
    PaintTable(painter, motion_.Scene(), pictures, engine_.data().Get(keys::DeckIndex), dirty);
}

bool TableView::OnStockSlot(const QPointF& twips) const {
    const KesEmpty& slot = engine_.table().PicStock[0];
    return slot.Visible && QRectF(slot.Left, slot.Top, kCardWidth, kCardHeight).contains(twips);
}

void TableView::mousePressEvent(QMouseEvent* event) {
    if (pressedButton_ != Qt::NoButton) return;  // one gesture at a time, whatever the button
    pressedButton_ = event->button();
    setMouseTracking(true);  // a release that was lost shows as a move without a button
    const QPointF at = ToTwips(event->position());
    pressed_ = engine_.table().CardAt(at.x(), at.y());
    if (pressed_ == kNoCard) {
        stockPressed_ = OnStockSlot(at);
        return;
    }
    const KesCard& card = engine_.table().Card(pressed_);
    engine_.gestures().MouseDown(pressed_, at.x() - card.Left, at.y() - card.Top);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) return CancelGesture();  // the release was lost
    if (pressed_ == kNoCard) return;
    if (engine_.gestures().Dragging()) motion_.Finish();
    const QPointF at = ToTwips(event->position());
    const KesCard& card = engine_.table().Card(pressed_);
    engine_.gestures().MouseMove(pressed_, at.x() - card.Left, at.y() - card.Top);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != pressedButton_) return;
    if (stockPressed_ && OnStockSlot(ToTwips(event->position()))) {
        engine_.gestures().StockClick();
    }
    const PicID id = TakePressed();
    if (engine_.gestures().Dragging()) motion_.Finish();
    if (id != kNoCard) engine_.gestures().MouseUp(id);
}

PicID TableView::TakePressed() {
    pressedButton_ = Qt::NoButton;
    setMouseTracking(false);
    stockPressed_ = false;
    return std::exchange(pressed_, kNoCard);
}

void TableView::CancelGesture() {
    const PicID id = TakePressed();
    if (!engine_.gestures().Dragging() || id == kNoCard) return;
    motion_.Finish();
    engine_.gestures().PutBack(id);
}

bool TableView::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::Hide:
        case QEvent::UngrabMouse:
        case QEvent::WindowDeactivate:
        case QEvent::WindowBlocked: CancelGesture(); break;
        default: break;
    }
    return QWidget::event(event);
}

}  // namespace varnello
