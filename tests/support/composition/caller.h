// Who calls: only the watched module's own calls are recorded, not those that the system makes of itself.
#pragma once

#ifdef _MSC_VER
#include <intrin.h>
#define LUMORA_CALLER _ReturnAddress()
#else
#define LUMORA_CALLER __builtin_return_address(0)
#endif

namespace zq::LM::test {

// To be called when the system's graphics libraries are loaded, before the first question.
void FindSystemModules();

// Whether the address lies in the system's graphics libraries. The question is not whether it lies in the
// watched module: a call that was compiled to a jump returns to that module's caller.
bool IsInSystem(const void* address);

} // namespace zq::LM::test
