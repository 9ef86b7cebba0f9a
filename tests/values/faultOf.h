#pragma once

#include "support/errorOf.h"
