#include "desktop/accessible/windows.h"

#include <QAccessibleWidget>
#include <QLabel>

#include "desktop/accessible/table_tree.h"
#include "desktop/charts/chart.h"
#include "desktop/customize/look_preview.h"
#include "desktop/help/help_window.h"
#include "desktop/window/main_window.h"
#include "desktop/window/toolbar.h"

namespace varnello {
namespace {

/// The counters, which stand in a corner of the menu bar, where the toolkit finds nothing but
/// menus. Their text is their name.
class CountersNode : public QAccessibleWidget {
public:
    explicit CountersNode(QLabel& label) : QAccessibleWidget(&label, QAccessible::StaticText) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget()->window());
    }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
        return static_cast<QLabel*>(widget())->text().simplified();
    }
};

/// The main window with its counters as a child of its own.
class MainWindowNode : public QAccessibleWidget {
public:
    explicit MainWindowNode(MainWindow& window)
        : QAccessibleWidget(&window, QAccessible::Window), window_(window) {}

    int childCount() const override { return QAccessibleWidget::childCount() + 1; }
    QAccessibleInterface* child(int index) const override {
        return index == childCount() - 1 ? Counters() : QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == Counters() ? childCount() - 1 : QAccessibleWidget::indexOfChild(child);
    }

private:
    QAccessibleInterface* Counters() const {
        return QAccessible::queryAccessibleInterface(&window_.menu().Counters());
    }

    MainWindow& window_;
};

QAccessibleInterface* NodeOf(const QString&, QObject* object) {
    if (auto* view = dynamic_cast<TableView*>(object)) return new TableTree(*view);
    if (auto* window = dynamic_cast<MainWindow*>(object)) return new MainWindowNode(*window);
    if (auto* help = dynamic_cast<HelpWindow*>(object)) {
        return new QAccessibleWidget(help, QAccessible::Window);
    }
    if (auto* chart = dynamic_cast<Chart*>(object)) {
        return new QAccessibleWidget(chart, QAccessible::Chart);
    }
    if (auto* preview = dynamic_cast<LookPreview*>(object)) {
        return new QAccessibleWidget(preview, QAccessible::Graphic);
    }
    if (auto* toolbar = dynamic_cast<Toolbar*>(object)) {
        return new QAccessibleWidget(toolbar, QAccessible::ToolBar, Toolbar::tr("Toolbar"));
    }
    if (auto* line = dynamic_cast<QFrame*>(object);
        line && line->metaObject() == &QFrame::staticMetaObject &&
        line->frameShape() == QFrame::VLine) {
        return new QAccessibleWidget(line, QAccessible::Separator);
    }
    auto* label = dynamic_cast<QLabel*>(object);
    auto* window = label ? dynamic_cast<MainWindow*>(label->window()) : nullptr;
    if (window && &window->menu().Counters() == label) return new CountersNode(*label);
    return nullptr;
}

}  // namespace

void DescribeWindows() { QAccessible::installFactory(NodeOf); }

}  // namespace varnello
