#include "desktop/window/zoom.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

namespace varnello {
namespace {

constexpr std::array kSteps{75, 100, 125, 150, 175, 200, 250, 300};
constexpr int kAlways = 200;  // percent that every screen allows
constexpr const char* kSection = "Window";
constexpr const char* kKey = "Zoom";

int StoredPercent(const SettingsStore& store) {
    const std::string text = store.Read(kSection, kKey, "100");
    int percent = 100;
    std::from_chars(text.data(), text.data() + text.size(), percent);
    return *std::min_element(kSteps.begin(), kSteps.end(), [&](int a, int b) {
        return std::abs(double(a) - percent) < std::abs(double(b) - percent);
    });
}

bool Allowed(int percent, QSize room, QSize table) {
    const QSize size = table * percent / 100;
    return percent <= kAlways || (size.width() <= room.width() && size.height() <= room.height());
}

}  // namespace

Zoom::Zoom(SettingsStore& store)
    : store_(store),
      news_(store.Read(kSection, kKey, "").empty()),
      percent_(StoredPercent(store)) {}

bool Zoom::TakeNews() {
    if (!std::exchange(news_, false)) return false;
    store_.Write(kSection, kKey, std::to_string(percent_));
    return true;
}

bool Zoom::Step(int direction, QSize room, QSize table) {
    int next = 100;
    if (direction != 0) {
        const auto* at = std::find(kSteps.begin(), kSteps.end(), percent_) + direction;
        if (at < kSteps.begin() || at >= kSteps.end()) return false;
        next = *at;
    }
    if (next == percent_ || (direction > 0 && !Allowed(next, room, table))) return false;
    percent_ = next;
    news_ = false;
    store_.Write(kSection, kKey, std::to_string(next));
    return true;
}

void Zoom::FitInto(QSize room, QSize table) {
    const auto* at = std::find(kSteps.begin(), kSteps.end(), percent_);
    while (!Allowed(*at, room, table)) --at;
    percent_ = *at;
}

}  // namespace varnello
