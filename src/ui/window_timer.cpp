// The timer that ages ink.
#include "ui/window_timer.h"

namespace zq::LM {

void WindowTimer::Start(HWND newOwner, UINT periodMilliseconds)
{
    constexpr UINT_PTR FirstId = 12345;
    constexpr UINT_PTR EndOfIds = 15000;
    Stop();
    owner = newOwner;
    for (UINT_PTR candidate = FirstId; id == 0 && candidate < EndOfIds; ++candidate) {
        id = SetTimer(owner, candidate, periodMilliseconds, nullptr);
    }
}

void WindowTimer::Stop()
{
    if (owner != nullptr && id != 0) {
        KillTimer(owner, id);
    }
    owner = nullptr;
    id = 0;
}

} // namespace zq::LM
