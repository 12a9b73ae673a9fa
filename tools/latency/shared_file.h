// The exchange as a host under Wine has it in its memory.
#pragma once

#include "latency/exchange.h"

#include <windows.h>

#include <filesystem>

namespace lumora::latency {

class SharedFile {
public:
    // Throws lumora::Error when there is no such file of that size.
    explicit SharedFile(const std::filesystem::path& name);
    ~SharedFile();
    SharedFile(const SharedFile&) = delete;
    SharedFile& operator=(const SharedFile&) = delete;

    Exchange& Get() const { return *exchange; }

private:
    HANDLE file;
    HANDLE mapping;
    Exchange* exchange;
};

} // namespace lumora::latency
