#pragma once

#include <QPalette>

namespace ui {

/// The least contrast with which everybody can read a text of usual size.
constexpr double readableContrast = 4.5;

/// How clearly a text of one colour stands out from the other, from 1 (not at all) to 21 (black and white).
double contrastOf(const QColor& one, const QColor& other);

/// The palette with the text of what is selected in black or white where its own colour cannot be read.
QPalette withReadableSelection(QPalette palette);

enum class Outcome { Success, Failure };
/// The colour of a message: black or red; where the desktop's theme is dark its text colour, or a red light enough to
/// be read there.
QColor messageColor(Outcome outcome);

} // namespace ui
