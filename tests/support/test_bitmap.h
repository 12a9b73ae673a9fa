// Where this lies for tests of the Core.
#pragma once

#include "support/screen/test_bitmap.h"
