#include "sight.h"

#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>

#include "desktop/charts/chart.h"
#include "desktop/customize/look_preview.h"

#include "../desktop/fixture.h"

namespace varnello::test {
namespace {

constexpr int kFewItems = 6;  // of a combo
constexpr int kFewRows = 13;  // of a list
const QString kBar = QStringLiteral(" | ");

template <typename Kind>
QString WordOf(Kind value) {
    return QMetaEnum::fromType<Kind>().valueToKey(value);
}

QString State(const QWidget& widget) { return widget.isEnabled() ? "" : " (grey)"; }

QString ButtonLine(const QAbstractButton& button) {
    QString line = '[' + NameOf(button) + ']';
    if (button.isCheckable()) line += button.isChecked() ? " on" : " off";
    const auto* push = qobject_cast<const QPushButton*>(&button);
    if (push && push->isDefault()) line += " (default)";
    return line + State(button);
}

QString ComboLine(const QComboBox& combo) {
    QStringList items;
    for (int i = 0; i < combo.count(); ++i) items << combo.itemText(i);
    return NameOf(combo) + ": " + combo.currentText() + " of " +
           (items.size() <= kFewItems ? items.join(", ") : QString::number(items.size())) +
           State(combo);
}

QString CellText(const QModelIndex& cell) {
    QString text = cell.data().toString();
    const QVariant tick = cell.data(Qt::CheckStateRole);
    if (tick.isValid()) text.prepend(tick.toInt() == Qt::Checked ? "[x] " : "[ ] ");
    if (!cell.data(Qt::DecorationRole).isNull()) text.prepend(QChar(0x2022));
    if (cell.data(Qt::FontRole).value<QFont>().bold()) text = '*' + text + '*';
    const QVariant colour = cell.data(Qt::ForegroundRole);
    if (colour.isValid()) text += ' ' + colour.value<QBrush>().color().name();
    return text;
}

QString RowText(const QAbstractItemModel& model, int row, const QModelIndex& parent = {}) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(parent); ++column) {
        cells << CellText(model.index(row, column, parent));
    }
    return cells.join(kBar);
}

/// Of a long list the first and the last row, the chosen one, and those with figures.
QStringList ListLines(const QAbstractItemView& view) {
    static const QRegularExpression figure(" \\| .*[1-9]");
    const QAbstractItemModel& model = *view.model();
    const QString name = NameOf(view);
    QStringList lines;
    if (const QHeaderView* header = HeaderOf(view); header && !header->isHidden()) {
        QStringList titles;
        for (int i = 0; i < model.columnCount(); ++i) {
            titles << model.headerData(i, Qt::Horizontal).toString();
        }
        lines << name + ": " + titles.join(kBar);
    }
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    const bool levels = tree && tree->rootIsDecorated();
    if (levels || model.rowCount() == 0 || model.rowCount() > kFewRows) {
        lines << name + ": " + QString::number(model.rowCount()) + " rows";
    }
    if (levels) {
        const QModelIndex at = view.currentIndex();
        if (at.isValid()) lines << name + ": " + CellText(at.parent()) + " > " + CellText(at);
        return lines;
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString cells = RowText(model, row);
        const bool current = view.currentIndex().row() == row;
        const bool chosen = view.selectionModel()->isRowSelected(row);
        if (model.rowCount() > kFewRows && !current && row > 0 && row + 1 < model.rowCount() &&
            !cells.contains(figure)) {
            continue;
        }
        lines << name + ' ' + QString::number(row + 1) + ": " + cells +
                     (chosen    ? " (chosen)"
                      : current ? " (current)"
                                : "");
    }
    return lines;
}

QString LineEditLine(const QLineEdit& edit) {
    const QString text = edit.hasSelectedText() && edit.selectedText() == edit.text()
                             ? '<' + edit.text() + '>'
                             : edit.text();
    return NameOf(edit) + ": \"" + text + '"' + State(edit);
}

