#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace varnello {

/// A page of a tab that can be scrolled where the screen is too small for it, and looks like the
/// page alone where it isn't.
class ScrolledPage : public QScrollArea {
public:
    explicit ScrolledPage(QWidget* page) {
        setWidget(page);
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAutoFillBackground(false);
        page->setAutoFillBackground(false);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override {
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
                QScrollArea::minimumSizeHint().height()};
    }
};

}  // namespace varnello
