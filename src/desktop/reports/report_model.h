#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "engine/reports/row.h"

namespace varnello {

/// The rows of a report for a list. They stand in the report's order until a person sorts them by a
/// column. Rows may be made only when they are looked at, so that a million of them cost little.
class ReportModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ReportModel(const std::vector<Column>& columns, QObject* parent = nullptr)
        : QAbstractTableModel(parent) {
        SetColumns(columns);
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Column -1 is the report's own order.
    void sort(int column, Qt::SortOrder order) override;

    /// An icon before the first cell of each row, told by the row of the report.
    void SetIcons(std::function<QIcon(int row)> icons) { icons_ = std::move(icons); }
    bool HasIcons() const { return icons_ != nullptr; }
    void SetBoldColumn(int column) { boldColumn_ = column; }
    /// Texts of a column that are enough to know how wide it has to be.
    virtual QStringList WidestTexts(int column) const = 0;
    /// A row of the report, from 0, wherever it stands after sorting.
    virtual ReportRow RowAt(int row) const = 0;
    /// Where a row of the report stands now, and the row that stands somewhere.
    int Shown(int row) const;
    int Original(int shown) const;

protected:
    virtual int Count() const = 0;
    /// What the rows of the report sort by in a column, one after the other.
    virtual std::vector<double> SortValues(int column) const = 0;
    virtual std::optional<QColor> ColourOf(int /*row*/) const { return {}; }
    /// All rows have changed; `change` makes them so.
    void Reset(const std::function<void()>& change);
    void SetColumns(const std::vector<Column>& columns);
    ColumnKind KindOf(int column) const { return headings_.at(column).kind; }

private:
    struct Heading {
        QString title;
        ColumnKind kind;
    };
    void Order();

    QList<Heading> headings_;
    std::function<QIcon(int row)> icons_;
    int boldColumn_ = -1;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    std::vector<int> order_;  // empty while in the report's order
    mutable int cachedRow_ = -1;
    mutable ReportRow cached_;

protected:
    void ForgetCached() { cachedRow_ = -1; }
};

/// A report of few rows, kept as they are.
class RowsModel : public ReportModel {
    Q_OBJECT

public:
    using ReportModel::ReportModel;

    void SetRows(std::vector<ReportRow> rows);
    /// The same with other columns.
    void SetRows(const std::vector<Column>& columns, std::vector<ReportRow> rows);
    /// Replaces the cells of a row that stays where it is; `row` from 0.
    void UpdateRow(int row, const ReportRow& cells, const std::vector<std::size_t>& columns);
    /// A row in another colour, from 0; -1 for none.
    void SetColouredRow(int row, const QColor& colour);
    ReportRow RowAt(int row) const override { return rows_.at(static_cast<std::size_t>(row)); }
    QStringList WidestTexts(int column) const override;

protected:
    int Count() const override { return static_cast<int>(rows_.size()); }
    std::vector<double> SortValues(int column) const override;
    std::optional<QColor> ColourOf(int row) const override;

private:
    std::vector<ReportRow> rows_;
    int colouredRow_ = -1;
    QColor colour_;
};

}  // namespace varnello