/// Whether it is a part of something that tells of itself.
bool BelongsToAnother(const QWidget& widget, const QWidget& window) {
    if (widget.window() != &window) return true;
    for (const QWidget* up = widget.parentWidget(); up && up != &window; up = up->parentWidget()) {
        if (qobject_cast<const QComboBox*>(up) || qobject_cast<const QAbstractItemView*>(up) ||
            qobject_cast<const QLineEdit*>(up) || qobject_cast<const QTabBar*>(up) ||
            qobject_cast<const QTextBrowser*>(up)) {
            return true;
        }
    }
    return false;
}

QStringList LinesOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text().isEmpty() ? QStringList() : QStringList(Plain(label->text()));
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return NameOf(*button).isEmpty() ? QStringList() : QStringList(ButtonLine(*button));
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return {ComboLine(*combo)};
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return {LineEditLine(*edit)};
    if (const auto* slider = qobject_cast<const QSlider*>(&widget)) {
        return {QString("%1: %2").arg(NameOf(widget)).arg(slider->value())};
    }
    if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
        QStringList tabs;
        for (int i = 0; i < bar->count(); ++i) {
            const QString tab = Plain(bar->tabText(i));
            tabs << (i == bar->currentIndex() ? '<' + tab + '>' : tab);
        }
        return {"tabs: " + tabs.join(", ")};
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return box->title().isEmpty() ? QStringList() : QStringList("-- " + box->title());
    }
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget)) {
        return list->model() && !qobject_cast<const QHeaderView*>(list) ? ListLines(*list)
                                                                        : QStringList();
    }
    if (const auto* page = qobject_cast<const QTextBrowser*>(&widget)) {
        static const QRegularExpression text("[^\n]*\\w[^\n]*");
        const QTextCursor found = page->textCursor();
        return {"page: " + text.match(page->toPlainText()).captured(),
                QString("found: %1 at %2").arg(found.selectedText()).arg(found.selectionStart())};
    }
    if (dynamic_cast<const Chart*>(&widget) || qobject_cast<const LookPreview*>(&widget)) {
        const auto* heard = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
        return {NameOf(widget) + " (" + WordOf(heard->role()) +
                "): " + heard->text(QAccessible::Description).replace('\n', "; ")};
    }
    return {};
}

}  // namespace

QString Plain(const QString& caption) {
    QString text = caption;
    text.replace("&&", "\x01").remove('&').replace('\x01', '&');
    while (text.endsWith('.')) text.chop(1);
    return text.replace('\n', " / ").trimmed();
}

const QHeaderView* HeaderOf(const QAbstractItemView& view) {
    if (const auto* table = qobject_cast<const QTableView*>(&view))
        return table->horizontalHeader();
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    return tree ? tree->header() : nullptr;
}

QString NameOf(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty()) return Plain(widget.accessibleName());
    for (const auto* label : widget.window()->findChildren<QLabel*>()) {
        if (label->buddy() == &widget) return Plain(label->text());
    }
    return Plain(widget.property("text").toString());
}

void LookAtPicture(const QWidget& part, const QString& name, Sight& sight) {
    const QImage seen = OnScreen(part);
    sight.pictures[name] = qHashBits(seen.constBits(), static_cast<size_t>(seen.sizeInBytes()));
}

void LookAtCommands(const QMainWindow& window, Sight& sight) {
    QStringList grey, ticked;
    const auto look = [&](const auto& command, const QString& name) {
        if (!command.isEnabled()) grey << name;
        if (command.isCheckable() && command.isChecked()) ticked << name;
    };
    QList<QAction*> items = window.menuBar()->actions();
    while (!items.isEmpty()) {
        const QAction* item = items.takeFirst();
        if (item->menu()) {
            items = item->menu()->actions() + items;
        } else if (item->isVisible() && !item->isSeparator()) {
            look(*item, Plain(item->text()));
        }
    }
    for (const auto* button : window.findChildren<QToolButton*>()) {
        const bool tool = button->isVisible() && !button->accessibleName().isEmpty();
        if (tool) look(*button, '[' + NameOf(*button) + ']');
    }
    const auto* table = window.findChild<TableView*>();
    sight.lines << "pointer: " + WordOf(table->cursor().shape());
    sight.lines << "grey: " + grey.join(", ") << "ticked: " + ticked.join(", ");
}

