#include "programEnd.h"

namespace ui {

ProgramEnd& ProgramEnd::instance()
{
    static ProgramEnd end;
    return end;
}

} // namespace ui
