#include "desktop/platform/type_ahead.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

namespace varnello {
namespace {

/// The combo that a widget is, or whose list it is.
QComboBox* ComboOf(QObject* widget) {
    for (; widget; widget = widget->parent()) {
        if (auto* combo = qobject_cast<QComboBox*>(widget)) return combo;
        if (!qobject_cast<QAbstractItemView*>(widget) &&
            !widget->inherits("QComboBoxPrivateContainer")) {
            return nullptr;
        }
    }
    return nullptr;
}

void SearchOn(QComboBox& combo, const QString& text) {
    QAbstractItemView& list = *combo.view();
    if (list.isVisible()) return list.keyboardSearch(text);
    const int before = combo.currentIndex();
    list.setCurrentIndex(combo.model()->index(before, combo.modelColumn(), combo.rootModelIndex()));
    list.keyboardSearch(text);
    const int found = list.currentIndex().row();
    if (found == before) return;
    combo.setCurrentIndex(found);
    Q_EMIT combo.activated(found);
}

}  // namespace

TypeAhead::TypeAhead(QObject* parent) : QObject(parent) {
    QApplication::instance()->installEventFilter(this);
}

bool TypeAhead::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    QComboBox* combo = ComboOf(watched);
    if (!combo || combo->isEditable()) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool letter = !key.text().isEmpty() && key.text().front().isPrint() &&
                        !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool going =
        typed_.isValid() && !typed_.hasExpired(QApplication::keyboardInputInterval());
    if (!letter || (key.key() == Qt::Key_Space && !going)) {
        typed_.invalidate();
        return false;
    }
    typed_.start();
    if (key.key() != Qt::Key_Space) return false;
    SearchOn(*combo, key.text());
    return true;
}

}  // namespace varnello
