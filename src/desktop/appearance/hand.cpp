#include "desktop/appearance/hand.h"

#include <QRegion>
#include <algorithm>
#include <vector>

namespace varnello {
namespace {

// Pixels of the table.
constexpr double kDrop = 4;  // the shadow lies below the cards, the light above them
constexpr double kSoft = 5;  // from the shadow's edge to where it can't be seen
constexpr double kStrength = 0.42;
constexpr double kCorner = 5;
constexpr double kOutline = 2;
const QColor kOutlineColour(255, 214, 102, 235);
const QColor kOutlineEdge(0, 0, 0, 110);

/// How dark each pixel of a bar of this length is, with soft ends within it.
std::vector<double> SoftBar(int length, double soft) {
    std::vector<double> dark(static_cast<std::size_t>(length));
    for (int i = 0; i < length; ++i) {
        const double inside = std::min(i + 0.5, length - i - 0.5) / (2 * soft);
        const double part = std::clamp(inside, 0.0, 1.0);
        dark[static_cast<std::size_t>(i)] = part * part * (3 - 2 * part);
    }
    return dark;
}

QImage SoftShadow(QSize size, double soft) {
    const std::vector<double> across = SoftBar(size.width(), soft);
    const std::vector<double> down = SoftBar(size.height(), soft);
    QImage shadow(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(shadow.scanLine(y));
        const double row = 255 * kStrength * down[static_cast<std::size_t>(y)];
        for (int x = 0; x < size.width(); ++x) {
            line[x] = qRgba(0, 0, 0, static_cast<int>(row * across[static_cast<std::size_t>(x)]));
        }
    }
    return shadow;
}

}  // namespace

int HandPainter::Pixels(double pixels) const { return std::max(qRound(pixels * scale_), 1); }

QRect HandPainter::ShadowOf(const QRect& cards) const {
    const int soft = Pixels(kSoft);
    return cards.translated(0, Pixels(kDrop)).adjusted(-soft, -soft, soft, soft);
}

QRegion HandPainter::Region(const Hand& hand) const {
    QRegion region;
    if (!hand.cards.isEmpty()) region += ShadowOf(hand.cards);
    const int out = Pixels(kOutline) + 2;
    if (!hand.target.isEmpty()) region += hand.target.adjusted(-out, -out, out, out);
    return region;
}

void HandPainter::Paint(QPainter& painter, const Hand& hand) const {
    if (!hand.target.isEmpty()) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        const auto outline = [&](double out, double width, const QColor& colour) {
            const QRectF at = QRectF(hand.target).adjusted(-out, -out, out, out);
            const double corner = kCorner * scale_ + out;
            painter.setPen(QPen(colour, width));
            painter.drawRoundedRect(at, corner, corner);
        };
        const double width = Pixels(kOutline);
        outline(width / 2 + 0.5, width + 1, kOutlineEdge);
        outline(width / 2, width, kOutlineColour);
        painter.restore();
    }
    if (hand.cards.isEmpty()) return;
    const QRect at = ShadowOf(hand.cards);
    if (shadow_.size() != at.size()) shadow_ = SoftShadow(at.size(), kSoft * scale_);
    painter.drawImage(at.topLeft(), shadow_);
}

}  // namespace varnello
