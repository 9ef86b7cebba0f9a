#include "accessibility.h"

#include "accessKeys.h"
#include "valueLabel.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

#include <array>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

/// A control whose name is its own: without a heading, Qt takes the title of the box around, the same for all in there.
class HeadedWidget : public QAccessibleWidget {
protected:
    using QAccessibleWidget::QAccessibleWidget;

    /// The accessible name of the control or the text of the label beside it, without the colon at its end.
    QString heading() const
    {
        QString heading = widget()->accessibleName();
        for (const auto& [label, relation] : relations(QAccessible::Label)) {
            if (heading.isEmpty() && label->role() == QAccessible::StaticText)
                heading = label->text(QAccessible::Name);
        }
        return heading.endsWith(u':') ? heading.chopped(1) : heading;
    }
    QString headingAndValue(const QString& value) const
    {
        QStringList texts{heading(), value};
        texts.removeAll(QString());
        return texts.join(u": "_s);
    }
};

/// A value that stands under a heading, which can be pressed if it can be changed.
class AccessibleValue : public HeadedWidget {
public:
    explicit AccessibleValue(QLabel& label) : HeadedWidget(&label) {}

    // Not before it is asked for: a label may come to be clickable after it was described.
    QAccessible::Role role() const override
    {
        const auto* value = qobject_cast<const ValueLabel*>(widget());
        return value && value->isClickable() ? QAccessible::Button : QAccessible::StaticText;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? headingAndValue(static_cast<QLabel*>(widget())->text())
                                         : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button)
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            Q_EMIT static_cast<ValueLabel*>(widget())->clicked();
        else
            QAccessibleWidget::doAction(name);
    }
};

/// The label of a box, with the access key that leads into it.
class AccessibleCaption : public QAccessibleWidget {
public:
    explicit AccessibleCaption(QLabel& label) : QAccessibleWidget(&label, QAccessible::StaticText) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? label().text() : QAccessibleWidget::text(kind);
    }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        auto found = QAccessibleWidget::relations(match);
        if (match.testFlag(QAccessible::Labelled))
            found.emplaceBack(QAccessible::queryAccessibleInterface(label().buddy()), QAccessible::Labelled);
        return found;
    }
    QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString&) override { label().buddy()->setFocus(Qt::ShortcutFocusReason); }
    QStringList keyBindingsForAction(const QString&) const override
    {
        return accessKeyOf(*label().buddy()).toString(QKeySequence::PortableText).split(u',', Qt::SkipEmptyParts);
    }

private:
    QLabel& label() const { return *static_cast<QLabel*>(widget()); }
};

/// A combo box named by its label, and by what it shows where no box of its own tells that; Qt leaves out the label.
class AccessibleCombo : public HeadedWidget {
public:
    explicit AccessibleCombo(QComboBox& combo) : HeadedWidget(&combo, QAccessible::ComboBox) {}

    int childCount() const override { return combo().isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        QWidget* part = index == 0 ? static_cast<QWidget*>(combo().view()) : combo().lineEdit();
        part->setAccessibleName(heading());
        return QAccessible::queryAccessibleInterface(part);
    }
    int indexOfChild(const QAccessibleInterface* part) const override
    {
        return part->object() == combo().view() ? 0 : part->object() == combo().lineEdit() ? 1 : -1;
    }
    QAccessibleInterface* focusChild() const override
    {
        return combo().hasFocus() && combo().isEditable() ? child(1) : QAccessibleWidget::focusChild();
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return combo().isEditable() ? heading() : headingAndValue(combo().currentText());
        return kind == QAccessible::Value ? combo().currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = combo().view()->isVisible();
        state.editable = combo().isEditable();
        return state;
    }
    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (name == showMenuAction())
            combo().view()->isVisible() ? combo().hidePopup() : combo().showPopup();
        else
            QAccessibleWidget::doAction(name);
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        return {name == showMenuAction() ? u"Alt+Down"_s : accessKeyOf(combo()).toString()};
    }

private:
    QComboBox& combo() const { return *static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* describe(const QString& className, QObject* object)
{
    if (className == u"QComboBox"_s)
        return new AccessibleCombo(*static_cast<QComboBox*>(object));
    if (className != u"QLabel"_s)
        return nullptr;
    auto& label = *static_cast<QLabel*>(object);
    if (label.buddy())
        return new AccessibleCaption(label);
    if (qobject_cast<ValueLabel*>(&label) || !label.accessibleName().isEmpty())
        return new AccessibleValue(label);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(describe);
}

void completeNames(QFileDialog& dialog)
{
    constexpr std::array<std::pair<const char*, const char*>, 2> captions{
        {{"lookInLabel", "lookInCombo"}, {"fileTypeLabel", "fileTypeCombo"}}};
    for (const auto& [label, box] : captions) {
        if (auto* found = dialog.findChild<QLabel*>(QLatin1String(label)))
            found->setBuddy(dialog.findChild<QWidget*>(QLatin1String(box)));
    }
    if (auto* frame = dialog.findChild<QFrame*>(u"frame"_s))
        frame->setAccessibleName(u"Places and files"_s);
}

} // namespace ui
