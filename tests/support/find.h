#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <cstdlib>

/// The control of a form with this name; ends the test when there is none.
template <typename Control>
Control& find(const QWidget& form, const char* name)
{
    auto* control = form.findChild<Control*>(QLatin1String(name));
    if (!control)
        qFatal("no control %s", name);
    return *control;
}

/// The text that a label, box, combo or button of the form shows.
inline QString textOf(const QWidget& form, const char* name)
{
    const auto& control = find<QWidget>(form, name);
    return control.property(control.inherits("QComboBox") ? "currentText" : "text").toString();
}

/// Clicks a button of the form with the mouse.
inline void click(const QWidget& form, const char* button)
{
    QTest::mouseClick(&find<QAbstractButton>(form, button), Qt::LeftButton);
}

/// Types over whatever a box of the form holds.
inline void type(const QWidget& form, const char* box, const QString& text)
{
    auto& control = find<QWidget>(form, box);
    QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control, Qt::Key_Delete);
    QTest::keyClicks(&control, text);
}

/// The rows that a combo box, list or grid of the form shows, each with its fields joined by "|".
inline QStringList entries(const QWidget& form, const char* list)
{
    auto& control = find<QWidget>(form, list);
    const auto* combo = qobject_cast<QComboBox*>(&control);
    const auto* model = combo ? combo->model() : qobject_cast<QAbstractItemView*>(&control)->model();
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < model->columnCount(); ++column)
            fields << model->index(row, column).data().toString();
        rows << fields.join(u'|');
    }
    return rows;
}

/// Goes to an entry of a list with the arrow keys.
inline void choose(const QWidget& form, const char* list, const QString& entry)
{
    auto& combo = find<QComboBox>(form, list);
    const int steps = combo.findText(entry) - combo.currentIndex();
    for (int i = 0; i < std::abs(steps); ++i)
        QTest::keyClick(&combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(combo.currentText(), entry);
}
