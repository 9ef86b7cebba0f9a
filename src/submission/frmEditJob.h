#pragma once

#include <QDialog>

#include <map>
#include <memory>
#include <vector>

class QGroupBox;
class QPushButton;

namespace Ui {
class frmEditJob;
}

namespace ui {
class EntryBox;
}

namespace submission {

/// Corrects one field of the open job. Nothing is stored here: what is applied goes back to the workspace, which shows
/// it and saves it with the job.
class frmEditJob : public QDialog {
    Q_OBJECT

public:
    explicit frmEditJob(QWidget* parent);
    ~frmEditJob() override;

    /// Brings the frame of a value label into view (0 date, 2 type, 7 start, 8 length, 9 submitted, 10 reference) and
    /// fills it from the label's text. Throws what reading the text or the types throws.
    void PopForm(qint16 index, const QString& value);

Q_SIGNALS:
    void captionApplied(int index, const QString& caption);
    void typeApplied(qint32 typeId);

private:
    /// One frame of the form with its Apply button and the box that has the focus first.
    struct Frame {
        QGroupBox* box;
        QPushButton* applyButton;
        QWidget* firstControl;
    };
    /// What leaving a box checks, and which box is highlighted when the check fails.
    struct Rule {
        ui::EntryBox* leftBox;
        ui::EntryBox* testedBox;
        ui::EntryBox* highlightedBox;
        QString message;
    };

    void setUpFrames();
    void setUpRules();
    void setUpEvents();
    void Form_Load();
    void showFrame(int index);
    void fillTypes();
    void fillStart(const QString& value);
    void fillLength(const QString& value);
    void fillSubmitted(const QString& value);
    bool mayLeave(const QWidget* box);
    void cmdApply_Click(int index);
    void List1_DblClick();
    void applyType();
    QString readCaption(int index) const;

    std::unique_ptr<Ui::frmEditJob> m_controls;
    std::map<int, Frame> m_frames;
    std::vector<Rule> m_rules;
};

} // namespace submission
