// The process's use of Winsock.
#pragma once

#include "platform/dropped.h"

#include <winsock2.h>

#include "platform/win32/windows_header.h"

namespace zq::LM {

// Started at most once and ended at most once: every other end would be that of another user in this process.
class Winsock {
public:
    Winsock() = default;
    ~Winsock() { End(); }
    Winsock(const Winsock&) = delete;
    Winsock& operator=(const Winsock&) = delete;

    bool Start()
    {
        WSADATA facts{};
        started = WSAStartup(MAKEWORD(2, 0), &facts) == 0;
        return started;
    }

    // For the last user of a process it closes every socket: calls that block on one return with an error.
    void End()
    {
        if (started) {
            started = false;
            Dropped(WSACleanup()); // nothing could be done about a failure
        }
    }

private:
    bool started = false;
};

} // namespace zq::LM
