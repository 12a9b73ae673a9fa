// The Core's server setting as a test wants it. Linked into a test program, it takes the place of the
// library's own, which is always off.
#pragma once

namespace zq::LM::test {

void WantBrushDataServer(bool wanted);

} // namespace zq::LM::test
