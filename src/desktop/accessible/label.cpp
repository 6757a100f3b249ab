#include "desktop/accessible/label.h"

#include <QEvent>
#include <QLabel>

namespace varnello {
namespace {

/// Follows its box from parent to parent, as relations are looked for among neighbours.
class HiddenLabel : public QLabel {
public:
    HiddenLabel(QWidget& box, const QString& text) : QLabel(text, box.parentWidget()) {
        hide();
        setBuddy(&box);
        box.installEventFilter(this);
        // A box that never gets a parent takes its label along.
        connect(&box, &QObject::destroyed, this, &QObject::deleteLater);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ParentChange && watched == buddy()) {
            setParent(buddy()->parentWidget());
        }
        return QLabel::eventFilter(watched, event);
    }
};

}  // namespace

void NamePurpose(QWidget& box, const QString& purpose) {
    box.setAccessibleName(purpose);
    new HiddenLabel(box, purpose);  // the parent's
}

}  // namespace varnello
