#include "engine/flow/engine.h"

#include <filesystem>
#include <system_error>

#include "engine/rules/autoplay.h"

namespace varnello {

Engine::Engine(const Desktop& desktop)
    : desktop_(desktop),
      data_(desktop.settings, desktop.sounds, desktop.dataFolder),
      score_(data_, desktop.clock, desktop.dates, desktop.disk),
      favorites_(data_),
      array_(games_, table_, generator_, desktop.surface, *this),
      trans_(array_, table_, data_),
      field_{data_, games_, generator_, table_, array_, trans_},
      gestures_(field_),
      replay_(field_),
      life_(field_, gestures_, score_, replay_, desktop),
      counters_(field_, desktop.clock),
      choosing_(data_, favorites_, desktop),
      commands_(field_, life_, replay_, choosing_),
      players_(data_, score_, desktop),
      results_(data_, score_, desktop) {
    data_.SesStartTime = desktop_.clock.Now();
    data_.SesStartSeconds = desktop_.clock.Seconds();
}

void Engine::InitMain() {
    // A folder that can't be made shows when the first result is booked.
    std::error_code ignored;
    std::filesystem::create_directories(data_.AppDir(), ignored);
    players_.Mend();
}

void Engine::Leave() {
    life_.LeaveGame();
    score_.WriteKept();
}

void Engine::MoveBegins(const CardMove& move) {
    if (onMove_) onMove_(move);
}

void Engine::AutoPlay() { varnello::AutoPlay(field_); }

}  // namespace varnello
