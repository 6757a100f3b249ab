#include "desktop/window/motion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace varnello {
namespace {

using Seconds = std::chrono::duration<double>;

// Paces that a person can follow. A deal of 52 cards takes about one and a half seconds.
constexpr Seconds kDealtCard{0.0285};
constexpr Seconds kDrop{0.090};
constexpr Seconds kFollower{0.120};  // a card that goes up after another one
constexpr Seconds kTurnedBack{0.033};
constexpr Seconds kUndoStep{1.0 / 60};
constexpr double kUsualCardSpeed = 5;

// A flight that has fallen behind by more than this goes on from now.
constexpr std::chrono::milliseconds kTooLate{60};

/// A little ease at the end; `part` and the result from 0 to 1.
double Eased(double part) { return part * (1.6 - 0.6 * part); }

}  // namespace

Motion::Motion(SoundPlayer& sounds) : sounds_(sounds) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Motion::ShowNextPlace);
}

void Motion::SetFrameRate(double rate) { frame_ = Seconds(1 / std::clamp(rate, 30.0, 240.0)); }

void Motion::CardChanged(PicID id, const KesCard& card) {
    Take(CardStep{id, card, 0, MoveKind::Play});
}

void Motion::CardFlies(PicID id, const KesCard& card, int steps, MoveKind kind) {
    Take(CardStep{id, card, paced_ ? steps : 0, kind});
}

void Motion::SlotChanged(Cell cell, int pile, const KesEmpty& slot) {
    Take(SlotStep{cell, pile, slot});
}

void Motion::Play(Sound event) {
    // A card that goes up is told to be heard behind all that followed it, so a cascade's flights
    // come first and its sounds after them, as brackets are closed. Each is heard as its own card
    // lands, which leaves the sounds in their order.
    CardStep* flight = event == Sound::AutoPlay ? SilentFlight() : nullptr;
    if (!flight) return Take(event);
    flight->landing = event;
}

Motion::CardStep* Motion::SilentFlight() {
    for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
        if (std::holds_alternative<Sound>(*step)) break;
        auto* card = std::get_if<CardStep>(&*step);
        if (!card || card->steps == 0 || card->landing) continue;
        if (card->kind == MoveKind::Play || card->kind == MoveKind::Uncover) return card;
    }
    return nullptr;
}

void Motion::Cleared() {
    timer_.stop();
    steps_.clear();
    flight_ = {};
    scene_.Clear();
    Q_EMIT Changed();
}

void Motion::Take(const Step& step) {
    const auto* card = std::get_if<CardStep>(&step);
    const bool flies = card && card->steps > 0;
    if (!Showing() && !flies) {
        Apply(step);
        Q_EMIT Changed();
        return;
    }
    if (!Showing()) {
        firstFlight_ = true;
        due_ = Steady::now();
        timer_.start(0);
    }
    steps_.push_back(step);
}

void Motion::Apply(const Step& step) {
    if (const auto* card = std::get_if<CardStep>(&step)) {
        scene_.Card(card->id) = card->card;
    } else if (const auto* slot = std::get_if<SlotStep>(&step)) {
        scene_.Slot(slot->cell, slot->pile) = slot->slot;
    } else {
        sounds_.Play(std::get<Sound>(step));
    }
}

void Motion::ShowUntilFlight() {
    flight_ = {};
    while (!steps_.empty()) {
        const auto* card = std::get_if<CardStep>(&steps_.front());
        if (card && card->steps > 0) return BeginFlight(*card);
        Apply(steps_.front());
        steps_.pop_front();
    }
}

Seconds Motion::FlightTime(const CardStep& step) const {
    const double pace = cardSpeed_ ? std::max(cardSpeed_(), 0) / kUsualCardSpeed : 1;
    switch (step.kind) {
        case MoveKind::Deal: return kDealtCard;
        case MoveKind::UndoRedo: return kUndoStep * step.steps;
        case MoveKind::ToStock: return kTurnedBack * pace;
        default: return (firstFlight_ ? kDrop : kFollower) * pace;
    }
}

void Motion::BeginFlight(const CardStep& step) {
    const KesCard& from = scene_.Card(step.id);
    const Seconds time = FlightTime(step);
    const int frames = static_cast<int>(std::ceil(time / frame_ - 0.01));
    flight_ = {.left = from.Left, .top = from.Top, .places = std::max(step.steps, frames)};
    flight_.hold = std::chrono::duration_cast<Steady::duration>(time / flight_.places);
    firstFlight_ = false;
}

void Motion::ShowNextPlace() {
    if (flight_.places == 0) ShowUntilFlight();
    const CardStep& step = std::get<CardStep>(steps_.front());
    const double part = Eased(double(++flight_.place) / flight_.places);
    KesCard& seen = scene_.Card(step.id);
    seen = step.card;
    if (flight_.place < flight_.places) {
        seen.MoveTo(flight_.left + (step.card.Left - flight_.left) * part,
                    flight_.top + (step.card.Top - flight_.top) * part);
    }
    due_ += flight_.hold;
    Q_EMIT Moved();
    const auto now = Steady::now();
    if (now - due_ > kTooLate) due_ = now;
    if (flight_.place == flight_.places) {
        if (step.landing) sounds_.Play(*step.landing);
        steps_.pop_front();
        ShowUntilFlight();
        Q_EMIT Changed();
    }
    if (!Showing()) {
        Q_EMIT Shown();
        return;
    }
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(due_ - Steady::now());
    timer_.start(std::max(rest, std::chrono::milliseconds(0)));
}

void Motion::Finish() {
    if (!Showing()) return;
    timer_.stop();
    std::optional<Sound> last;
    const std::deque<Step> rest = std::exchange(steps_, {});
    for (const Step& step : rest) {
        if (const auto* sound = std::get_if<Sound>(&step)) {
            last = *sound;
            continue;
        }
        Apply(step);
        if (const auto* card = std::get_if<CardStep>(&step); card && card->landing) {
            last = card->landing;
        }
    }
    if (last) sounds_.Play(*last);
    flight_ = {};
    Q_EMIT Changed();
    Q_EMIT Shown();
}

}  // namespace varnello
