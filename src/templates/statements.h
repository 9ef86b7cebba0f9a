#pragma once

#include <QString>

namespace templates {

/// The key code is not escaped.
QString selectPath(const QString& keyCode);
QString countTemplates();
QString selectGuide();

} // namespace templates
