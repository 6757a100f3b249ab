#include "desktop/platform/window_place.h"

#include <QEvent>
#include <algorithm>

namespace varnello {
namespace {

constexpr const char* kSection = "Windows";
constexpr int kSettleTime = 400;  // milliseconds without a move or a new size
constexpr int kFrames = 64;       // pixels that a window manager moves a window by for its frame

std::int64_t Area(const QRect& rect) {
    return rect.isEmpty() ? 0 : std::int64_t{rect.width()} * rect.height();
}

}  // namespace

WindowPlace::WindowPlace(QWidget& window, SettingsStore& store, std::string name)
    : QObject(&window), window_(window), store_(store), name_(std::move(name)) {
    settle_.setSingleShot(true);
    settle_.setInterval(kSettleTime);
    connect(&settle_, &QTimer::timeout, this, &WindowPlace::Keep);
    window_.installEventFilter(this);
}

bool WindowPlace::Restore() {
    const std::string stored = store_.Read(kSection, name_, "");
    return window_.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)));
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_) {
        if (event->type() == QEvent::Show && opened_.isNull()) opened_ = window_.geometry();
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize) settle_.start();
        if (event->type() == QEvent::Close) Keep();
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlace::Keep() {
    settle_.stop();
    const QRect now = window_.geometry();
    const bool moved = (now.topLeft() - opened_.topLeft()).manhattanLength() > kFrames;
    if (opened_.isNull() || (!moved && now.size() == opened_.size())) return;
    store_.Write(kSection, name_, window_.saveGeometry().toBase64().toStdString());
}

QRect PlaceBeside(const QRect& available, const QRect& spared, QSize size) {
    QRect best(QPoint(), size.boundedTo(available.size()));
    const int right = available.right() + 1 - best.width();
    const int bottom = available.bottom() + 1 - best.height();
    std::int64_t least = -1;
    for (const int x : {right, available.left()}) {
        for (const int y : {available.top(), bottom}) {
            const QRect place(QPoint(x, y), best.size());
            const std::int64_t covered = Area(place & spared);
            if (least >= 0 && covered >= least) continue;
            least = covered;
            best = place;
        }
    }
    return best;
}

}  // namespace varnello
