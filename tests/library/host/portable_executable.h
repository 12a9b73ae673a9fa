// Reads a program file from disk, as the system's loader would see it.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace zq::LM::test {

struct FileSection {
    std::string name;
    std::uint32_t characteristics;
};

struct PortableExecutable {
    std::uint16_t machine = 0;
    std::uint16_t fileCharacteristics = 0;
    std::uint16_t dllCharacteristics = 0;
    std::vector<FileSection> sections;
    std::vector<std::string> exports;                     // by name, in the file's order
    std::uint32_t exportedFunctions = 0;                  // with those that have no name
    std::map<std::string, std::set<std::string>> imports; // functions by library; ordinals as "#17"
};

// Raises std::runtime_error for a file that is no 64-bit program, std::out_of_range for one that is damaged.
PortableExecutable ReadPortableExecutable(const wchar_t* path);

} // namespace zq::LM::test
