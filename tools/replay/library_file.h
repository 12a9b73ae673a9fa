// The library that is played into, loaded at run time so that a missing file is a clear message instead of
// the system's.
#pragma once

#include "lumora/library.hpp"

#include <filesystem>

namespace lumora::replay {

// Throws lumora::Error when the file, one of its functions or the layout of its records is not as expected.
Library LoadLibraryFile(const std::filesystem::path& file);

// The library that lies beside this program.
std::filesystem::path LibraryBesideProgram();

} // namespace lumora::replay
