#pragma once

#include <QImage>
#include <QRegion>
#include <QWidget>
#include <array>
#include <memory>

#include "desktop/appearance/table_painter.h"
#include "desktop/window/motion.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `PicMain` with `PicBack` in it: the table of fixed size, centred, cut off where the window is
/// smaller. It paints the scene and nothing else, and hands the mouse on to the gestures.
class TableView : public QWidget {
    Q_OBJECT

public:
    /// Both outlive the view.
    TableView(Motion& motion, Engine& engine, QWidget* parent);

    /// Paints the background anew from the settings.
    void RefreshBackground();
    /// Shows the deck's back anew from the settings.
    void RefreshDecks();
    /// The centre of the visible part of a card, in widget coordinates.
    QPoint CardCentre(PicID id) const;

    QSize sizeHint() const override;

    /// The release of a button can't come any more: what is carried goes back.
    void CancelGesture();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// What was last shown of a card or slot.
    struct Shown {
        QRect at;  ///< device pixels on the table; empty when hidden
        int picture = -1;
        std::uint64_t height = 0;
        bool operator==(const Shown&) const = default;
    };

    double Ratio() const { return devicePixelRatioF(); }
    const CardPictures& Pictures();
    /// Corner of the table in device pixels of this widget.
    QPoint TableCorner() const;
    /// A point of this widget in twips on the table.
    QPointF ToTwips(const QPointF& point) const;
    Shown Look(const KesCard& card);
    Shown Look(const KesEmpty& slot);
    /// Takes note of what the scene shows now; the result is what has changed, in device pixels.
    QRegion TakeChanges();
    QRegion ToWidget(const QRegion& device) const;
    /// Shows all that has changed by then at the next turn of the event loop.
    void SyncSoon();
    bool OnStockSlot(const QPointF& twips) const;
    /// Forgets the press; the card that was under it, or none.
    PicID TakePressed();

    Motion& motion_;
    Engine& engine_;
    std::unique_ptr<CardPictures> pictures_;
    QImage background_;
    std::array<Shown, kCardObjects> shownCards_;
    std::array<Shown, 18 + 10 + 8 + 1 + 1> shownSlots_;
    PicID pressed_ = kNoCard;
    bool stockPressed_ = false;
    bool syncing_ = false;
    Qt::MouseButton pressedButton_ = Qt::NoButton;
};

}  // namespace varnello
