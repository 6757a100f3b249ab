#include "back.h"

#include "backs/patterns.h"
#include "colours.h"

#include <map>

namespace varnello::render {

namespace {

constexpr double margin = 4;

const std::map<int, Pattern>& Patterns() {
    static const std::map<int, Pattern> patterns{
        {501, DrawDaisies},     {502, DrawRoses},      {503, DrawTulips},
        {511, DrawTrellis},     {512, DrawHedge},      {521, DrawInterlacedCircles},
        {522, DrawStarLattice}, {523, DrawWeave},      {531, DrawDiagonalLattice},
        {532, DrawSunburst},    {533, DrawFishScales}, {541, DrawWaves},
        {542, DrawLeaves},      {543, DrawFeathers},   {544, DrawNightHills},
    };
    return patterns;
}

// The upper half of the pattern within the margin; transparent elsewhere.
QImage PaintUpperHalf(const CardShape& shape, Pattern pattern) {
    const int inset = shape.Px(margin);
    const QRect panel = shape.Bounds().adjusted(inset, inset, -inset, -inset);
    return PaintImage(shape.size, [&](QPainter& painter) {
        painter.setClipRect(panel & QRect(0, 0, shape.size.width(), shape.size.height() / 2));
        painter.translate(QRectF(panel).center());
        painter.scale(shape.ratio, shape.ratio);
        const QSizeF size = QSizeF(panel.size()) / shape.ratio;
        pattern(painter, QRectF(QPointF(-size.width() / 2, -size.height() / 2), size));
    });
}

}  // namespace

std::vector<int> BackNumbers() {
    std::vector<int> numbers;
    for (const auto& [number, pattern] : Patterns()) numbers.push_back(number);
    return numbers;
}

void DrawBack(QPainter& painter, const CardShape& shape, int number) {
    DrawPaper(painter, shape);
    const QImage upper = PaintUpperHalf(shape, Patterns().at(number));
    painter.drawImage(0, 0, upper);
    painter.drawImage(0, 0, Turned(upper));
}

}  // namespace varnello::render
