#include "desktop/appearance/game_mark.h"

#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QRegion>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/appearance/sample_deal.h"

namespace varnello {
namespace {

constexpr QSize kCard(static_cast<int>(kCardWidth), static_cast<int>(kCardHeight));  // twips
constexpr float kCards = 0.55F;  // of the text's colour
constexpr float kSlots = 0.3F;
constexpr double kSlim = 0.8;  // of a card's width, so that neighbours stay apart

/// What covers a table, in twips.
struct Plan {
    std::vector<QRect> cards;
    std::vector<QRect> slots;
    QRect all;
};

Plan PlanOf(const std::string& game) {
    const Table table = SampleDeal(game);
    Plan plan;
    const auto add = [&](std::vector<QRect>& to, const auto& thing) {
        if (!thing.Visible) return;
        to.emplace_back(QPointF(thing.Left, thing.Top).toPoint(), kCard);
        plan.all |= to.back();
    };
    for (const KesCard& card : table.PicCards) add(plan.cards, card);
    ForEachSlot(table, [&](const char*, int, const KesEmpty& slot) { add(plan.slots, slot); });
    return plan;
}

class MarkEngine : public QIconEngine {
public:
    explicit MarkEngine(std::string game) : game_(std::move(game)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        if (plan_.all.isEmpty()) plan_ = PlanOf(game_);
        const double ratio = painter->device()->devicePixelRatioF();
        const double scale = ratio * std::min(rect.width() / double(plan_.all.width()),
                                              rect.height() / double(plan_.all.height()));
        const auto pixels = [&](const QRect& twips) {
            const QRectF at((twips.x() - plan_.all.x()) * scale,
                            (twips.y() - plan_.all.y()) * scale, twips.width() * scale,
                            twips.height() * scale);
            const int left = static_cast<int>(std::lround(at.left()));
            const int top = static_cast<int>(std::lround(at.top()));
            const int width = std::max(static_cast<int>(std::floor(at.width() * kSlim)), 1);
            return QRect(left, top, width, std::max(static_cast<int>(std::lround(at.height())), 1));
        };
        QRegion cards;
        QRegion slots;
        for (const QRect& card : plan_.cards) cards += pixels(card);
        for (const QRect& slot : plan_.slots) slots += pixels(slot);
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::Text;
        painter->save();
        painter->translate(rect.topLeft());
        painter->scale(1 / ratio, 1 / ratio);
        const QRect box(0, 0, static_cast<int>(rect.width() * ratio),
                        static_cast<int>(rect.height() * ratio));
        const QSize free = box.size() - plan_.all.size() * scale;
        painter->translate(QPoint(free.width() / 2, free.height() / 2));
        const auto fill = [&](const QRegion& region, float strength) {
            QColor colour = QApplication::palette().color(role);
            colour.setAlphaF(strength);
            for (const QRect& part : region) painter->fillRect(part, colour);
        };
        fill(cards, kCards);
        fill(slots - cards, kSlots);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect({}, size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new MarkEngine(*this); }

private:
    std::string game_;
    Plan plan_;
};

}  // namespace

QIcon GameMark(const std::string& game) {
    static QHash<QString, QIcon> known;
    const QString name = QString::fromStdString(game);
    const auto found = known.constFind(name);
    if (found != known.constEnd()) return *found;
    return *known.insert(name, QIcon(new MarkEngine(game)));
}

}  // namespace varnello
