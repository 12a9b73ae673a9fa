// One instance in a session for each person. A second one hands its options to the first.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lumora_pen {

class InstanceGuard {
public:
    InstanceGuard();
    ~InstanceGuard();
    InstanceGuard(const InstanceGuard&) = delete;
    InstanceGuard& operator=(const InstanceGuard&) = delete;

    bool IsFirst() const { return isFirst; }

private:
    HANDLE mutex;
    bool isFirst;
};

// True when the running instance has taken them. One that has just started is waited for.
bool HandOver(const std::vector<std::string>& arguments);

} // namespace lumora_pen
