#pragma once

#include <QToolButton>
#include <QWidget>
#include <array>

#include "desktop/window/main_menu.h"

namespace varnello {

/// `Toolbar1`: a strip of buttons that stand for menu items.
class Toolbar : public QWidget {
    Q_OBJECT

public:
    Toolbar(const MainMenu& menu, QWidget* parent);

    /// Copies the marks of the menu items.
    void UpdateToolbar();
    /// Button 1 to 16; nullptr for a separator.
    QToolButton* Button(int index) const { return buttons_.at(static_cast<std::size_t>(index)); }

private:
    const MainMenu& menu_;
    std::array<QToolButton*, 17> buttons_{};
    std::array<QAction*, 17> items_{};
};

}  // namespace varnello
