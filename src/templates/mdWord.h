// templates: the library of document templates: fetched by key code, and listed in a printed guide.
#pragma once

#include <QString>

namespace mdWord {

/// Copies the template with this key code to the clipboard. False when there is none. Throws what reading the data file
/// and the template throws; a path that leads out of the templates folder is FileNotFound.
bool GetTemplate(const QString& keyCode);

/// Makes the template guide (templates/template.xls), prints it and shows it. Throws what reading and writing throw.
void ExportTemplateList();

} // namespace mdWord
