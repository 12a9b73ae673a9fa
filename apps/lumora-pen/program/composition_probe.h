// Whether this system can show the library's default back-end, about which the library itself says nothing.
#pragma once

namespace lumora_pen {

bool HasCompositionEngine();

} // namespace lumora_pen
