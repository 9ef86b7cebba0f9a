#pragma once

#include <QHash>
#include <QString>

namespace workspace {

/// What people call a kind of work, and how it is paid.
struct TypeNames {
    QString name;
    QString unit;
    QString rate;
};

/// The names behind the numbers of the lists, by the text of the id.
struct JobNames {
    QHash<QString, QString> clients;
    QHash<QString, TypeNames> types;
};

/// Throws what reading throws.
JobNames readJobNames();

} // namespace workspace
