// Loading of the library that is played into.
#include "library_file.h"

namespace lumora::replay {

Library LoadLibraryFile(const std::filesystem::path& file)
{
    const Library library = Library::Load(std::filesystem::absolute(file).native());
    library.CheckRecords();
    return library;
}

std::filesystem::path LibraryBesideProgram()
{
    constexpr std::size_t LongestPath = 32768;
    std::wstring program(LongestPath, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return std::filesystem::path(program).parent_path() / "LumoraDLL.dll";
}

} // namespace lumora::replay
