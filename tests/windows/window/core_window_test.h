// A Core of the test program's own, with traced back-ends, and its calls to the system recorded.
#pragma once

#include "core/core.h"
#include "render/rendering_type.h"
#include "support/screen.h"
#include "support/system_calls.h"
#include "support/system_stand_ins.h"
#include "ui/user_interface_switch.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

// Notes what it is asked among the calls, as "back-end " and its index.
class TracedBackEnd final : public DrawingLib {
public:
    explicit TracedBackEnd(int index) : name("back-end " + std::to_string(index) + " ") {}
    ~TracedBackEnd() override { Note_("destroyed"); }

    bool InitTransparentWindow(HWND window, unsigned colorKey) override
    {
        Note_("InitTransparentWindow(" + Show(window) + ", " + Show(colorKey) + ")");
        return true;
    }
    bool Clear() override
    {
        Note_("Clear");
        if (whenCleared) {
            whenCleared();
        }
        return true;
    }
    bool Present() override
    {
        Note_("Present");
        return true;
    }
    void DrawLine(int, int, unsigned, unsigned, int, int, unsigned, unsigned) override { Note_("DrawLine"); }
    void DrawPenData(std::vector<PenData>*, unsigned, unsigned) override { Note_("DrawPenData"); }
    void DrawText(const wchar_t*, int, int, unsigned) override { Note_("DrawText"); }
    void Resize(HWND window) override { Note_("Resize(" + Show(window) + ")"); }
    void SetMemoryDC(HDC dc) override { Note_("SetMemoryDC(" + Show(dc) + ")"); }
    void FillRect(int, int, int, int, unsigned) override { Note_("FillRect"); }

    std::function<void()> whenCleared;

private:
    void Note_(const std::string& what) const { AddLine(name + what); }

    std::string name;
};

class TracedView final : public ParamsView {
public:
    ~TracedView() override { AddLine("view destroyed"); }
    void Open() override { AddLine("view opened"); }
    void Refresh() override { AddLine("view refreshed"); }
};

class CoreWindowTest : public ::testing::Test {
protected:
    static constexpr RECT Desktop = {200, 60, 840, 540};

    CoreWindowTest();
    ~CoreWindowTest() override;

    void MakeCore(RenderingType type); // with traced back-ends in all three places
    HWND CreateWindowed(RenderingType type);
    void RecordDestruction();
    void RecordHotkey(); // nothing of it reaches the system
    void RecordTray();   // nor of the icon; the program has no resources, so they are stood in for

    // The window ends first, as a host's does.
    void DestroyWindowAndCore();

    TracedBackEnd& BackEnd(RenderingType type);

    static HMODULE Program() { return GetModuleHandleW(nullptr); }

    ShellStandIn shell{Program(), Desktop};
    TimerStandIn timer{Program()};
    NoGraphicsDevice noDevice{Program()};
    SystemCalls calls{Program()};
    std::unique_ptr<Core> core;
};

} // namespace zq::LM::test
