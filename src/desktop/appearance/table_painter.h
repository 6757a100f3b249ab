#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <functional>

#include "desktop/appearance/background.h"
#include "desktop/appearance/pictures.h"
#include "engine/board/table.h"

namespace varnello {

inline constexpr double kTwipsPerPixel = 15;  ///< device-independent pixels

/// The table's size in device pixels.
QSize TableSize(double ratio);

/// Where a card or slot stands on the table's picture, in device pixels; whole, so that all edges
/// stay sharp.
QRect RectOnTable(const CardPictures& pictures, double leftTwips, double topTwips);

/// The table's background at a device pixel ratio.
QImage BackgroundPicture(double ratio, const BackgroundChoice& choice);

/// The frontmost visible card whose picture covers a device pixel of the table, or `kNoCard`: what
/// is hit is what is drawn.
PicID CardAtPixel(const Table& table, const CardPictures& pictures, const QPoint& pixel);

/// Paints the visible slots and then the visible cards from back to front, in device pixels with
/// the table's corner at the origin. What lies outside `clip` is left out. `lift` is called before
/// the card `lowest`, above which all others are in a person's hand.
void PaintTable(QPainter& painter, const Table& table, const CardPictures& pictures, int deckIndex,
                const QRect& clip, PicID lowest = kNoCard, const std::function<void()>& lift = {});

}  // namespace varnello
