#pragma once

#include <QObject>
#include <array>
#include <optional>

#include "desktop/window/motion.h"
#include "desktop/window/table_view.h"

namespace varnello {

/// Tells assistive programs what has happened on the table, in one sentence or two for all that
/// happened until the table came to rest: a cascade is one announcement. Nothing is worked out
/// while nobody listens.
class TableVoice : public QObject {
    Q_OBJECT

public:
    /// The view owns it; the motion outlives it.
    TableVoice(Motion& motion, TableView& view);

    /// Tells it even while nobody listens; for tests.
    void SpeakAlways() { always_ = true; }

private:
    /// What was last told of a card.
    struct Known {
        Place at;
        bool there = false;
        bool closed = false;
    };
    struct Board {
        std::array<Known, kCardObjects> cards;
        int undoable = 0;  ///< moves that could be undone
        Phase phase = Phase::Idle;
    };

    void Look();
    Board LookAt() const;
    QString Told(const Board& was, const Board& now) const;
    QString ToldOfMoves(const Board& was, const Board& now) const;
    /// The names of all piles that have changed are read anew.
    void RefreshPiles(const Board& was, const Board& now) const;
    void Announce(const QString& text);

    Motion& motion_;
    TableView& view_;
    std::optional<Board> known_;
    bool always_ = false;
    bool looking_ = false;
    bool dealt_ = false;
};

}  // namespace varnello
