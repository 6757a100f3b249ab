#include "desktop/choosers/lists.h"

#include <algorithm>

#include "desktop/appearance/game_mark.h"
#include "desktop/appearance/icons.h"
#include "desktop/platform/text.h"

namespace varnello {
namespace {

constexpr int kNameShown = 16;  // characters

void Select(QComboBox& combo, const std::string& text) {
    combo.setCurrentIndex(
        std::max(combo.findText(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive), 0));
}

}  // namespace

void FillGames(QComboBox& combo, const cData& data, const std::string& selected) {
    for (std::int16_t id = 1; id <= data.TotalGames(); ++id) {
        const std::string name = data.GetGName(id);
        combo.addItem(GameMark(name), ToQt(name));
    }
    combo.setIconSize(kGameMarkSize);
    combo.setMinimumWidth(combo.fontMetrics().averageCharWidth() * kNameShown);
    Select(combo, selected);
}

QStringList PlayerNames(const cData& data) {
    QStringList names;
    const std::int16_t players = data.TotalPlayers();
    for (std::int16_t slot = 1; slot <= players; ++slot) names << ToQt(data.GetPlayer(slot));
    return names;
}

void FillPlayers(QComboBox& combo, const cData& data) {
    // However long a name is that was edited into the settings, the window stays as it is.
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumContentsLength(kNameShown);
    combo.setMinimumWidth(combo.fontMetrics().averageCharWidth() * kNameShown);
    for (const QString& name : PlayerNames(data)) {
        combo.addItem(SmallIcon(QStringLiteral("player")), name);
    }
    Select(combo, data.CurPlayer());
}

}  // namespace varnello
