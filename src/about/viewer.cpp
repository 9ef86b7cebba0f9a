#include "viewer.h"

#include "values/utf8Environment.h"

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace about {

namespace {

bool start(const Viewer& viewer)
{
    const QString path = QStandardPaths::findExecutable(viewer.program);
    if (path.isEmpty())
        return false;
    QProcess process;
    process.setProgram(path);
    process.setArguments(viewer.arguments);
    process.setProcessEnvironment(values::utf8Environment());
    // Its output must not mix with ours.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

bool startFirstInstalled(const QList<Viewer>& viewers)
{
    return std::ranges::any_of(viewers, start);
}

} // namespace about
