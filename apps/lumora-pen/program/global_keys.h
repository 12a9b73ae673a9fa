// The keys that the program takes from all others, as long as it needs them.
#pragma once

#include "ink/needs.h"

#include <windows.h>

namespace lumora_pen {

class GlobalKeys {
public:
    // WM_HOTKEY comes to `window`, with the KeyCommand as its number.
    explicit GlobalKeys(HWND window) : receiver(window) {}
    ~GlobalKeys();
    GlobalKeys(const GlobalKeys&) = delete;
    GlobalKeys& operator=(const GlobalKeys&) = delete;

    // Gives back what is no longer needed and takes what is new. True when what Taken() says has changed.
    bool Set(const std::vector<NeededKey>& needed);

    // Those of the last Set that another program has.
    const std::vector<NeededKey>& Taken() const { return taken; }

    bool Has(KeyCommand command) const;

private:
    HWND receiver;
    std::vector<NeededKey> registered;
    std::vector<NeededKey> taken;
};

} // namespace lumora_pen
