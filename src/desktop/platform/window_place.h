#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>
#include <QWidget>
#include <string>

#include "engine/desktop.h"

namespace varnello {

/// Remembers where a person put a window and how large they made it.
class WindowPlace : public QObject {
    Q_OBJECT

public:
    /// `name` tells windows apart in the settings. The window must outlive this object.
    WindowPlace(QWidget& window, SettingsStore& store, std::string name);

    /// Puts the window where it was left, within the screens that there are now. False when nothing
    /// is remembered.
    bool Restore();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Keep();

    QWidget& window_;
    SettingsStore& store_;
    std::string name_;
    QRect opened_;  ///< where it was before a person moved it
    QTimer settle_;
};

/// The place for a window of this size, with its frame, that covers least of `spared`, all within
/// `available`; of equal ones the one furthest to the right, then at the top.
QRect PlaceBeside(const QRect& available, const QRect& spared, QSize size);

}  // namespace varnello
