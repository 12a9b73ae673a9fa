// The Core's server setting, as the library has it. Alone in its file, so that a program's own answer takes
// its place as a whole.
#include "core/brush_data_setting.h"

namespace zq::LM {

bool IsBrushDataServerWanted() { return false; }

} // namespace zq::LM
