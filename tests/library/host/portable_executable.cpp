// Reads a program file from disk.
#include "library/host/portable_executable.h"

#include <windows.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace zq::LM::test {

namespace {

class File {
public:
    explicit File(const wchar_t* path)
    {
        std::ifstream stream(std::filesystem::path(path), std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(stream), {});
    }

    template <typename Type> Type Read(std::size_t offset) const
    {
        if (offset + sizeof(Type) > bytes.size()) {
            throw std::out_of_range("the file ends too early");
        }
        Type value;
        std::memcpy(&value, bytes.data() + offset, sizeof(value));
        return value;
    }

    std::string ReadText(std::size_t offset) const
    {
        std::string text;
        for (char next = Read<char>(offset); next != '\0'; next = Read<char>(++offset)) {
            text += next;
        }
        return text;
    }

private:
    std::vector<char> bytes;
};

class Reader {
public:
    explicit Reader(const wchar_t* path) : file(path)
    {
        const auto dos = file.Read<IMAGE_DOS_HEADER>(0);
        const auto start = static_cast<std::size_t>(dos.e_lfanew);
        headers = file.Read<IMAGE_NT_HEADERS64>(start);
        if (dos.e_magic != IMAGE_DOS_SIGNATURE || headers.Signature != IMAGE_NT_SIGNATURE ||
            headers.OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR64_MAGIC) {
            throw std::runtime_error("not a 64-bit program file");
        }
        const std::size_t table =
            start + offsetof(IMAGE_NT_HEADERS64, OptionalHeader) + headers.FileHeader.SizeOfOptionalHeader;
        for (std::size_t i = 0; i < headers.FileHeader.NumberOfSections; ++i) {
            sections.push_back(file.Read<IMAGE_SECTION_HEADER>(table + i * sizeof(IMAGE_SECTION_HEADER)));
        }
    }

    PortableExecutable Read() const
    {
        PortableExecutable result;
        result.machine = headers.FileHeader.Machine;
        result.fileCharacteristics = headers.FileHeader.Characteristics;
        result.dllCharacteristics = headers.OptionalHeader.DllCharacteristics;
        for (const IMAGE_SECTION_HEADER& section : sections) {
            const auto* name = reinterpret_cast<const char*>(section.Name);
            result.sections.push_back({std::string(name, strnlen(name, IMAGE_SIZEOF_SHORT_NAME)),
                                       static_cast<std::uint32_t>(section.Characteristics)});
        }
        ReadExports_(result);
        ReadImports_(result);
        return result;
    }

private:
    // Where an address of the loaded image lies in the file.
    std::size_t Offset_(std::uint64_t address) const
    {
        for (const IMAGE_SECTION_HEADER& section : sections) {
            if (address >= section.VirtualAddress &&
                address < section.VirtualAddress + section.SizeOfRawData) {
                return static_cast<std::size_t>(address - section.VirtualAddress + section.PointerToRawData);
            }
        }
        throw std::out_of_range("an address outside every section");
    }

    DWORD Directory_(std::size_t index) const
    {
        return headers.OptionalHeader.DataDirectory[index].VirtualAddress;
    }

    void ReadExports_(PortableExecutable& result) const
    {
        const auto directory =
            file.Read<IMAGE_EXPORT_DIRECTORY>(Offset_(Directory_(IMAGE_DIRECTORY_ENTRY_EXPORT)));
        result.exportedFunctions = directory.NumberOfFunctions;
        for (DWORD i = 0; i < directory.NumberOfNames; ++i) {
            const auto name = file.Read<DWORD>(Offset_(directory.AddressOfNames) + i * sizeof(DWORD));
            result.exports.push_back(file.ReadText(Offset_(name)));
        }
    }

    void ReadImports_(PortableExecutable& result) const
    {
        std::size_t place = Offset_(Directory_(IMAGE_DIRECTORY_ENTRY_IMPORT));
        auto library = file.Read<IMAGE_IMPORT_DESCRIPTOR>(place);
        while (library.Name != 0) {
            std::set<std::string>& functions = result.imports[file.ReadText(Offset_(library.Name))];
            std::size_t entry = Offset_(library.OriginalFirstThunk);
            for (auto value = file.Read<ULONGLONG>(entry); value != 0; value = file.Read<ULONGLONG>(entry)) {
                functions.insert(FunctionName_(value));
                entry += sizeof(value);
            }
            place += sizeof(library);
            library = file.Read<IMAGE_IMPORT_DESCRIPTOR>(place);
        }
    }

    std::string FunctionName_(ULONGLONG entry) const
    {
        if (IMAGE_SNAP_BY_ORDINAL64(entry)) {
            return std::string("#").append(std::to_string(IMAGE_ORDINAL64(entry)));
        }
        return file.ReadText(Offset_(entry) + offsetof(IMAGE_IMPORT_BY_NAME, Name));
    }

    File file;
    IMAGE_NT_HEADERS64 headers{};
    std::vector<IMAGE_SECTION_HEADER> sections;
};

} // namespace

PortableExecutable ReadPortableExecutable(const wchar_t* path) { return Reader(path).Read(); }

} // namespace zq::LM::test
