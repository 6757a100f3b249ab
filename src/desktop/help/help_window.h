#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "desktop/help/page_browser.h"
#include "engine/desktop.h"

namespace varnello {

/// Shows the help pages in a window of its own that doesn't block the game.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// The window first opens where it covers least of the table, which stands in the middle of
    /// `table` at the size of its hint; later where it was left.
    HelpWindow(SettingsStore& store, const QWidget& table);

    /// Shows a page by its name and comes to the front.
    void ShowPage(const QString& name);

    QTextBrowser* browser() const { return browser_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void AddTools();
    void OpenBeside();
    /// Whether a person gave it the place and size that it has.
    bool WasMoved() const;
    /// Looks for the text from where it was last found, `from` further on, back, or there as well.
    enum class From { Here, Next, Previous };
    void Find(From from);

    const QWidget& table_;
    PageBrowser* browser_;
    QLineEdit* find_;
    QLabel* found_;
    QRect beside_;  ///< where it opened of itself
};

}  // namespace varnello
