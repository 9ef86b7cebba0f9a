#pragma once

#include <QStringList>

/// Runs a program to its end and gives what it prints, without blanks at the end.
QString readOutput(const QString& program, const QStringList& arguments);

/// Waits for a printed document, saves a picture of its first page, removes it and gives its text.
QString takePrinted(const QString& pictureFile);

/// The number of pages of the last print job, with all copies.
int countLastPages();

/// Runs an xdotool command on the open windows whose titles begin like this, and gives its output.
QString commandOtherWindow(const QString& title, const QStringList& command);

/// Waits for a window of another program whose title begins like this.
bool waitForOtherWindow(const QString& title);

/// Closes such a window with Alt+F4 and waits until it is gone.
bool closeOtherWindow(const QString& title);
