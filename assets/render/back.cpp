#include "back.h"

#include "backs/patterns.h"
#include "colours.h"

namespace varnello::render {

namespace {

constexpr double margin = 4;

struct Back {
    int number;
    Pattern pattern;
};
struct Group {
    const char* name;
    std::vector<Back> backs;
};

const std::vector<Group>& Groups() {
    static const std::vector<Group> groups{
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Flowers"),
         {{501, DrawDaisies}, {502, DrawRoses}, {503, DrawTulips}}},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Garden"),
         {{511, DrawTrellis}, {512, DrawHedge}}},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Geometry"),
         {{521, DrawInterlacedCircles}, {522, DrawStarLattice}, {523, DrawWeave}}},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Misc"),
         {{531, DrawDiagonalLattice}, {532, DrawSunburst}, {533, DrawFishScales}}},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Nature"),
         {{541, DrawWaves}, {542, DrawLeaves}, {543, DrawFeathers}, {544, DrawNightHills}}},
    };
    return groups;
}

Pattern PatternOf(int number) {
    for (const Group& group : Groups()) {
        for (const Back& back : group.backs) {
            if (back.number == number) return back.pattern;
        }
    }
    return DrawDiagonalLattice;  // the default
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

std::vector<BackGroup> BackGroups() {
    std::vector<BackGroup> groups;
    for (const Group& group : Groups()) {
        groups.push_back({group.name, {}});
        for (const Back& back : group.backs) groups.back().numbers.push_back(back.number);
    }
    return groups;
}

void DrawBack(QPainter& painter, const CardShape& shape, int number) {
    DrawPaper(painter, shape);
    const QImage upper = PaintUpperHalf(shape, PatternOf(number));
    painter.drawImage(0, 0, upper);
    painter.drawImage(0, 0, Turned(upper));
}

}  // namespace varnello::render
