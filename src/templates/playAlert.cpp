#include "playAlert.h"

#include "store/connectionStrings.h"

#include <QApplication>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace modMain {

void PlayAlert()
{
    const QString fileName = ProgramFolder + QStringLiteral("/alert.wav");
    if (!QFileInfo::exists(fileName))
        return;
    // Made at the first use: looking for a sound device takes a moment that no start should pay.
    static auto* sound = new QSoundEffect(qApp);
    sound->setSource(QUrl::fromLocalFile(fileName));
    sound->play();
}

} // namespace modMain
