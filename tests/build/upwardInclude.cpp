// Stands in for a file of the room store/: the rooms below are there for it, those above are not.
#include "store/command.h"
#include "values/clock.h"

#include "ui/messages.h"
