#pragma once

#include <QTableView>
#include <optional>
#include <vector>

#include "desktop/choosers/game_choice.h"
#include "desktop/platform/window_memory.h"
#include "desktop/reports/report_model.h"

namespace varnello {

/// A list of a report: whole rows, columns as wide as what stands in them unless a person has set
/// their width, sorted by a click on a header and back in the report's order by a third one.
class ReportView : public QTableView {
    Q_OBJECT

public:
    using DealOf = std::function<std::optional<GameChoice>(int row)>;

    /// `name` is what assistive tools call the list. The view owns the model.
    ReportView(ReportModel* model, const QString& name, QWidget* parent = nullptr);

    /// Rows of the report are deals that can be played again: by a menu of their own, a double
    /// click, or Enter.
    void OfferDeals(DealOf dealOf) { dealOf_ = std::move(dealOf); }
    /// What stands in the list while it has no rows.
    void SetEmptyText(const QString& text) { emptyText_ = text; }
    /// Makes a row of the report the current one, in view; selected or, where its colours have to
    /// stay as they are, not.
    void ShowRow(int row, bool selected = true);
    /// The row of the report that is the current one, from 0; -1 for none.
    int CurrentRow() const;

    /// Has the widths that a person sets, and the sorting, kept under this word.
    void Remember(WindowMemory& memory, const char* part);

Q_SIGNALS:
    /// A person wants to play a row's deal again.
    void DealAsked(const varnello::GameChoice& deal);
    /// A copy ended after so many rows of those that were asked for.
    void CopyCut(int rows);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString State() const;
    void SetState(const QString& state);
    void MeasureColumns();
    void FitColumns();
    void TakeWidth(int column, int width);
    void ScrollToCurrent();
    void CopyRows();
    std::optional<GameChoice> CurrentDeal() const;
    void AskForDeal();

    ReportModel* model_;
    std::vector<int> widths_;  ///< pixels that the columns need
    std::vector<int> byHand_;  ///< pixels that a person gave them; 0 for none
    bool fitting_ = false;
    bool scroll_ = false;  ///< to the current row, as soon as the view has its size
    DealOf dealOf_;
    QString emptyText_;
};

}  // namespace varnello
