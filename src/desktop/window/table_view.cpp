#include "desktop/window/table_view.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <cmath>

#include "desktop/appearance/ground.h"
#include "desktop/appearance/looks.h"

namespace varnello {
namespace {

constexpr double kShiftLeft = 20;  // twips that the table stands left of the middle
const QSize kTablePixels(qRound(kTableWidth / kTwipsPerPixel),
                         qRound(kTableHeight / kTwipsPerPixel));
constexpr int kTellTime = 12000;  // milliseconds
constexpr int kWheelStep = 120;   // eighths of a degree, one notch

/// The pixel that a point lies on; a point at its very edge belongs to it whatever its rounding.
QPoint PixelOf(const QPointF& devicePixels) {
    constexpr double kRounding = 0.01;
    return {static_cast<int>(std::floor(devicePixels.x() + kRounding)),
            static_cast<int>(std::floor(devicePixels.y() + kRounding))};
}

}  // namespace

TableView::TableView(Motion& motion, Engine& engine, QWidget* parent)
    : QWidget(parent),
      motion_(motion),
      engine_(engine),
      zoom_(engine.data().Store()),
      across_(new QScrollBar(Qt::Horizontal, this)),
      down_(new QScrollBar(Qt::Vertical, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);  // for the pointer, and to see a release that was lost
    for (QScrollBar* bar : {across_, down_}) {
        bar->setCursor(Qt::ArrowCursor);
        bar->hide();
        connect(bar, &QScrollBar::valueChanged, this, [this] { update(); });
    }
    zoom_.FitInto(Room(), kTablePixels);
    RefreshDecks();
    setAccessibleName(tr("Card table"));
    setFocusPolicy(Qt::StrongFocus);  // for who follows the focus to hear what happens
    connect(&motion_, &Motion::Moved, this, [this] {
        const QRegion changed = ToWidget(TakeChanges());
        if (isVisible()) repaint(changed);
    });
    connect(&motion_, &Motion::Changed, this, &TableView::SyncSoon);
    frame_.setSingleShot(true);
    frame_.setTimerType(Qt::PreciseTimer);
    connect(&frame_, &QTimer::timeout, this, &TableView::Sync);
    connect(&motion_, &Motion::Shown, this, &TableView::SyncSoon);
}

void TableView::SyncSoon() {
    // A mouse may tell of its moves several times in a frame of the display: what is in the hand is
    // painted once in each.
    const bool waits = Carrying() && synced_.isValid();
    if (!waits) return frame_.start(0);
    if (frame_.isActive()) return;
    const double rest = motion_.FrameMilliseconds() - double(synced_.elapsed());
    frame_.start(std::max(static_cast<int>(rest), 0));
}

void TableView::Sync() {
    synced_.start();
    update(ToWidget(TakeChanges()));
    FollowPointer();
}

QSize TableView::sizeHint() const { return kTablePixels * zoom_.Percent() / 100; }

const CardPictures& TableView::Pictures() {
    if (!pictures_ || pictures_->Ratio() != Scale()) {
        pictures_ = std::make_unique<CardPictures>(Scale());
        handPainter_ = std::make_unique<HandPainter>(Scale());
    }
    return *pictures_;
}

const QImage& TableView::Ground() {
    const QSize size = (QSizeF(this->size()) * Ratio()).toSize() + QSize(1, 1);
    const QRect table(TableCorner(), TableSize(Scale()));
    if (ground_.size() != size || groundTable_ != table) {
        ground_ = GroundPicture(size, table, Scale(), StoredBackground(engine_.data()));
        groundTable_ = table;
    }
    return ground_;
}

void TableView::RefreshBackground() {
    ground_ = {};
    update();
}

void TableView::RefreshDecks() {
    const int deck = engine_.data().Get(keys::DeckIndex);
    if (HasDeck(deck)) deck_ = deck;
    update();
}

void TableView::ZoomBy(int direction) {
    CancelGesture();
    if (!zoom_.Step(direction, Room(), kTablePixels)) return;
    LayoutScrollBars();
    TakeChanges();
    update();
    FollowPointer();
}

void TableView::TellOfZoom() {
    if (!isVisible() || !zoom_.TakeNews()) return;
    const QString text = tr("Ctrl with + and - makes the cards larger and smaller.");
    const int wide = QFontMetrics(QToolTip::font()).horizontalAdvance(text);
    QToolTip::showText(mapToGlobal(QPoint((width() - wide) / 2, height() * 3 / 4)), text, this, {},
                       kTellTime);
}

QSize TableView::Room() const {
    const QSize around = window()->size() - size();
    return screen()->availableSize() - QSize(0, isVisible() ? around.height() : 0);
}

void TableView::LayoutScrollBars() {
    const QSize beyond = zoom_.Percent() > 100 ? sizeHint() - size() : QSize(0, 0);
    const int thick = across_->sizeHint().height();
    const auto lay = [&](QScrollBar* bar, int range, int page, int middle, const QRect& at) {
        const bool was = !bar->isHidden();
        bar->setVisible(range > 0);
        bar->setGeometry(at);
        bar->setPageStep(page);
        bar->setSingleStep(qRound(kCardHeight / kTwipsPerPixel * zoom_.Factor() / 2));
        bar->setRange(0, std::max(range, 0));
        if (!was) bar->setValue(middle);
    };
    const bool both = beyond.width() > 0 && beyond.height() > 0;
    const int corner = both ? thick : 0;
    // What a bar covers must come into view as well.
    const int rangeX = beyond.width() + (beyond.height() > 0 ? thick : 0);
    const int rangeY = beyond.height() + (beyond.width() > 0 ? thick : 0);
    lay(across_, beyond.width() > 0 ? rangeX : 0, width(), rangeX / 2,
        QRect(0, height() - thick, width() - corner, thick));
    lay(down_, beyond.height() > 0 ? rangeY : 0, height(), 0,
        QRect(width() - thick, 0, thick, height() - corner));
}

void TableView::resizeEvent(QResizeEvent*) { LayoutScrollBars(); }

void TableView::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        wheel_ += turn.y();
        const int direction = wheel_ >= kWheelStep ? 1 : wheel_ <= -kWheelStep ? -1 : 0;
        if (direction == 0) return;
        wheel_ = 0;
        return ZoomBy(direction);
    }
    QScrollBar* bar = event->modifiers() & Qt::ShiftModifier || turn.y() == 0 ? across_ : down_;
    if (bar->isVisible()) QCoreApplication::sendEvent(bar, event);
}

