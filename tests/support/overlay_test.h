// Where this lies for tests of the Core.
#pragma once

#include "support/library/overlay_test.h"
