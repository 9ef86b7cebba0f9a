#pragma once

#include <QImage>
#include <QStringList>

class QWidget;

/// The texts of a window that stand out too little from what is behind them, each with its contrast, measured on a
/// picture of the whole display. Texts of disabled controls count not.
QStringList faintTexts(const QWidget& window, const QImage& display);
