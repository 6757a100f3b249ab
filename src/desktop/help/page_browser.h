#pragma once

#include <QHash>
#include <QPixmap>
#include <QTextBrowser>

#include "desktop/appearance/preview.h"

namespace varnello {

/// Shows the help pages and the pictures in them; nothing comes from outside the program. The grid
/// of games has as many columns as the window is wide.
class PageBrowser : public QTextBrowser {
    Q_OBJECT

public:
    PageBrowser();

    /// Shows a page by its name; a name that no page has changes nothing.
    void Show(const QString& page);
    /// The name of the page that is shown.
    QString Page() const { return source().path(); }

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int Columns() const;
    QPixmap Picture(const QUrl& name);
    void FollowPalette();

    Previews previews_;
    QHash<QString, QPixmap> pictures_;
    int columns_ = 0;  ///< of the grid that is shown
};

}  // namespace varnello
