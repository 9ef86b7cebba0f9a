#pragma once

#include <QString>

namespace templates {

/// The key code is not escaped.
QString selectPath(const QString& keyCode);
QString countTemplates();
QString selectGuide();
/// Name, key code and description of all templates, by key code.
QString selectKeyCodes();

} // namespace templates
