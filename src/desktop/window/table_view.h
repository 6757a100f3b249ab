#pragma once

#include <QImage>
#include <QRegion>
#include <QWidget>
#include <array>
#include <chrono>
#include <memory>

#include "desktop/appearance/table_painter.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `PicMain` with `PicBack` in it: the table of fixed size, centred, cut off where the window is
/// smaller. It shows the engine's table and hands the mouse on to the gestures.
class TableView : public QWidget, public TableSurface {
    Q_OBJECT

public:
    explicit TableView(QWidget* parent = nullptr);

    /// The engine whose table is shown; to be set before the view is. It outlives the view's use.
    void SetEngine(Engine* engine);
    /// Paints the background anew from the settings.
    void RefreshBackground();
    /// Shows the deck's back anew from the settings.
    void RefreshDecks();
    /// Off: flights aren't held long enough to be seen. For tests.
    void SetPaced(bool paced) { paced_ = paced; }
    /// The centre of the visible part of a card, in widget coordinates.
    QPoint CardCentre(PicID id) const;

    void Repaint() override;
    void RepaintFlight() override;
    void Yield() override;
    /// Shows what has changed, at the next turn of the event loop.
    void Sync();

    QSize sizeHint() const override;

protected:
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

    using Steady = std::chrono::steady_clock;

    double Ratio() const { return devicePixelRatioF(); }
    const CardPictures& Pictures();
    /// Corner of the table in device pixels of this widget.
    QPoint TableCorner() const;
    /// A point of this widget in twips on the table.
    QPointF ToTwips(const QPointF& point) const;
    Shown Look(const KesCard& card);
    Shown Look(const KesEmpty& slot);
    /// Takes note of what the table shows now; the result is what has changed, in device pixels.
    QRegion TakeChanges();
    QRegion ToWidget(const QRegion& device) const;
    /// How long one step of a flight is held, so that a person sees it.
    Steady::duration FlightStep() const;
    bool OnStockSlot(const QPointF& twips) const;
    void EndGesture();

    Engine* engine_ = nullptr;
    std::unique_ptr<CardPictures> pictures_;
    QImage background_;
    std::array<Shown, kCardObjects> shownCards_;
    std::array<Shown, 18 + 10 + 8 + 1 + 1> shownSlots_;
    PicID pressed_ = kNoCard;
    bool stockPressed_ = false;
    Qt::MouseButton pressedButton_ = Qt::NoButton;
    bool paced_ = true;
};

}  // namespace varnello
