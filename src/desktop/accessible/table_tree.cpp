#include "desktop/accessible/table_tree.h"

#include "desktop/accessible/card_names.h"

namespace varnello {
namespace {

using Piles = std::vector<std::pair<Cell, int>>;

/// The piles of the running game. Those of the stock come and go with what is to be seen of them.
Piles PilesOf(const Engine& engine) {
    Piles piles;
    if (engine.life().phase() == Phase::Idle) return piles;
    for (const Cell cell : {Cell::Home, Cell::Res, Cell::Goal}) {
        for (int pile = 0; pile < engine.games().Piles(cell); ++pile) piles.push_back({cell, pile});
    }
    const auto there = [&](Cell cell, const KesEmpty& slot) {
        if (slot.Visible || engine.array().GetTop(cell, 0) >= 0) piles.push_back({cell, 0});
    };
    there(Cell::Stock, engine.table().PicStock[0]);
    there(Cell::Waste, engine.table().PicWaste[0]);
    return piles;
}

/// What piles and cards have in common: they are no objects, and nothing can be done to them.
class Node : public QAccessibleInterface {
public:
    explicit Node(const TableTree& tree) : tree_(tree) {}

    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return tree_.window(); }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || tree_.state().invisible;
        return state;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (this->child(i) == child) return i;
        }
        return -1;
    }

protected:
    const Engine& engine() const { return tree_.engine(); }
    const TableTree& tree() const { return tree_; }

private:
    const TableTree& tree_;
};

class CardNode : public Node {
public:
    CardNode(const TableTree& tree, PicID id) : Node(tree), id_(id) {}

    bool isValid() const override {
        return engine().life().phase() != Phase::Idle && Seen().Visible;
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessibleInterface* parent() const override {
        return tree().Pile(Seen().Loc.Cell, Seen().Loc.Pile);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QRect rect() const override { return tree().OnScreen(Seen().Left, Seen().Top); }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return CardName(Seen());
        if (kind == QAccessible::Description) return PlaceInPile(engine().array(), Seen().Loc);
        return {};
    }

private:
    const KesCard& Seen() const { return engine().table().Card(id_); }

    PicID id_;
};

class PileNode : public Node {
public:
    PileNode(const TableTree& tree, Cell cell, int pile) : Node(tree), cell_(cell), pile_(pile) {}

    bool isValid() const override {
        const Piles piles = PilesOf(engine());
        return std::find(piles.begin(), piles.end(), std::pair{cell_, pile_}) != piles.end();
    }
    QAccessible::Role role() const override { return QAccessible::List; }
    QAccessibleInterface* parent() const override {
        return const_cast<TableTree*>(&tree());  // the toolkit's tree knows no constness
    }
    int childCount() const override { return engine().array().GetTop(cell_, pile_) + 1; }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        return tree().Card(engine().array().GetPicID(cell_, pile_, index));
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = childCount() - 1; i >= 0; --i) {
            if (child(i)->rect().contains(x, y)) return child(i);
        }
        return nullptr;
    }
    QRect rect() const override {
        const Place bottom{cell_, static_cast<std::int16_t>(pile_), 0};
        QRect all =
            tree().OnScreen(engine().array().GetCordX(bottom), engine().array().GetCordY(bottom));
        for (int i = 0; i < childCount(); ++i) all |= child(i)->rect();
        return all;
    }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) return {};
        return PileName(engine().array(), engine().table(), cell_, pile_);
    }

private:
    Cell cell_;
    int pile_;
};

}  // namespace

TableTree::TableTree(TableView& view)
    : QAccessibleWidget(&view, QAccessible::Grouping), view_(view) {}

TableTree::~TableTree() {
    for (const auto& [place, id] : piles_) QAccessible::deleteAccessibleInterface(id);
    for (const auto& [card, id] : cards_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* TableTree::Pile(Cell cell, int pile) const {
    const auto [entry, fresh] = piles_.try_emplace({cell, pile});
    if (fresh) {
        entry->second = QAccessible::registerAccessibleInterface(new PileNode(*this, cell, pile));
    }
    return QAccessible::accessibleInterface(entry->second);
}

QAccessibleInterface* TableTree::Card(PicID card) const {
    const auto [entry, fresh] = cards_.try_emplace(card);
    if (fresh) entry->second = QAccessible::registerAccessibleInterface(new CardNode(*this, card));
    return QAccessible::accessibleInterface(entry->second);
}

int TableTree::childCount() const { return static_cast<int>(PilesOf(engine()).size()); }

QAccessibleInterface* TableTree::child(int index) const {
    const Piles piles = PilesOf(engine());
    if (index < 0 || index >= static_cast<int>(piles.size())) return nullptr;
    const auto& [cell, pile] = piles[static_cast<std::size_t>(index)];
    return Pile(cell, pile);
}

int TableTree::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < childCount(); ++i) {
        if (this->child(i) == child) return i;
    }
    return -1;
}

QAccessibleInterface* TableTree::childAt(int x, int y) const {
    for (int i = childCount() - 1; i >= 0; --i) {
        if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
}

QRect TableTree::OnScreen(double left, double top) const {
    const QRect drawn = view_.CardRect(left, top);
    return {view_.mapToGlobal(drawn.topLeft()), drawn.size()};
}

}  // namespace varnello
