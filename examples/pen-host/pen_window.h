// The window to write in: takes pen and mouse, has Lumora show wet ink, and draws dry ink itself.
#pragma once

#include "pen_sample.h"

#include "lumora/lumora.hpp"

#include <vector>

namespace pen_host {

// Shows the window until a person closes it; appends all samples to `recorded`. Throws lumora::Error when the
// window cannot be made or memory runs out.
void RunPenWindow(lumora::Overlay& ink, std::vector<PenSample>& recorded);

} // namespace pen_host
