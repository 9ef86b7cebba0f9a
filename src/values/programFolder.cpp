#include "programFolder.h"

namespace modMain {

QString ProgramFolder;

} // namespace modMain
