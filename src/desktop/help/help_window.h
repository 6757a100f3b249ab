#pragma once

#include <QAction>
#include <QLineEdit>
#include <QTextBrowser>
#include <QWidget>

namespace varnello {

/// Shows the help pages in a window of its own that doesn't block the game.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Shows a page by its name and comes to the front.
    void ShowPage(const QString& name);

    QTextBrowser* browser() const { return browser_; }
    QLineEdit* find() const { return find_; }

private:
    void Open(const QString& page);
    void Find(bool backward);

    QTextBrowser* browser_;
    QLineEdit* find_;
};

}  // namespace varnello
