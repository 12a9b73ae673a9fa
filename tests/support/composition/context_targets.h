// Which device contexts have nothing to draw into. Real ones put up with it and say so at the end of the
// frame; those of systems without a composition engine break.
#pragma once

namespace zq::LM::test {

void NoteTarget(const void* deviceContext, const void* target);

// False for everything that is no device context.
bool LacksTarget(const void* drawer);

} // namespace zq::LM::test
