#pragma once

#include <QString>

namespace workspace {

/// A template as the panel holds it. The texts are not escaped.
struct TemplateEntry {
    QString name;
    QString keyCode;
    QString description;
    QString path;
};

QString selectTemplates();
QString selectTemplate(qint32 id);
QString insertTemplate(const TemplateEntry& entry);
QString updateTemplate(qint32 id, const TemplateEntry& entry);
QString deleteTemplate(qint32 id);

} // namespace workspace
