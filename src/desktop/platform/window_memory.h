#pragma once

#include <QTabWidget>
#include <functional>
#include <vector>

#include "engine/desktop.h"

namespace varnello {

/// Reopens a window as a person left it, within a run and between runs: with its size, bounded by
/// the screen, and with whatever parts it is told of. Written when the window is hidden, and only
/// when something has changed.
class WindowMemory : public QObject {
public:
    /// Sizes the window; `first` is how large it opens when it was never seen, with a font of 9
    /// points. `name` is its key in the settings. Lives as long as the window.
    WindowMemory(QWidget* window, SettingsStore& store, const char* name, const QSize& first);

    /// A part of the window that is kept under a word of its own: how to tell its state, without
    /// ';' and '=', and how to bring it back.
    void Keep(const char* part, std::function<QString()> state,
              const std::function<void(const QString&)>& bringBack);
    /// The sheet that is shown.
    void Keep(QTabWidget* sheets);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Part {
        QString name;
        std::function<QString()> state;
    };

    QString Read(const QString& part) const;
    void Write();

    QWidget* window_;
    SettingsStore& store_;
    const char* name_;
    std::vector<Part> parts_;
};

}  // namespace varnello
