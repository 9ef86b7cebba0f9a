// reports: job figures of a client or type over a period, as workbooks that are opened, printed or saved.
#pragma once

#include "fillReport.h"

#include "ui/periodChooser.h"

#include <QDialog>

#include <memory>
#include <optional>

class QCheckBox;
class QComboBox;

namespace Ui {
class frmReport;
}

namespace reports {

/// "Report Manager": turns what a person chooses into a report.
class frmReport : public QDialog {
    Q_OBJECT

public:
    /// Throws what reading clients and types throws.
    explicit frmReport(QWidget* parent);
    ~frmReport() override;

private:
    void connectEvents();
    void popCombos();
    void enableUsedControls();
    void cmdProcess_Click();

    /// The combo that the chosen options point to, and what its entries are.
    std::pair<QComboBox*, Subject::Kind> findChosenCombo() const;
    std::vector<Field> readFields() const;
    Mode readMode() const;
    /// The number of copies; empty when the text is none from 1 to 99.
    std::optional<int> readCopies() const;
    Request makeRequest(const QComboBox& combo, const Subject& subject, int copies) const;

    std::unique_ptr<Ui::frmReport> m_controls;
    std::optional<ui::PeriodChooser> m_period;
};

} // namespace reports
