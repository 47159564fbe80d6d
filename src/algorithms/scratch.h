// Working memory of one call, under the name that this room's files call it by.
#pragma once

#include "../tensor/scratch.h"
