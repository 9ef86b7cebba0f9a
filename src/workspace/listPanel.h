#pragma once

#include "listStatements.h"

#include "store/rowSet.h"
#include "ui/periodChooser.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class listPanel;
}

namespace workspace {

class GridView;
class LeftJobsBar;

/// The grid with its instruction, the job filters and the totals.
class ListPanel : public QWidget {
    Q_OBJECT

public:
    explicit ListPanel(QWidget* parent);
    ~ListPanel() override;

    GridView& grid() const;
    LeftJobsBar& leftJobs() const;

    void setInstruction(const QString& text);
    /// Shows or hides the job filters and totals.
    void setJobControlsVisible(bool visible);
    /// Fills the client and type filters, each with "All" selected behind its entries. Throws what reading throws.
    void PopCombos();
    /// Sets the date pickers without choosing their periods.
    void setDates(QDate date);

    JobFilter filter() const;
    void chooseToday();

    /// Shows count and amount of listed jobs; the amounts are in the last column. Throws InvalidUseOfNull, Overflow.
    void showTotals(const store::RowSet& jobs);
    void clearTotals();

    /// As narrow as the filters can be with the totals below them.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void listClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showRowDetails();

    std::unique_ptr<Ui::listPanel> m_controls;
    std::optional<ui::PeriodChooser> m_period;
};

} // namespace workspace
