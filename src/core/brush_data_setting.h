// The Core's server setting.
#pragma once

namespace zq::LM {

// Whether an instance receives brush data over TCP. Off in the library, where nothing turns it on: the server
// asks nobody who they are. A program that links the Core may answer for itself.
bool IsBrushDataServerWanted();

} // namespace zq::LM
