#pragma once

#include <QStringList>

/// What a command prints, without the last line's end; waits for its own.
QString outputOf(const QString& program, const QStringList& arguments);

/// The text of the document that the printer has made last; waits for it. Leaves a picture of its first page.
QString takePrinted(const QString& pictureFile);

/// How many pages the last job had, those of all copies together.
int lastPages();

/// What xdotool says to a command on the open windows whose titles begin like this.
QString onOtherWindow(const QString& title, const QStringList& command);

/// An open window of another program whose title begins like this; waits for it.
bool waitForOtherWindow(const QString& title);

/// Closes such a window as a person does, by a key, and waits until it is gone.
bool closeOtherWindow(const QString& title);
