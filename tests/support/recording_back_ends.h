// Back-ends that keep what they are told, for tests that link the Core.
#pragma once

#include "core/core.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zq::LM::test {

// Writes each call into a shared list, with its place in the Core's list before it: "2: Clear()".
class RecordingBackEnd : public DrawingLib {
public:
    RecordingBackEnd(std::size_t place, std::vector<std::string>& calls)
        : prefix(std::to_string(place) + ": "), calls(calls)
    {
    }
    ~RecordingBackEnd() override { Add_("destroyed"); }

    bool InitTransparentWindow(HWND, unsigned colorKey) override
    {
        return Add_("InitTransparentWindow", colorKey);
    }
    bool Clear() override { return Add_("Clear"); }
    bool Present() override { return Add_("Present"); }
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override
    {
        Add_("DrawLine", x1, y1, width1, colour1, x2, y2, width2, colour2);
    }
    void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) override
    {
        lastSamples = samples;
        Add_("DrawPenData", width, colour);
    }
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override
    {
        std::string narrow;
        for (; *text != L'\0'; ++text) {
            narrow += static_cast<char>(*text);
        }
        Add_("DrawText", narrow, x, y, colour);
    }
    void Resize(HWND) override { Add_("Resize"); }
    void SetMemoryDC(HDC dc) override { Add_("SetMemoryDC", dc != nullptr ? "dc" : "null"); }
    void FillRect(int left, int top, int right, int bottom, unsigned colour) override
    {
        Add_("FillRect", left, top, right, bottom, colour);
    }

    const std::vector<PenData>* lastSamples = nullptr;

private:
    // Signed numbers decimal, unsigned ones hexadecimal.
    template <typename... Values> bool Add_(const char* name, const Values&... values)
    {
        std::ostringstream line;
        line << prefix << name << '(' << std::showbase;
        [[maybe_unused]] const char* separator = "";
        ((line << separator, Print_(line, values), separator = ", "), ...);
        calls.push_back(line.str() + ')');
        return true;
    }

    template <typename Value> static void Print_(std::ostream& out, const Value& value)
    {
        if constexpr (std::is_unsigned_v<Value>) {
            out << std::hex << value << std::dec;
        } else {
            out << value;
        }
    }

    std::string prefix;
    std::vector<std::string>& calls;
};

// A Core whose three back-ends are recorders.
class RecordedCore {
public:
    RecordedCore()
    {
        for (std::size_t place = 0; place < core->AllBackEnds().size(); ++place) {
            auto backEnd = std::make_unique<RecordingBackEnd>(place, calls);
            backEnds.push_back(backEnd.get());
            core->AllBackEnds()[place] = std::move(backEnd);
        }
    }

    Core& Get() const { return *core; }
    bool HasCore() const { return core != nullptr; }
    void End() { core.reset(); }

    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    std::vector<RecordingBackEnd*> backEnds; // while the Core lives

private:
    std::vector<std::string> calls;
    std::unique_ptr<Core> core = std::make_unique<Core>(GetModuleHandleW(nullptr), 0U);
};

} // namespace zq::LM::test
