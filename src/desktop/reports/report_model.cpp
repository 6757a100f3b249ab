#include "desktop/reports/report_model.h"

#include <QFont>
#include <algorithm>
#include <map>
#include <numeric>

#include "desktop/platform/text.h"

namespace varnello {

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int ReportModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const Column& column = ColumnAt(section);
    if (role == Qt::DisplayRole) return ToQt(column.Title);
    if (role == Qt::TextAlignmentRole) {
        const bool right = column.Kind == ColumnKind::Value;
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
            return ToQt(cached_.at(static_cast<std::size_t>(index.column())).Text);
        }
        case Qt::TextAlignmentRole: return headerData(index.column(), Qt::Horizontal, role);
        case Qt::DecorationRole:
            return index.column() == 0 && !icon_.isNull() ? QVariant(icon_) : QVariant();
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

void ReportModel::SetTitle(int column, std::string_view title) {
    columns_.at(static_cast<std::size_t>(column)).Title = title;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

std::vector<int> ReportModel::WidestRows() const {
    std::vector<int> rows(static_cast<std::size_t>(Count()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
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
    struct Keyed {
        double value;
        int row;
    };
    const SortValueOf valueOf = SortValues(sortColumn_);
    std::vector<Keyed> keyed;
    keyed.reserve(static_cast<std::size_t>(Count()));
    for (int row = 0; row < Count(); ++row) keyed.push_back({valueOf(row), row});
    if (sortOrder_ == Qt::AscendingOrder) {
        std::stable_sort(keyed.begin(), keyed.end(),
                         [](const Keyed& a, const Keyed& b) { return a.value < b.value; });
    } else {
        std::stable_sort(keyed.begin(), keyed.end(),
                         [](const Keyed& a, const Keyed& b) { return a.value > b.value; });
    }
    order_.reserve(keyed.size());
    for (const Keyed& entry : keyed) order_.push_back(entry.row);
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

void RowsModel::UpdateRow(int row, const ReportRow& cells, const std::vector<int>& columns) {
    ReportRow& kept = rows_.at(static_cast<std::size_t>(row));
    for (const int column : columns) {
        const auto at = static_cast<std::size_t>(column);
        kept.at(at) = cells.at(at);
    }
    ForgetCached();
    for (const int column : columns) {
        const QModelIndex changed = index(Shown(row), column);
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

ReportModel::SortValueOf RowsModel::SortValues(int column) const {
    const auto at = static_cast<std::size_t>(column);
    if (ColumnAt(column).Kind != ColumnKind::Text) {
        return [this, at](int row) { return rows_[static_cast<std::size_t>(row)][at].Value; };
    }
    const auto before = [](const QString& a, const QString& b) {
        return QString::localeAwareCompare(a, b) < 0;
    };
    std::map<QString, double, decltype(before)> places(before);
    for (const ReportRow& row : rows_) places.emplace(ToQt(row[at].Text), 0);
    double place = 0;
    for (auto& [text, value] : places) value = place++;
    return [this, at, places](int row) {
        return places.at(ToQt(rows_[static_cast<std::size_t>(row)][at].Text));
    };
}

}  // namespace varnello
