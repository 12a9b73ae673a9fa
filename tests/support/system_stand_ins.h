// What stands in for the system: each has a file of its own.
#pragma once

#include "support/fakes/clock.h"
#include "support/fakes/debugger.h"
#include "support/fakes/graphics_device.h"
#include "support/fakes/shell.h"
#include "support/fakes/timer.h"
