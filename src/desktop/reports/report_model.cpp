#include "desktop/reports/report_model.h"

#include <QFont>
#include <algorithm>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "desktop/reports/report_order.h"

namespace varnello {

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int ReportModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {  // not seen, but read by assistive tools
        return role == Qt::DisplayRole ? QVariant(AsFigure(section + 1)) : QVariant();
    }
    if (role == Qt::DisplayRole) return headings_.at(section).title;
    if (role == Qt::TextAlignmentRole) {
        const bool right = KindOf(section) == ColumnKind::Value;
        return QVariant(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    const int row = Original(index.row());
    switch (role) {
        case Qt::DisplayRole: {
            if (cachedRow_ != row) {
                cached_ = RowAt(row);
                cachedRow_ = row;
            }
            return Localized(cached_.at(static_cast<std::size_t>(index.column())));
        }
        case Qt::TextAlignmentRole: return headerData(index.column(), Qt::Horizontal, role);
        case Qt::DecorationRole:
            return index.column() == 0 && icons_ ? QVariant(icons_(row)) : QVariant();
        case Qt::FontRole:
            if (index.column() == boldColumn_) {
                QFont bold;
                bold.setBold(true);
                return bold;
            }
            return {};
        case Qt::ForegroundRole:
            if (const auto colour = ColourOf(row)) return *colour;
            return {};
        default: return {};
    }
}

void ReportModel::SetColumns(const std::vector<Column>& columns) {
    headings_.clear();
    for (const Column& column : columns) {
        headings_ << Heading{Localized(column.Title), column.Kind};
    }
}

void ReportModel::Reset(const std::function<void()>& change) {
    beginResetModel();
    change();
    ForgetCached();
    Order();
    endResetModel();
}

void ReportModel::sort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rows;
    for (const QModelIndex& index : before) rows.push_back(Original(index.row()));
    sortColumn_ = column;
    sortOrder_ = order;
    Order();
    std::vector<int> places(rows.empty() ? 0 : static_cast<std::size_t>(Count()));
    for (int shown = 0; shown < static_cast<int>(places.size()); ++shown) {
        places[static_cast<std::size_t>(Original(shown))] = shown;
    }
    for (qsizetype i = 0; i < before.size(); ++i) {
        const int original = rows[static_cast<std::size_t>(i)];
        changePersistentIndex(
            before[i], index(places[static_cast<std::size_t>(original)], before[i].column()));
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void ReportModel::Order() {
    order_.clear();
    if (sortColumn_ < 0) return;
    order_ = OrderOf(SortValues(sortColumn_), sortOrder_ == Qt::DescendingOrder);
}

int ReportModel::Original(int shown) const {
    return order_.empty() ? shown : order_.at(static_cast<std::size_t>(shown));
}

int ReportModel::Shown(int row) const {
    if (order_.empty()) return row;
    const auto found = std::find(order_.begin(), order_.end(), row);
    return static_cast<int>(found - order_.begin());
}

void RowsModel::SetRows(std::vector<ReportRow> rows) {
    Reset([&] { rows_ = std::move(rows); });
}

void RowsModel::SetRows(const std::vector<Column>& columns, std::vector<ReportRow> rows) {
    Reset([&] {
        SetColumns(columns);
        rows_ = std::move(rows);
    });
}

void RowsModel::UpdateRow(int row, const ReportRow& cells,
                          const std::vector<std::size_t>& columns) {
    ReportRow& kept = rows_.at(static_cast<std::size_t>(row));
    for (const std::size_t column : columns) kept.at(column) = cells.at(column);
    ForgetCached();
    for (const std::size_t column : columns) {
        const QModelIndex changed = index(Shown(row), static_cast<int>(column));
        Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
    }
}

void RowsModel::SetColouredRow(int row, const QColor& colour) {
    colouredRow_ = row;
    colour_ = colour;
}

std::optional<QColor> RowsModel::ColourOf(int row) const {
    return row == colouredRow_ ? std::optional{colour_} : std::nullopt;
}

QStringList RowsModel::WidestTexts(int column) const {
    QStringList texts;
    for (const ReportRow& row : rows_) texts << Localized(row[static_cast<std::size_t>(column)]);
    return texts;
}

std::vector<double> RowsModel::SortValues(int column) const {
    std::vector<double> values;
    QStringList texts;  // as the engine has them: an order doesn't depend on the language
    for (const ReportRow& row : rows_) {
        const ReportCell& cell = row[static_cast<std::size_t>(column)];
        texts << ToQt(cell.Text);
        values.push_back(cell.Value);
    }
    return KindOf(column) == ColumnKind::Text ? AlphabetOf(texts) : values;
}

}  // namespace varnello
