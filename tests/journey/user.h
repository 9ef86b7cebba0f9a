#pragma once

#include <QImage>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// A person at keyboard and mouse. It runs on its own thread, so that it can act while the program waits in a dialog,
/// and sends its events through the display. It looks at controls on the program's thread. It throws when something
/// does not happen in time.
class User {
public:
    explicit User(QString pictureFolder);

    /// Runs a story while the program's events are handled. False, with a warning of what went wrong, when it does not
    /// come to its end.
    bool play(const std::function<void()>& story);

    /// One or more keys as the display names them: F7, Return, alt+s.
    void press(const QString& keys) { sendToDisplay(QStringList{"key", "--delay", "20"} + keys.split(u' ')); }
    void type(const QString& text) { sendToDisplay({"type", "--delay", "8", text}); }
    /// Clicks a visible control by its name.
    void click(const QString& name);
    /// Clicks a box and types into it.
    void fill(const QString& name, const QString& text)
    {
        click(name);
        type(text);
    }
    /// Clicks an entry of a list.
    void clickEntry(const QString& list, int row, int times = 1);
    /// Clicks a row of the grid.
    void clickRow(int row, int times = 1) { clickEntry("dgList", row, times); }
    /// Turns the wheel towards the user over a control.
    void turnWheel(const QString& name);
    /// Clicks a place of the display, which is calculated on the program's thread.
    void clickAt(const std::function<QPoint()>& place, int times = 1);
    /// Goes through the menu bar by the captions.
    void choose(const QStringList& captions);

    /// Opens a dialog by keys, or from the menus.
    void open(const QString& window, const QString& keys)
    {
        press(keys);
        waitForWindow(window);
    }
    void open(const QString& window, const QStringList& captions)
    {
        choose(captions);
        waitForWindow(window);
    }
    /// Waits for a message box with this text, and says OK there.
    void answer(const QString& text)
    {
        waitForWindow(text);
        press("Return");
    }
    /// Leaves the dialog by keys, back to the main window.
    void leave(const QString& keys = "Escape")
    {
        press(keys);
        waitForNoWindow();
    }

    /// Waits for a dialog or message box: an object name, or the text of a box.
    void waitForWindow(const QString& nameOrText, int milliseconds = 5000);
    void waitForNoWindow();
    void waitForText(const QString& name, const QString& text, int milliseconds = 5000);
    void waitForTitle(const QString& title);
    void waitFor(const QString& what, const std::function<bool()>& condition, int milliseconds = 5000);

    /// The name of the control that has the focus.
    QString focusedControl();
    void waitForFocus(const QString& name);
    /// The text that a visible control shows.
    QString text(const QString& name);
    enum class Area { Program, Display };
    /// Saves and gives what the display shows of the program, or all of it, other programs' windows too.
    QImage takePicture(const QString& name, Area area = Area::Program);

    /// The visible control with this name in the active window; null when there is none. For conditions.
    static QWidget* control(const QString& name);

private:
    void sendToDisplay(const QStringList& arguments);

    QString m_pictureFolder;
};
