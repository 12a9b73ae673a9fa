// The library's file as it is delivered: what it exports and imports, and how it is hardened.
#include "support/library/library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zq::LM {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsSubsetOf;

std::string Upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::toupper(character)); });
    return text;
}

std::set<std::string> Words(const std::string& text)
{
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

std::wstring BesideTheLibrary(const wchar_t* name)
{
    const std::wstring library = test::LibraryPath();
    return library.substr(0, library.find_last_of(L'\\') + 1) + name;
}

// As the system's loader maps it; none of its code runs.
class BuiltFile {
public:
    explicit BuiltFile(const std::wstring& path)
        : file(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE))
    {
        if (file == nullptr) {
            throw std::runtime_error("a built file is missing");
        }
    }
    ~BuiltFile() { FreeLibrary(file); }
    BuiltFile(const BuiltFile&) = delete;
    BuiltFile& operator=(const BuiltFile&) = delete;

    const IMAGE_NT_HEADERS64& Headers() const
    {
        return *At<IMAGE_NT_HEADERS64>(static_cast<ULONGLONG>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }

    template <typename Type> const Type* At(ULONGLONG address) const
    {
        constexpr ULONGLONG Marks = 3; // of a handle that is only for resources
        return reinterpret_cast<const Type*>((reinterpret_cast<ULONGLONG>(file) & ~Marks) + address);
    }

    template <typename Directory> const Directory* DirectoryOf(std::size_t index) const
    {
        return At<Directory>(Headers().OptionalHeader.DataDirectory[index].VirtualAddress);
    }

    std::vector<std::string> Exports() const
    {
        const auto* exported = DirectoryOf<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
        EXPECT_EQ(exported->NumberOfFunctions, exported->NumberOfNames) << "none without a name";
        std::vector<std::string> names;
        for (DWORD i = 0; i < exported->NumberOfNames; ++i) {
            names.emplace_back(At<char>(At<DWORD>(exported->AddressOfNames)[i]));
        }
        return names;
    }

    // Functions by library; ordinals as "#17".
    std::map<std::string, std::set<std::string>> Imports() const
    {
        std::map<std::string, std::set<std::string>> imports;
        const auto* library = DirectoryOf<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
        for (; library->Name != 0; ++library) {
            std::set<std::string>& functions = imports[Upper(At<char>(library->Name))];
            for (const auto* entry = At<ULONGLONG>(library->OriginalFirstThunk); *entry != 0; ++entry) {
                functions.insert(IMAGE_SNAP_BY_ORDINAL64(*entry)
                                     ? "#" + std::to_string(IMAGE_ORDINAL64(*entry))
                                     : std::string(At<IMAGE_IMPORT_BY_NAME>(*entry)->Name));
            }
        }
        return imports;
    }

    std::set<std::string> ImportedLibraries() const
    {
        std::set<std::string> names;
        for (const auto& [library, functions] : Imports()) {
            names.insert(library);
        }
        return names;
    }

    std::set<std::string> ImportedFunctions() const
    {
        std::set<std::string> names;
        for (const auto& [library, functions] : Imports()) {
            names.insert(functions.begin(), functions.end());
        }
        return names;
    }

    bool HasText(const std::string& text) const
    {
        const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(&Headers());
        for (WORD i = 0; i < Headers().FileHeader.NumberOfSections; ++i, ++section) {
            const std::string_view bytes(At<char>(section->VirtualAddress), section->Misc.VirtualSize);
            if (bytes.find(text) != std::string_view::npos) {
                return true;
            }
        }
        return false;
    }

private:
    HMODULE file;
};

class LibraryFile : public ::testing::Test {
protected:
    BuiltFile file{test::LibraryPath()};
    const IMAGE_NT_HEADERS64& headers = file.Headers();
};

TEST_F(LibraryFile, IsALibraryForX64)
{
    EXPECT_EQ(headers.Signature, DWORD{IMAGE_NT_SIGNATURE});
    EXPECT_EQ(headers.OptionalHeader.Magic, IMAGE_NT_OPTIONAL_HDR64_MAGIC);
    EXPECT_EQ(headers.FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
    EXPECT_NE(headers.FileHeader.Characteristics & IMAGE_FILE_DLL, 0);
}

TEST_F(LibraryFile, ExportsExactlyTheNineFunctionsUndecorated)
{
    EXPECT_THAT(file.Exports(), ElementsAre("LM_Create", "LM_Destroy", "LM_GetCopiedParams", "LM_GetElmSize",
                                            "LM_GetWindowHandle", "LM_InputPenDataArray",
                                            "LM_SetData_from_App", "LM_SetDebugLevel", "LM_SetParams"));
}

// The runtime is linked statically: a host needs no other file beside the library.
TEST_F(LibraryFile, ImportsFromWindowsOwnLibrariesOnly)
{
    const std::set<std::string> libraries = file.ImportedLibraries();
    // ADVAPI32 has random numbers for the compiler's stack guard, MSVCRT is the C runtime that comes with
    // Windows.
    EXPECT_THAT(libraries,
                IsSubsetOf(Words("ADVAPI32.DLL COMCTL32.DLL COMDLG32.DLL D2D1.DLL D3D11.DLL DCOMP.DLL "
                                 "DWRITE.DLL DXGI.DLL GDI32.DLL GDIPLUS.DLL KERNEL32.DLL MSVCRT.DLL "
                                 "SHELL32.DLL USER32.DLL VERSION.DLL WINMM.DLL WS2_32.DLL")));
    EXPECT_THAT(libraries, Contains("USER32.DLL"));
}

TEST_F(LibraryFile, ImportsNothingByOrdinal)
{
    for (const auto& [library, functions] : file.Imports()) {
        if (library != "WS2_32.DLL") { // its numbers are as fixed as its names; compilers take either
            EXPECT_THAT(functions, ::testing::Each(::testing::Not(::testing::StartsWith("#")))) << library;
        }
    }
}

TEST_F(LibraryFile, NeverTouchesTheRegistry)
{
    for (const std::string& function : file.ImportedFunctions()) {
        EXPECT_FALSE(function.starts_with("Reg") && !function.starts_with("Register")) << function;
        EXPECT_FALSE(function.starts_with("SHReg") || function.starts_with("SHSetValue") ||
                     function.starts_with("SHGetValue") || function.starts_with("WriteProfile") ||
                     function.starts_with("WritePrivateProfile"))
            << function;
    }
}

// What could make, change or remove a file. The static runtime brings a few of these along: its stack guard
// opens the console to report a smashed stack, and its terminate handler writes to the standard error stream.
TEST_F(LibraryFile, WritesNoFilesBeyondWhatTheRuntimeBringsAlong)
{
    const std::set<std::string> writing =
        Words("CopyFile2 CopyFileA CopyFileExA CopyFileExW CopyFileW CreateDirectoryA CreateDirectoryExW "
              "CreateDirectoryW CreateFile2 CreateFileA CreateFileW CreateHardLinkW CreateFileMappingA "
              "CreateFileMappingW CreateSymbolicLinkW DeleteFileA DeleteFileW MoveFileA MoveFileExA "
              "MoveFileExW MoveFileW OpenFile RemoveDirectoryA RemoveDirectoryW ReplaceFileW SetEndOfFile "
              "SetFileAttributesW WriteFile WriteFileEx _creat _fsopen _lcreat _lwrite _mkdir _open _sopen "
              "_wcreat _wfopen _wfsopen _wmkdir _wopen _wremove _write _wsopen fopen fopen_s fprintf fputc "
              "fputs fputwc freopen fwprintf fwrite remove rename tmpfile vfprintf vfwprintf");
#ifdef _MSC_VER // its standard streams are files of its own
    const std::set<std::string> runtimes = Words("CreateFileW WriteFile SetEndOfFile DeleteFileW");
#else // the stack guard's console, and standard error
    const std::set<std::string> runtimes =
        Words("_open _write fprintf fputc fputs fputwc fwprintf fwrite vfprintf");
#endif
    std::set<std::string> imported;
    for (const std::string& function : file.ImportedFunctions()) {
        if (writing.contains(function)) {
            imported.insert(function);
        }
    }
    EXPECT_THAT(imported, IsSubsetOf(runtimes));
}

// The library, and every program that is packed beside it.
class HardenedFile : public ::testing::TestWithParam<const wchar_t*> {
protected:
    BuiltFile file{BesideTheLibrary(GetParam())};
    const IMAGE_NT_HEADERS64& headers = file.Headers();
};

TEST_P(HardenedFile, MayBePlacedAnywhereInTheWholeAddressSpace)
{
    EXPECT_NE(headers.OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, 0);
    EXPECT_NE(headers.OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA, 0);
    // Else it could not be moved.
    EXPECT_EQ(headers.FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
    EXPECT_NE(headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0U);
}

TEST_P(HardenedFile, RunsNoData)
{
    EXPECT_NE(headers.OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT, 0);
}

TEST_P(HardenedFile, HasNoSectionThatIsBothWritableAndExecutable)
{
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(&headers);
    bool hasCode = false;
    for (WORD i = 0; i < headers.FileHeader.NumberOfSections; ++i, ++section) {
        const bool executable = (section->Characteristics & IMAGE_SCN_MEM_EXECUTE) != 0;
        EXPECT_FALSE(executable && (section->Characteristics & IMAGE_SCN_MEM_WRITE) != 0) << section->Name;
        hasCode = hasCode || executable;
    }
    EXPECT_TRUE(hasCode);
}

TEST_P(HardenedFile, GuardsItsStack)
{
#ifdef _MSC_VER
    const auto* config = file.DirectoryOf<IMAGE_LOAD_CONFIG_DIRECTORY64>(IMAGE_DIRECTORY_ENTRY_LOAD_CONFIG);
    EXPECT_NE(config->SecurityCookie, 0U);
    EXPECT_NE(headers.OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_GUARD_CF, 0);
    EXPECT_NE(config->GuardFlags & IMAGE_GUARD_CF_INSTRUMENTED, 0U);
#else // what the guard says when it ends the process
    EXPECT_TRUE(file.HasText("stack smashing detected"));
#endif
}

// Delayed ones would be looked for when nobody expects it.
TEST_P(HardenedFile, LoadsNothingLater)
{
    EXPECT_EQ(headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT].Size, 0U);
}

TEST_P(HardenedFile, IsLinkedWithWindowsOwnLibrariesAndTheLibraryAlone)
{
    EXPECT_THAT(
        file.ImportedLibraries(),
        IsSubsetOf(Words("ADVAPI32.DLL COMCTL32.DLL COMDLG32.DLL D2D1.DLL D3D11.DLL DCOMP.DLL "
                         "DWRITE.DLL DXGI.DLL GDI32.DLL GDIPLUS.DLL HID.DLL KERNEL32.DLL LUMORADLL.DLL "
                         "MSVCRT.DLL OLE32.DLL SHCORE.DLL SHELL32.DLL USER32.DLL VERSION.DLL "
                         "WINMM.DLL WS2_32.DLL WTSAPI32.DLL")));
}

INSTANTIATE_TEST_SUITE_P(Shipped, HardenedFile,
                         ::testing::Values(L"LumoraDLL.dll", L"lumora-pen.exe", L"lumora-replay.exe",
                                           L"lumora-pen-host.exe"),
                         [](const auto& file) {
                             std::string name;
                             for (const wchar_t* letter = file.param; *letter != L'.'; ++letter) {
                                 name += *letter == L'-' ? '_' : static_cast<char>(*letter);
                             }
                             return name;
                         });

} // namespace
} // namespace zq::LM