void Listen(QWidget& table, Sight& sight) {
    sight.lines << "told: " + table.accessibleDescription();
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&table);
    for (int i = 0; i < tree->childCount(); ++i) {
        const QAccessibleInterface* pile = tree->child(i);
        QStringList told{pile->text(QAccessible::Name)};
        for (int n = 0; n < pile->childCount(); ++n) {
            const QAccessibleInterface* card = pile->child(n);
            told << card->text(QAccessible::Name);
            // The last one is seen where it is said to be.
            const QPoint at = card->rect().center();
            if (n + 1 < pile->childCount()) continue;
            told.last() += " (" + card->text(QAccessible::Description) + ')';
            if (tree->childAt(at.x(), at.y()) != pile || pile->childAt(at.x(), at.y()) != card ||
                card->parent() != pile || !pile->rect().contains(at)) {
                told.last() += ", but elsewhere";
            }
        }
        sight.lines << QString("pile %1: ").arg(i + 1) + told.join(", ");
    }
}

void Look(QWidget& window, Sight& sight) {
    auto* menu = qobject_cast<QMenu*>(&window);
    const QString title = menu                             ? "menu"
                          : window.inherits("QMessageBox") ? "box"
                                                           : window.windowTitle();
    sight.windows << title;
    if (menu) {
        for (const QAction* item : menu->actions())
            sight.lines << title + kBar + Plain(item->text());
        return;
    }
    if (auto* files = qobject_cast<QFileDialog*>(&window)) {
        sight.lines << title + kBar + WordOf(files->acceptMode()) + kBar +
                           files->selectedFiles().value(0).section('/', -1);
        return;
    }
    if (auto* colours = qobject_cast<QColorDialog*>(&window)) {
        sight.lines << title + kBar + colours->currentColor().name();
        return;
    }
    if (const auto* box = qobject_cast<QMessageBox*>(&window)) {
        const char* const icons[] = {"plain", "information", "warning", "critical", "question"};
        sight.lines << title + kBar + '(' + icons[box->icon()] + ')' +
                           (box->textFormat() == Qt::PlainText ? "" : " with markup");
    }
    if (const QWidget* focus = window.focusWidget()) {
        sight.lines << title + kBar + "at " + NameOf(*focus);
    }
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || BelongsToAnother(*widget, window)) continue;
        for (const QString& line : LinesOf(*widget)) sight.lines << title + kBar + line;
        const auto* list = qobject_cast<const QAbstractItemView*>(widget);
        if (list && list->model() && !IsPainted(*list->viewport())) {
            sight.lines << title + kBar + NameOf(*list) + ": the screen shows something old";
        }
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (dynamic_cast<const Chart*>(widget) || qobject_cast<const LookPreview*>(widget) ||
            (label && !label->pixmap().isNull() && !NameOf(*label).isEmpty())) {
            LookAtPicture(*widget, title + kBar + NameOf(*widget), sight);
        }
    }
}

QStringList Changes(const Sight& before, const Sight& now) {
    QStringList gone, told, fresh = now.lines;
    for (const QString& window : before.windows - now.windows) gone << "- " + window;
    for (const QString& line : before.lines) {
        if (!fresh.removeOne(line) && !gone.contains("- " + line.section(kBar, 0, 0))) {
            gone << "- " + line;
        }
    }
    for (const QString& window : now.windows - before.windows) told << "+ " + window;
    for (const QString& line : fresh) told << "+ " + line;
    for (auto picture = now.pictures.begin(); picture != now.pictures.end(); ++picture) {
        const auto old = before.pictures.find(picture.key());
        if (old != before.pictures.end() && *old != *picture) told << "~ " + picture.key();
    }
    for (QStringList* lines : {&gone, &told}) {
        for (QString& line : *lines) line = line.trimmed();
        // The toolkit lists its windows in any order.
        std::stable_sort(
            lines->begin(), lines->end(), [](const QString& one, const QString& other) {
                const auto window = [](const QString& line) { return line.section(kBar, 0, 0); };
                return window(one) < window(other);
            });
    }
    return gone + told;
}

}  // namespace varnello::test
