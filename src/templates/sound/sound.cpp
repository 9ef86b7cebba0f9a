#include <QCoreApplication>
#include <QSoundEffect>
#include <QUrl>

/// Plays a sound file and returns at once.
extern "C" void penwrightPlaySound(const QString& fileName)
{
    static auto* sound = new QSoundEffect(qApp);
    sound->setSource(QUrl::fromLocalFile(fileName));
    sound->play();
}
