#pragma once

#include <QString>

namespace templates {

/// The key code as typed.
QString selectPath(const QString& keyCode);
QString countTemplates();
QString selectGuide();

} // namespace templates
