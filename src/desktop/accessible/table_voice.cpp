#include "desktop/accessible/table_voice.h"

#include <QAccessible>
#include <set>

#include "desktop/accessible/card_names.h"
#include "desktop/accessible/table_tree.h"
#include "desktop/platform/text.h"

namespace varnello {

TableVoice::TableVoice(Motion& motion, TableView& view)
    : QObject(&view), motion_(motion), view_(view) {
    const auto soon = [this] {
        const bool heard = always_ || QAccessible::isActive();
        if (!heard || std::exchange(looking_, true)) return;
        QMetaObject::invokeMethod(this, &TableVoice::Look, Qt::QueuedConnection);
    };
    connect(&motion_, &Motion::Changed, this, soon);
    connect(&motion_, &Motion::Shown, this, soon);
}

TableVoice::Board TableVoice::LookAt() const {
    const Engine& engine = view_.engine();
    Board board;
    board.phase = engine.life().phase();
    board.undoable = engine.trans().GetTransID();
    if (board.phase == Phase::Idle) return board;
    for (PicID id = 0; id < kCardObjects; ++id) {
        const KesCard& card = engine.table().Card(id);
        board.cards[static_cast<std::size_t>(id)] = {card.Loc, card.Visible,
                                                     card.FaceMode == FaceMode::Closed};
    }
    return board;
}

void TableVoice::Look() {
    looking_ = false;
    if (view_.engine().life().phase() == Phase::Dealing) dealt_ = true;
    if (motion_.Showing()) return;  // the end of it is told
    const Board now = LookAt();
    const Board was = known_.value_or(Board{});
    known_ = now;
    if (now.phase == Phase::Dealing) return;
    RefreshPiles(was, now);
    Announce(Told(was, now));
    dealt_ = false;
}

QString TableVoice::Told(const Board& was, const Board& now) const {
    const cData& data = view_.engine().data();
    const bool over = was.phase == Phase::Playing || was.phase == Phase::Won;
    if (now.phase == Phase::Idle) return over ? tr("The game is over.") : QString();
    QStringList told;
    if (dealt_ || was.phase == Phase::Idle) {
        told << tr("%1, game number %2, is dealt.")
                    .arg(ToQt(data.CurGName()), ToQt(data.CurGNo.Shown()));
    } else if (const QString moves = ToldOfMoves(was, now); !moves.isEmpty()) {
        told << moves;
    }
    if (now.phase == Phase::Won && was.phase != Phase::Won) told << tr("The game is won.");
    return told.join(' ');
}

QString TableVoice::ToldOfMoves(const Board& was, const Board& now) const {
    const Table& table = view_.engine().table();
    const auto nameOf = [&](PicID id) { return CardName(table.Card(id)); };
    struct Run {
        PicID lowest;
        int cards = 0;
    };
    std::map<std::pair<Cell, int>, Run> runs;  // by where they lie now
    int moved = 0;
    int up = 0;
    std::vector<PicID> opened;
    for (PicID id = 0; id < kCardObjects; ++id) {
        const Known& before = was.cards[static_cast<std::size_t>(id)];
        const Known& after = now.cards[static_cast<std::size_t>(id)];
        if (!after.there) continue;
        if (before.at.Cell == after.at.Cell && before.at.Pile == after.at.Pile) {
            if (before.closed && !after.closed) opened.push_back(id);
            continue;
        }
        ++moved;
        if (after.at.Cell == Cell::Goal) ++up;
        Run& run = runs.try_emplace({after.at.Cell, after.at.Pile}, Run{id}).first->second;
        ++run.cards;
        if (after.at.Pos < table.Card(run.lowest).Loc.Pos) run.lowest = id;
    }
    QStringList told;
    const bool back = now.undoable < was.undoable;
    if (back && moved > 1) {
        told << tr("%Ln cards were taken back.", nullptr, moved);
    } else if (moved - up > 1 && runs.size() > (up > 0 ? 2U : 1U)) {
        told << tr("%Ln cards moved.", nullptr, moved - up);
    }
    const bool summed = !told.isEmpty();
    for (const auto& [place, run] : runs) {
        const QString target = PlaceName(place.first, place.second);
        if (place.first == Cell::Goal ? up > 1 : summed) continue;
        if (back && !summed) {
            told << tr("%1 was taken back to %2.").arg(nameOf(run.lowest), target);
        } else if (!back && place.first == Cell::Goal) {
            told << tr("%1 went up to %2.").arg(nameOf(run.lowest), target);
        } else if (!back && run.cards == 1) {
            told << tr("%1 moved to %2.").arg(nameOf(run.lowest), target);
        } else if (!back) {
            told << tr("%1 and %Ln more moved to %2.", "a card, those on it, a pile", run.cards - 1)
                        .arg(nameOf(run.lowest), target);
        }
    }
    if (!back && up > 1) told << tr("%Ln cards went up to the foundations.", nullptr, up);
    for (const PicID id : opened) {
        if (opened.size() <= 2) told << tr("%1 is uncovered.").arg(nameOf(id));
    }
    if (opened.size() > 2) told << tr("%Ln cards are uncovered.", nullptr, int(opened.size()));
    return told.join(' ');
}

void TableVoice::RefreshPiles(const Board& was, const Board& now) const {
    const auto* tree = dynamic_cast<TableTree*>(QAccessible::queryAccessibleInterface(&view_));
    if (!tree) return;
    std::set<std::pair<Cell, int>> changed;
    for (std::size_t i = 0; i < kCardObjects; ++i) {
        const Known& before = was.cards[i];
        const Known& after = now.cards[i];
        const bool same = before.at.Cell == after.at.Cell && before.at.Pile == after.at.Pile &&
                          before.there == after.there && before.closed == after.closed;
        if (same) continue;
        if (before.there) changed.insert({before.at.Cell, before.at.Pile});
        if (after.there) changed.insert({after.at.Cell, after.at.Pile});
    }
    for (const auto& [cell, pile] : changed) {
        QAccessibleEvent renamed(tree->Pile(cell, pile), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&renamed);
    }
}

void TableVoice::Announce(const QString& text) {
    if (text.isEmpty()) return;
    view_.setAccessibleDescription(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&view_, text);
    QAccessible::updateAccessibility(&event);
#endif
}

}  // namespace varnello
