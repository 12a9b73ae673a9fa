// A host that does what hosts do, whichever of its library's calls to the system fail meanwhile.
#pragma once

#include "library/host/working_overlay.h"
#include "support/hook/hooks.h"
#include "support/library/back_end_test.h"

#include <cstdint>
#include <functional>

namespace zq::LM::test {

// What scenarios are made of. An export may raise std::bad_alloc where something has failed, and nothing
// else.
class FaultHost : public WorkingOverlayTest {
public:
    void Create();
    void Destroy();
    void Write(); // a batch of samples and its frame
    void Age();   // and the tick that finds it
    void PaintFrame() { UpdateWindow(library.GetWindowHandle()); }
    void Send(UINT message, WPARAM wParam, LPARAM lParam) const;
    void SendBrushData();
    void UseDialog();
    void ChooseBackEnd(WPARAM command) const { Send(WM_COMMAND, command, 0); }
    void SetLevel(std::uint32_t level)
    {
        Try_([&] { library.SetDebugLevel(level); });
    }
    void SetRecord(const LM_Params& record)
    {
        Try_([&] { library.SetParams(&record); });
    }
    void MoveShell(const RECT& place) { shell.Move(place); }
    static LM_Params Ink() { return RedInk(); }
    static constexpr RECT AtHome = Desktop;

protected:
    FaultHost();

    // Whether any call has failed since the scenario began.
    virtual bool HasFailed() const = 0;

    Hooks calls{library.Module()};

private:
    void Try_(const std::function<void()>& call);
};

} // namespace zq::LM::test
