#include "endOfProgram.h"

#include "ui/eventGuard.h"

EndOfProgram::EndOfProgram()
{
    ui::setProgramEnd([this](int code) { m_codes << code; });
}

EndOfProgram::~EndOfProgram()
{
    ui::setProgramEnd({});
}
