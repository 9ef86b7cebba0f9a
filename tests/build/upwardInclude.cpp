// Compiled like a file of the room store/: it can include rooms below, but not above.
#include "store/command.h"
#include "values/clock.h"

#include "ui/messages.h"
