// A back-end that notes what it is asked in the list of calls: "2: Clear()", by its place in the Core's list.
#pragma once

#include "render/drawing_lib.h"
#include "support/hook/call_log.h"
#include "support/hook/show.h"

#include <functional>
#include <string>
#include <vector>

namespace zq::LM::test {

class FakeBackEnd final : public DrawingLib {
public:
    FakeBackEnd(int place, CallLog& log) : prefix(std::to_string(place) + ": "), log(log) {}
    ~FakeBackEnd() override { log.AddLine(prefix + "destroyed"); }

    bool InitTransparentWindow(HWND window, unsigned colorKey) override
    {
        return Note_("InitTransparentWindow", window, colorKey);
    }
    bool Clear() override
    {
        Note_("Clear");
        if (whenCleared) {
            whenCleared();
        }
        return true;
    }
    bool Present() override { return Note_("Present"); }
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override
    {
        Note_("DrawLine", x1, y1, width1, colour1, x2, y2, width2, colour2);
    }
    void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) override
    {
        lastSamples = samples;
        Note_("DrawPenData", width, colour);
    }
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override
    {
        Note_("DrawText", text, x, y, colour);
    }
    void Resize(HWND window) override { Note_("Resize", window); }
    void SetMemoryDC(HDC dc) override { Note_("SetMemoryDC", dc); }
    void FillRect(int left, int top, int right, int bottom, unsigned colour) override
    {
        Note_("FillRect", left, top, right, bottom, colour);
    }

    std::function<void()> whenCleared;
    const std::vector<PenData>* lastSamples = nullptr;

private:
    template <typename... Values> bool Note_(const char* name, const Values&... values)
    {
        std::string line = prefix + name + '(';
        [[maybe_unused]] const char* separator = "";
        ((line += separator + Show(values), separator = ", "), ...);
        log.AddLine(line + ')');
        return true;
    }

    std::string prefix;
    CallLog& log;
};

} // namespace zq::LM::test
