#include "suiteProcess.h"

#include "suiteError.h"
#include "suiteSettings.h"

#include "ui/utf8Environment.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QUrl>

#include <csignal>
#include <unistd.h>

namespace office {

namespace {

const QString starter = QStringLiteral(OFFICE_PROGRAM_FOLDER "/soffice");

QString randomName()
{
    QString name = QStringLiteral("penwright");
    for (int i = 0; i < 4; ++i)
        name += QString::number(QRandomGenerator::system()->generate(), 16);
    return name;
}

// How long a suite that was asked to end may take, in milliseconds.
constexpr int endingPatience = 3'000;

// Runs the suite and takes its folder away when it has ended: its windows may outlive us.
const QString runAndTidyUp = QStringLiteral("\"$@\"; rm -rf \"$0\"");

bool hasDisplay()
{
    return QGuiApplication::platformName() != u"offscreen" && QGuiApplication::platformName() != u"minimal";
}

} // namespace

SuiteProcess::SuiteProcess()
    : m_folder(QDir::tempPath() + QStringLiteral("/penwright-office-XXXXXX")), m_pipeName(randomName())
{
    if (!QFileInfo::exists(starter))
        throw suiteMissing();
    writeSettings(m_folder.filePath(QStringLiteral("profile")));
    QStringList arguments{QStringLiteral("-env:UserInstallation=") +
                              QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("profile"))).toString(),
                          QStringLiteral("--accept=pipe,name=%1;urp").arg(m_pipeName),
                          QStringLiteral("--norestore"),
                          QStringLiteral("--nologo"),
                          QStringLiteral("--nodefault"),
                          QStringLiteral("--nolockcheck")};
    if (!hasDisplay())
        arguments << QStringLiteral("--headless");
    // A group of its own: the starter starts others, and all of them must be reached at the end.
    m_process.setChildProcessModifier([] { setpgid(0, 0); });
    m_process.setProcessEnvironment(ui::utf8Environment());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(QStringLiteral("/bin/sh"),
                    QStringList{QStringLiteral("-c"), runAndTidyUp, m_folder.path(), starter} + arguments);
    if (!m_process.waitForStarted())
        throw suiteMissing();
}

SuiteProcess::~SuiteProcess()
{
    // Asked to end, it tidies up after itself.
    if (m_isAskedToEnd && isRunning())
        m_process.waitForFinished(endingPatience);
    kill();
}

void SuiteProcess::onEnd(QObject* context, const std::function<void()>& handler)
{
    QObject::connect(&m_process, &QProcess::finished, context, [handler] { handler(); });
}

void SuiteProcess::kill()
{
    if (!isRunning())
        return;
    ::kill(-static_cast<pid_t>(m_process.processId()), SIGKILL);
    m_process.waitForFinished();
}

void SuiteProcess::letEnd()
{
    m_isAskedToEnd = true;
}

} // namespace office
