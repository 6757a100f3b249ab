#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <variant>

#include "engine/board/table.h"
#include "engine/desktop.h"

namespace varnello {

/// Shows what the engine tells of the table and has its sounds heard, in order and in its own time:
/// flights are played from the event loop, everything else follows at once. The engine's table is
/// always ahead of the scene; when nothing is left to show, both are equal.
class Motion : public QObject, public TableSurface, public SoundPlayer {
    Q_OBJECT

public:
    /// `sounds` is what really plays them; it outlives this.
    explicit Motion(SoundPlayer& sounds);

    void CardChanged(PicID id, const KesCard& card) override;
    void CardFlies(PicID id, const KesCard& card, int steps, MoveKind kind) override;
    void SlotChanged(Cell cell, int pile, const KesEmpty& slot) override;
    void Cleared() override;
    bool Showing() const override { return !steps_.empty(); }
    void Play(Sound event) override;

    /// What is seen now. Only the looks of its cards and slots count.
    const Table& Scene() const { return scene_; }
    /// Shows the rest at once. Of its sounds only the last is heard.
    void Finish();

    /// Where the setting `CardSpeed` is read, the pace of cards in play: 0 at once, 5 as usual.
    void SetCardSpeed(std::function<int()> cardSpeed) { cardSpeed_ = std::move(cardSpeed); }
    /// How often the screen shows a new picture, in hertz.
    void SetFrameRate(double rate);
    /// How long the display shows a frame.
    double FrameMilliseconds() const { return 1000 * frame_.count(); }
    /// Off: cards arrive at once. For tests.
    void SetPaced(bool paced) { paced_ = paced; }

Q_SIGNALS:
    /// A card in flight has got to its next place, which is to be seen now.
    void Moved();
    /// The scene has changed otherwise.
    void Changed();
    /// Nothing is left to show of what took time.
    void Shown();

private:
    using Steady = std::chrono::steady_clock;

    struct CardStep {
        PicID id;
        KesCard card;
        int steps;  ///< 0: no flight
        MoveKind kind;
        std::optional<Sound> landing = {};  ///< heard when the flight has ended
    };
    struct SlotStep {
        Cell cell;
        int pile;
        KesEmpty slot;
    };
    using Step = std::variant<CardStep, SlotStep, Sound>;

    /// The flight of the step at the front.
    struct Flight {
        double left = 0;  ///< where it began, twips
        double top = 0;
        int place = 0;            ///< places shown
        int places = 0;           ///< 0: it hasn't begun
        Steady::duration hold{};  ///< for one place
    };

    void Take(const Step& step);
    /// The last flight of play that isn't heard yet, and behind which nothing is; nullptr without.
    CardStep* SilentFlight();
    void Apply(const Step& step);
    /// Shows what takes no time, up to the next flight, which begins.
    void ShowUntilFlight();
    void BeginFlight(const CardStep& step);
    void ShowNextPlace();
    std::chrono::duration<double> FlightTime(const CardStep& step) const;

    SoundPlayer& sounds_;
    Table scene_;
    std::deque<Step> steps_;
    Flight flight_;
    bool firstFlight_ = true;  ///< of what was begun together
    Steady::time_point due_;
    QTimer timer_;
    std::function<int()> cardSpeed_;
    std::chrono::duration<double> frame_{1.0 / 60};
    bool paced_ = true;
};

}  // namespace varnello
