// True for as long as something goes on, however it ends.
#pragma once

namespace lumora_pen {

class ScopeFlag {
public:
    explicit ScopeFlag(bool& raised) : flag(raised) { raised = true; }
    ~ScopeFlag() { flag = false; }
    ScopeFlag(const ScopeFlag&) = delete;
    ScopeFlag& operator=(const ScopeFlag&) = delete;

private:
    bool& flag;
};

} // namespace lumora_pen
