#include "desktop/appearance/looks.h"

namespace varnello {

const QList<LookGroup>& TileGroups() {
    static const QList<LookGroup> groups{
        {QStringLiteral("Bricks"), {1, 2, 3, 4, 5}},
        {QStringLiteral("Marbles"), {11, 12, 13}},
        {QStringLiteral("Paper"), {21, 22, 23, 24, 25}},
        {QStringLiteral("Rocks"), {31, 32, 33, 34}},
        {QStringLiteral("Stars"), {41, 42, 43}},
        {QStringLiteral("Surfaces"), {51, 52, 53, 54, 55}},
        {QStringLiteral("Water"), {61, 62, 63, 64, 65}},
        {QStringLiteral("Wood"), {71, 72, 73}},
    };
    return groups;
}

const QList<LookGroup>& DeckGroups() {
    static const QList<LookGroup> groups{
        {QStringLiteral("Flowers"), {501, 502, 503}},     {QStringLiteral("Garden"), {511, 512}},
        {QStringLiteral("Geometry"), {521, 522, 523}},    {QStringLiteral("Misc"), {531, 532, 533}},
        {QStringLiteral("Nature"), {541, 542, 543, 544}},
    };
    return groups;
}

}  // namespace varnello
