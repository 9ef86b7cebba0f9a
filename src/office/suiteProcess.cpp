#include "suiteProcess.h"

#include "suiteError.h"
#include "suiteSettings.h"

#include "values/utf8Environment.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QThread>
#include <QUrl>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace office {

namespace {

const QString suiteProgram = QStringLiteral(OFFICE_PROGRAM_FOLDER "/soffice");

QString randomName()
{
    QString name = u"penwright"_s;
    for (int i = 0; i < 4; ++i)
        name += QString::number(QRandomGenerator::system()->generate(), 16);
    return name;
}

// The pipe by which a second start of the suite with the same profile would find this one.
QString nameSecondStartPipe(const QString& profileUrl)
{
    const QByteArrayView characters(reinterpret_cast<const char*>(profileUrl.utf16()),
                                    profileUrl.size() * static_cast<qsizetype>(sizeof(char16_t)));
    QString name = u"SingleOfficeIPC_"_s;
    for (const char byte : QCryptographicHash::hash(characters, QCryptographicHash::Md5))
        name += QString::number(static_cast<unsigned char>(byte), 16);
    return name;
}

// Runs the suite ($3 and its arguments) and removes its folder ($0) when it has ended. A watcher in a session of its
// own waits for the end of the program, which closes the other end of the standard input: then it kills the process
// group of a suite without a visible window, and removes the folder and the two pipes ($1, $2).
const QString launchScript = QStringLiteral(R"(
exec 3<&0 </dev/null
setsid sh -c '
    read -r nothing <&3
    [ ! -e "$0/shown" ] || exit
    [ ! -d "$0" ] || kill -KILL -"$3"
    for try in 1 2 3 4 5 6 7 8 9; do
        rm -rf "$0" /tmp/OSL_PIPE_*_"$1" /tmp/OSL_PIPE_*_"$2" && break
        sleep 0.1
    done
' "$0" "$1" "$2" $$ >/dev/null 2>&1 &
watcher=$!
shift 2
"$@" 3<&-
[ -e "$0/shown" ] || kill $watcher
rm -rf "$0"
)");

// The suite's own temporary files go with its folder, also when it is killed.
QProcessEnvironment makeEnvironment(const QString& folder)
{
    QProcessEnvironment environment = values::utf8Environment();
    environment.insert(u"TMPDIR"_s, folder);
    return environment;
}

// Killed processes may still write for a moment.
void removeFolder(const QString& path)
{
    for (int tries = 0; !QDir(path).removeRecursively() && tries < 100; ++tries)
        QThread::msleep(10);
}

} // namespace

SuiteProcess::SuiteProcess() : m_folder(QDir::tempPath() + u"/penwright-office-XXXXXX"_s), m_pipeName(randomName())
{
    if (!QFileInfo::exists(suiteProgram))
        throw suiteMissingError();
    if (!m_folder.isValid())
        throw writeError(QDir::tempPath());
    writeSettings(m_folder.filePath(u"profile"_s));
    const QString profileUrl = QUrl::fromLocalFile(m_folder.filePath(u"profile"_s)).toString();
    QStringList arguments{u"-env:UserInstallation="_s + profileUrl,
                          u"--accept=pipe,name=%1;urp"_s.arg(m_pipeName),
                          u"--norestore"_s,
                          u"--nologo"_s,
                          u"--nodefault"_s,
                          u"--nolockcheck"_s};
    if (!hasDisplay())
        arguments << u"--headless"_s;
    // A process group of its own, because the suite starts further processes and all of them must end. The umask keeps
    // other users from its files and, above all, its pipe.
    m_process.setChildProcessModifier([] {
        setpgid(0, 0);
        umask(S_IRWXG | S_IRWXO);
    });
    m_process.setProcessEnvironment(makeEnvironment(m_folder.path()));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(u"/bin/sh"_s, QStringList{u"-c"_s, launchScript, m_folder.path(), m_pipeName,
                                              nameSecondStartPipe(profileUrl), suiteProgram} +
                                      arguments);
    if (!m_process.waitForStarted())
        throw suiteMissingError();
}

SuiteProcess::~SuiteProcess()
{
    kill();
}

bool SuiteProcess::hasDisplay()
{
    return QGuiApplication::platformName() != u"offscreen" && QGuiApplication::platformName() != u"minimal";
}

void SuiteProcess::callOnEnd(QObject* context, const std::function<void()>& handler)
{
    QObject::connect(&m_process, &QProcess::finished, context, [handler] { handler(); });
}

// Removes the folder too: without it, the watcher kills no group whose number may by then belong to others.
void SuiteProcess::kill()
{
    if (isRunning()) {
        ::kill(-static_cast<pid_t>(m_process.processId()), SIGKILL);
        m_process.waitForFinished();
    }
    removeFolder(m_folder.path());
}

void SuiteProcess::waitForEnd(int milliseconds)
{
    if (isRunning())
        m_process.waitForFinished(milliseconds);
}

void SuiteProcess::giveAway()
{
    QFile(m_folder.filePath(u"shown"_s)).open(QIODevice::WriteOnly);
}

} // namespace office