QPoint TableView::Origin() const {
    const QPointF at = QPointF(mapTo(window(), QPoint(0, 0))) * Ratio();
    return {qRound(at.x()), qRound(at.y())};
}

QPoint TableView::TableCorner() const {
    const double table = kTablePixels.width() * zoom_.Factor();
    const double middle = (width() - table) / 2.0 - kShiftLeft / kTwipsPerPixel * zoom_.Factor();
    const double left = across_->isHidden() ? middle : -across_->value();
    const double top = down_->isHidden() ? 0 : -down_->value();
    return {static_cast<int>(std::lround(left * Ratio())),
            static_cast<int>(std::lround(top * Ratio()))};
}

QPointF TableView::OnTable(const QMouseEvent& event) const {
    const QPointF inWindow = mapTo(window(), QPoint(0, 0)) + event.position();
    return inWindow * Ratio() - Origin() - TableCorner();
}

QPointF TableView::ToTwips(const QPointF& devicePixels) const {
    return devicePixels / Scale() * kTwipsPerPixel;
}

PicID TableView::CardAt(const QPointF& devicePixels) {
    return CardAtPixel(engine_.table(), Pictures(), PixelOf(devicePixels));
}

QRect TableView::CardRect(double left, double top) {
    const QRectF device = RectOnTable(Pictures(), left, top).translated(TableCorner());
    return QRectF(device.topLeft() / Ratio(), device.size() / Ratio()).toRect();
}

TableView::Shown TableView::Look(const KesCard& card) {
    if (!card.Visible) return {};
    const int face = card.Suit * kRanks + card.Num + 1;
    const int open = card.Selected ? -face : face;
    return {RectOnTable(Pictures(), card.Left, card.Top),
            card.FaceMode == FaceMode::Closed ? 0 : open, card.Height};
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
    const Hand hand = TakeHand();
    if (hand != hand_) {
        changed += handPainter_->Region(hand_);
        changed += handPainter_->Region(hand);
        hand_ = hand;
    }
    std::size_t place = 0;
    ForEachSlot(motion_.Scene(), [&](const char*, int, const KesEmpty& slot) {
        take(shownSlots_[place++], Look(slot));
    });
    return changed;
}

QRect TableView::TargetRect(const Place& place) {
    const cArray& array = engine_.array();
    const bool covers = place.Cell != Cell::Res && array.GetTop(place.Cell, place.Pile) >= 0;
    if (covers) {
        const KesCard& card = engine_.table().Card(array.GetTopPicID(place.Cell, place.Pile));
        return RectOnTable(Pictures(), card.Left, card.Top);
    }
    return RectOnTable(Pictures(), array.GetCordX(place), array.GetCordY(place));
}

