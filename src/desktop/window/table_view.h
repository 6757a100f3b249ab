#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QRegion>
#include <QScrollBar>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>

#include "desktop/appearance/hand.h"
#include "desktop/appearance/table_painter.h"
#include "desktop/window/motion.h"
#include "desktop/window/zoom.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `PicMain` with `PicBack` in it: the table of fixed size, centred, cut off where the window is
/// smaller; zoomed in, it can be scrolled there. It paints the scene on its ground and hands the
/// mouse on to the gestures.
class TableView : public QWidget {
    Q_OBJECT

public:
    /// Both outlive the view.
    TableView(Motion& motion, Engine& engine, QWidget* parent);

    /// Paints the background anew from the settings.
    void RefreshBackground();
    /// Takes the deck's back anew from the settings. A number without one leaves the old back.
    void RefreshDecks();
    /// Where a card is drawn whose place on the table is given in twips, in widget coordinates.
    QRect CardRect(double left, double top);
    const Engine& engine() const { return engine_; }

    QSize sizeHint() const override;

    /// The release of a button can't come any more, or isn't wanted: what is carried goes back.
    void CancelGesture();
    /// Whether cards are in a person's hand.
    bool Carrying() const { return engine_.gestures().Dragging(); }

    /// Makes the table larger (1), smaller (-1) or as large as it is made (0) on the screen.
    void ZoomBy(int direction);
    int ZoomPercent() const { return zoom_.Percent(); }
    /// Tells once how the table is made larger.
    void TellOfZoom();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What was last shown of a card or slot.
    struct Shown {
        QRect at;  ///< device pixels on the table; empty when hidden
        int picture = -1;
        std::uint64_t height = 0;
        bool operator==(const Shown&) const = default;
    };

    double Ratio() const { return devicePixelRatioF(); }
    /// Device pixels of a pixel of the table.
    double Scale() const { return Ratio() * zoom_.Factor(); }
    const CardPictures& Pictures();
    const QImage& Ground();
    /// Corner of this widget in device pixels of its window.
    QPoint Origin() const;
    /// Corner of the table in device pixels of this widget.
    QPoint TableCorner() const;
    /// Where the mouse is, in device pixels from the table's corner.
    QPointF OnTable(const QMouseEvent& event) const;
    QPointF ToTwips(const QPointF& devicePixels) const;
    /// The card and, without one, whether it is the stock's slot at a point of the table.
    PicID CardAt(const QPointF& devicePixels);
    Shown Look(const KesCard& card);
    Shown Look(const KesEmpty& slot);
    /// Takes note of what the scene shows now; the result is what has changed, in device pixels.
    QRegion TakeChanges();
    QRegion ToWidget(const QRegion& device) const;
    /// Shows all that has changed by then at the next turn of the event loop; during a drag with
    /// the next frame of the display.
    void SyncSoon();
    void Sync();
    bool OnStockSlot(const QPointF& devicePixels);
    /// What the hand holds and where it would lay it.
    Hand TakeHand();
    QRect TargetRect(const Place& place);
    /// The shape of the pointer follows what lies under it.
    void FollowPointer();
    Qt::CursorShape PointerShape();
    /// What the screen has for the table.
    QSize Room() const;
    void LayoutScrollBars();
    /// Forgets the press; the card that was under it, or none.
    PicID TakePressed();

    Motion& motion_;
    Engine& engine_;
    Zoom zoom_;
    std::unique_ptr<CardPictures> pictures_;
    std::unique_ptr<HandPainter> handPainter_;
    QImage ground_;
    QRect groundTable_;  ///< where the table is on it
    int deck_ = keys::DeckIndex.Default;
    QScrollBar* across_;
    QScrollBar* down_;
    std::array<Shown, kCardObjects> shownCards_;
    std::array<Shown, kSlots> shownSlots_;
    Hand hand_;
    std::optional<QPointF> pointer_;  ///< on the table, in device pixels
    PicID pressed_ = kNoCard;
    int wheel_ = 0;       ///< turned with Ctrl and not used yet, eighths of a degree
    bool moved_ = false;  ///< the mouse, since the press
    bool stockPressed_ = false;
    QTimer frame_;
    QElapsedTimer synced_;
    Qt::MouseButton pressedButton_ = Qt::NoButton;
};

}  // namespace varnello
