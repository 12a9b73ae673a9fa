// The self-test of lumora-replay: draws on every back-end, reads the screen back, measures, and writes one
// text file.
#pragma once

#include "run_replay.h"

#include <filesystem>

namespace lumora::replay {

// Takes up to twenty seconds, in which a small window of its own lies in the middle of the screen. Throws
// lumora::Error or ReplayError when there is no library or the file cannot be written.
void Selftest(const std::filesystem::path& library, const std::filesystem::path& report,
              const MakeUnderlay& makeUnderlay);

} // namespace lumora::replay