Hand TableView::TakeHand() {
    const Gestures& gestures = engine_.gestures();
    if (!gestures.Dragging() || !moved_ || pressed_ == kNoCard) return {};
    const KesCard& lowest = motion_.Scene().Card(pressed_);
    Hand hand{pressed_, RectOnTable(Pictures(), lowest.Left, lowest.Top), {}};
    for (int i = 1; i <= gestures.Carried(); ++i) {
        const Place& at = lowest.Loc;
        const PicID id = engine_.array().GetPicID(at.Cell, at.Pile, at.Pos + i);
        const KesCard& card = motion_.Scene().Card(id);
        hand.cards |= RectOnTable(Pictures(), card.Left, card.Top);
    }
    if (const auto place = gestures.Target(pressed_)) hand.target = TargetRect(*place);
    return hand;
}

Qt::CursorShape TableView::PointerShape() {
    if (engine_.gestures().Dragging()) return Qt::ClosedHandCursor;
    if (!pointer_ || pressedButton_ != Qt::NoButton) return Qt::ArrowCursor;
    const PicID id = CardAt(*pointer_);
    if (id == kNoCard) {
        const bool redeal = engine_.gestures().RedealPossible() && OnStockSlot(*pointer_);
        return redeal ? Qt::PointingHandCursor : Qt::ArrowCursor;
    }
    switch (engine_.gestures().GripOf(id)) {
        case Grip::Lift: return Qt::OpenHandCursor;
        case Grip::Deal: return Qt::PointingHandCursor;
        case Grip::None: break;
    }
    return Qt::ArrowCursor;
}

void TableView::FollowPointer() {
    // What flies changes all the time; the pointer follows when it has arrived.
    if (motion_.Showing() && !engine_.gestures().Dragging()) return;
    const Qt::CursorShape shape = PointerShape();
    if (cursor().shape() != shape) setCursor(shape);
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
    const QImage& ground = Ground();

    // From here on in device pixels with the table's corner at the origin, so that every edge stays
    // whole at any ratio.
    const QTransform device = painter.deviceTransform();
    const QPoint table = TableCorner();
    // In the window this is `Origin`; elsewhere the painter knows.
    const QPointF origin = device.map(QPointF(0, 0));
    const QPoint corner = QPoint(qRound(origin.x()), qRound(origin.y())) + table;
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) *
                              device.inverted());

    const QRect dirty = device.mapRect(QRectF(event->rect())).toAlignedRect().translated(-corner);
    painter.drawImage(dirty.topLeft(), ground, dirty.translated(table));
    PaintTable(painter, motion_.Scene(), pictures, deck_, dirty, hand_.lowest,
               [&] { handPainter_->Paint(painter, hand_); });
}

bool TableView::OnStockSlot(const QPointF& devicePixels) {
    const KesEmpty& slot = engine_.table().PicStock[0];
    return slot.Visible &&
           RectOnTable(Pictures(), slot.Left, slot.Top).contains(PixelOf(devicePixels));
}

void TableView::mousePressEvent(QMouseEvent* event) {
    if (pressedButton_ != Qt::NoButton) return;  // one gesture at a time, whatever the button
    pressedButton_ = event->button();
    moved_ = false;
    const QPointF at = OnTable(*event);
    pointer_ = at;
    pressed_ = CardAt(at);
    if (pressed_ == kNoCard) {
        stockPressed_ = OnStockSlot(at);
    } else {
        const KesCard& card = engine_.table().Card(pressed_);
        const QPointF twips = ToTwips(at);
        engine_.gestures().MouseDown(pressed_, twips.x() - card.Left, twips.y() - card.Top);
    }
    FollowPointer();
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = OnTable(*event);
    if (event->buttons() == Qt::NoButton) {
        CancelGesture();  // the release was lost
        FollowPointer();
        return;
    }
    if (pressed_ == kNoCard) return;
    if (Carrying()) motion_.Finish();
    moved_ = true;
    const QPointF twips = ToTwips(*pointer_);
    const KesCard& card = engine_.table().Card(pressed_);
    engine_.gestures().MouseMove(pressed_, twips.x() - card.Left, twips.y() - card.Top);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != pressedButton_) return;
    pointer_ = OnTable(*event);
    if (stockPressed_ && OnStockSlot(*pointer_)) engine_.gestures().StockClick();
    if (!moved_) return CancelGesture();  // a bare click moves nothing, however close a pile is
    const PicID id = TakePressed();
    if (Carrying()) motion_.Finish();
    if (id != kNoCard) engine_.gestures().MouseUp(id);
    SyncSoon();
}

void TableView::leaveEvent(QEvent*) {
    pointer_.reset();
    FollowPointer();
}

PicID TableView::TakePressed() {
    pressedButton_ = Qt::NoButton;
    stockPressed_ = false;
    return std::exchange(pressed_, kNoCard);
}

void TableView::CancelGesture() {
    const PicID id = TakePressed();
    SyncSoon();
    if (!Carrying() || id == kNoCard) return;
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
