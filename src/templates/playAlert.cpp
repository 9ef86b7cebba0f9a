#include "playAlert.h"

#include "store/connectionStrings.h"

#include <QFileInfo>

#include <dlfcn.h>

namespace modMain {

void PlayAlert()
{
    const QString fileName = ProgramFolder + QStringLiteral("/alert.wav");
    if (!QFileInfo::exists(fileName))
        return;
    static void* const library = dlopen("penwright-sound.so", RTLD_NOW);
    static void* const entry = library ? dlsym(library, "penwrightPlaySound") : nullptr;
    if (entry)
        reinterpret_cast<void (*)(const QString&)>(entry)(fileName);
}

} // namespace modMain
