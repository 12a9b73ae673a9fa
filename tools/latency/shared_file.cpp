// The exchange as a host under Wine has it in its memory.
#include "latency/shared_file.h"

#include "lumora/error.hpp"

namespace lumora::latency {

SharedFile::SharedFile(const std::filesystem::path& name)
    : file(CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       nullptr, OPEN_EXISTING, 0, nullptr)),
      mapping(CreateFileMappingW(file, nullptr, PAGE_READWRITE, 0, 0, nullptr)),
      exchange(static_cast<Exchange*>(MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Exchange))))
{
    if (exchange == nullptr || exchange->version.load() != ExchangeVersion) {
        throw Error("the exchange file cannot be used");
    }
}

SharedFile::~SharedFile()
{
    UnmapViewOfFile(exchange);
    CloseHandle(mapping);
    CloseHandle(file);
}

} // namespace lumora::latency
