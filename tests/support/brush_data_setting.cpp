// The Core's server setting as a test wants it.
#include "support/brush_data_setting.h"

#include "core/brush_data_setting.h"

namespace zq::LM {

namespace {

bool g_wanted = false;

} // namespace

bool IsBrushDataServerWanted() { return g_wanted; }

namespace test {

void WantBrushDataServer(bool wanted) { g_wanted = wanted; }

} // namespace test

} // namespace zq::LM
