#include "desktop/platform/window_memory.h"

#include <QEvent>

#include "desktop/platform/text.h"
#include "desktop/platform/window_size.h"

namespace varnello {
namespace {

constexpr const char* kSection = "Windows";

QString SizeText(const QSize& size) {
    return QStringLiteral("%1 %2").arg(size.width()).arg(size.height());
}

QSize SizeOf(const QString& text) {
    const QStringList sides = text.split(QLatin1Char(' '));
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

}  // namespace

WindowMemory::WindowMemory(QWidget* window, SettingsStore& store, const char* name,
                           const QSize& first)
    : QObject(window), window_(window), store_(store), name_(name) {
    window->resize(SizeFor(*window, first));
    Keep(
        "size",
        // One that nobody has given the window stays open to change with font and screen.
        [this, first] {
            const QSize now =
                window_->isMaximized() ? window_->normalGeometry().size() : window_->size();
            return now == SizeFor(*window_, first) ? QString() : SizeText(now);
        },
        [window](const QString& text) { window->resize(BoundedByScreen(*window, SizeOf(text))); });
    window->installEventFilter(this);
}

void WindowMemory::Keep(const char* part, std::function<QString()> state,
                        const std::function<void(const QString&)>& bringBack) {
    parts_.push_back({QString::fromLatin1(part), std::move(state)});
    const QString kept = Read(parts_.back().name);
    if (!kept.isEmpty()) bringBack(kept);
}

void WindowMemory::Keep(QTabWidget* sheets) {
    Keep(
        "sheet", [sheets] { return QString::number(sheets->currentIndex()); },
        [sheets](const QString& text) { sheets->setCurrentIndex(text.toInt()); });
}

bool WindowMemory::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Hide && !event->spontaneous()) Write();
    return false;
}

QString WindowMemory::Read(const QString& part) const {
    for (const QString& entry : ToQt(store_.Read(kSection, name_, {})).split(QLatin1Char(';'))) {
        if (entry.section(QLatin1Char('='), 0, 0) == part) {
            return entry.section(QLatin1Char('='), 1);
        }
    }
    return {};
}

void WindowMemory::Write() {
    QStringList entries;
    for (const Part& part : parts_) {
        const QString state = part.state();
        if (!state.isEmpty()) entries << part.name + QLatin1Char('=') + state;
    }
    const std::string all = entries.join(QLatin1Char(';')).toStdString();
    if (all != store_.Read(kSection, name_, {})) store_.Write(kSection, name_, all);
}

}  // namespace varnello
