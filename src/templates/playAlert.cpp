#include "playAlert.h"

#include "values/programFolder.h"

#include <QFileInfo>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace modMain {

void PlayAlert()
{
    const QString fileName = ProgramFolder + u"/alert.wav"_s;
    if (!QFileInfo::exists(fileName))
        return;
    static void* const library = dlopen("penwright-sound.so", RTLD_NOW);
    static void* const entry = library ? dlsym(library, "penwrightPlaySound") : nullptr;
    if (entry)
        reinterpret_cast<void (*)(const QString&)>(entry)(fileName);
}

} // namespace modMain
