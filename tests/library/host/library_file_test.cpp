// The library's file as it is delivered: what it exports and imports, and how it is hardened.
#include "library/host/portable_executable.h"
#include "support/library/library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cctype>

namespace zq::LM {
namespace {

using test::FileSection;
using test::PortableExecutable;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsSubsetOf;

std::string Upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::toupper(character)); });
    return text;
}

class LibraryFile : public ::testing::Test {
protected:
    std::set<std::string> ImportedLibraries() const
    {
        std::set<std::string> names;
        for (const auto& [library, functions] : file.imports) {
            names.insert(Upper(library));
        }
        return names;
    }

    std::set<std::string> ImportedFunctions() const
    {
        std::set<std::string> names;
        for (const auto& [library, functions] : file.imports) {
            names.insert(functions.begin(), functions.end());
        }
        return names;
    }

    const PortableExecutable file = test::ReadPortableExecutable(test::LibraryPath());
};

TEST_F(LibraryFile, IsALibraryForX64)
{
    EXPECT_EQ(file.machine, IMAGE_FILE_MACHINE_AMD64);
    EXPECT_NE(file.fileCharacteristics & IMAGE_FILE_DLL, 0);
}

TEST_F(LibraryFile, ExportsExactlyTheNineFunctionsUndecorated)
{
    EXPECT_THAT(file.exports, ElementsAre("LM_Create", "LM_Destroy", "LM_GetCopiedParams", "LM_GetElmSize",
                                          "LM_GetWindowHandle", "LM_InputPenDataArray", "LM_SetData_from_App",
                                          "LM_SetDebugLevel", "LM_SetParams"));
    EXPECT_EQ(file.exportedFunctions, 9U); // none without a name
}

// The runtime is linked statically: a host needs no other file beside the library.
TEST_F(LibraryFile, ImportsFromWindowsOwnLibrariesOnly)
{
    const std::set<std::string> windowsLibraries = {
        "ADVAPI32.DLL", // random numbers for the compiler's stack guard
        "COMCTL32.DLL", "COMDLG32.DLL", "D2D1.DLL",    "D3D11.DLL",   "DCOMP.DLL",
        "DWRITE.DLL",   "DXGI.DLL",     "GDI32.DLL",   "GDIPLUS.DLL", "KERNEL32.DLL",
        "MSVCRT.DLL", // the C runtime that comes with Windows
        "SHELL32.DLL",  "USER32.DLL",   "VERSION.DLL", "WINMM.DLL",   "WS2_32.DLL",
    };
    EXPECT_THAT(ImportedLibraries(), IsSubsetOf(windowsLibraries));
    EXPECT_THAT(ImportedLibraries(), Contains("USER32.DLL"));
}

TEST_F(LibraryFile, ImportsNothingByOrdinal)
{
    for (const auto& [library, functions] : file.imports) {
        if (Upper(library) != "WS2_32.DLL") { // its numbers are as fixed as its names; compilers take either
            EXPECT_THAT(functions, ::testing::Each(::testing::Not(::testing::StartsWith("#")))) << library;
        }
    }
}

TEST_F(LibraryFile, NeverTouchesTheRegistry)
{
    for (const std::string& function : ImportedFunctions()) {
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
    const std::set<std::string> writing = {"CopyFile2",
                                           "CopyFileA",
                                           "CopyFileExA",
                                           "CopyFileExW",
                                           "CopyFileW",
                                           "CreateDirectoryA",
                                           "CreateDirectoryExW",
                                           "CreateDirectoryW",
                                           "CreateFile2",
                                           "CreateFileA",
                                           "CreateFileW",
                                           "CreateHardLinkW",
                                           "CreateFileMappingA",
                                           "CreateFileMappingW",
                                           "CreateSymbolicLinkW",
                                           "DeleteFileA",
                                           "DeleteFileW",
                                           "MoveFileA",
                                           "MoveFileExA",
                                           "MoveFileExW",
                                           "MoveFileW",
                                           "OpenFile",
                                           "RemoveDirectoryA",
                                           "RemoveDirectoryW",
                                           "ReplaceFileW",
                                           "SetEndOfFile",
                                           "SetFileAttributesW",
                                           "WriteFile",
                                           "WriteFileEx",
                                           "_creat",
                                           "_fsopen",
                                           "_lcreat",
                                           "_lwrite",
                                           "_mkdir",
                                           "_open",
                                           "_sopen",
                                           "_wcreat",
                                           "_wfopen",
                                           "_wfsopen",
                                           "_wmkdir",
                                           "_wopen",
                                           "_wremove",
                                           "_write",
                                           "_wsopen",
                                           "fopen",
                                           "fopen_s",
                                           "fprintf",
                                           "fputc",
                                           "fputs",
                                           "fputwc",
                                           "freopen",
                                           "fwprintf",
                                           "fwrite",
                                           "remove",
                                           "rename",
                                           "tmpfile",
                                           "vfprintf",
                                           "vfwprintf"};
    const std::set<std::string> runtimes = {
#ifdef _MSC_VER
        "CreateFileW", "WriteFile", "SetEndOfFile",
        "DeleteFileW", // its standard streams are files of its own
#else
        "_open",   "_write",                                                      // the stack guard's console
        "fprintf", "fputc",  "fputs", "fputwc", "fwprintf", "fwrite", "vfprintf", // standard error
#endif
    };
    std::set<std::string> imported;
    for (const std::string& function : ImportedFunctions()) {
        if (writing.contains(function)) {
            imported.insert(function);
        }
    }
    EXPECT_THAT(imported, IsSubsetOf(runtimes));
}

TEST_F(LibraryFile, MayBePlacedAnywhereInTheWholeAddressSpace)
{
    EXPECT_NE(file.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, 0);
    EXPECT_NE(file.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA, 0);
    EXPECT_EQ(file.fileCharacteristics & IMAGE_FILE_RELOCS_STRIPPED, 0); // else it could not be moved
}

TEST_F(LibraryFile, RunsNoData)
{
    EXPECT_NE(file.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT, 0);
}

TEST_F(LibraryFile, HasNoSectionThatIsBothWritableAndExecutable)
{
    ASSERT_FALSE(file.sections.empty());
    bool hasCode = false;
    for (const FileSection& section : file.sections) {
        const bool executable = (section.characteristics & IMAGE_SCN_MEM_EXECUTE) != 0;
        EXPECT_FALSE(executable && (section.characteristics & IMAGE_SCN_MEM_WRITE) != 0) << section.name;
        hasCode = hasCode || executable;
    }
    EXPECT_TRUE(hasCode);
}

} // namespace
} // namespace zq::LM
