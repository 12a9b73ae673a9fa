// The ink engine for the page: its callbacks go to the page's canvas, its clock and its log to the page.
#include "ink/drawing.h"
#include "platform/clock.h"
#include "platform/debugger_output.h"
#include "render/line_rules.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#define FROM_PAGE(name) __attribute__((import_module("page"), import_name(#name)))
#define FOR_PAGE(name) __attribute__((export_name(#name)))

using zq::LM::Drawing;
using zq::LM::PenData;

extern "C" {

FROM_PAGE(clear) void PageClear();
FROM_PAGE(present) void PagePresent();
FROM_PAGE(pickColour) unsigned PagePickColour(bool isChosen);
FROM_PAGE(line) void PageLine(int x1, int y1, int x2, int y2, unsigned width, unsigned colour);
FROM_PAGE(erase) void PageErase(int x1, int y1, int x2, int y2, unsigned width);
FROM_PAGE(path) void PagePath(const PenData* samples, std::size_t count, unsigned width, unsigned colour);
FROM_PAGE(text) void PageText(int x, int y, unsigned size, unsigned colour, const char* text);

} // extern "C"

namespace {

std::uint32_t g_now = 1;
LM_Params g_record = zq::LM::DefaultParams;

void Line(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2)
{
    PageLine(x1, y1, x2, y2, zq::LM::MixWidths(w1, w2), zq::LM::InkLineColour(c1, c2));
}

void Erase(int x1, int y1, unsigned w1, unsigned, int x2, int y2, unsigned w2, unsigned)
{
    PageErase(x1, y1, x2, y2, zq::LM::MixWidths(w1, w2));
}

void StrokePath(std::vector<PenData>* samples, unsigned width, unsigned colour)
{
    PagePath(samples->data(), samples->size(), width, colour);
}

Drawing& Engine()
{
    static Drawing engine;
    return engine;
}

} // namespace

namespace zq::LM {

std::uint32_t MillisecondClock() { return g_now; }
void WriteToDebugger(const wchar_t*) {}
void WriteToDebugger(const char*) {}

} // namespace zq::LM

extern "C" {

FOR_PAGE(bindCallbacks) void BindCallbacks()
{
    Engine().SetCallbacks(PageClear, PagePresent, PagePickColour, Line, Erase, StrokePath);
    Engine().SetDrawTextCallback(PageText);
}

FOR_PAGE(setClock) void SetClock(std::uint32_t milliseconds) { g_now = milliseconds; }

// The page writes the 32 bytes itself, then hands them over.
FOR_PAGE(record) LM_Params* Record() { return &g_record; }
FOR_PAGE(useRecord) void UseRecord() { Engine().SetParams(&g_record); }

FOR_PAGE(addSample) void AddSample(int x, int y, int pressure)
{
    PenData sample{};
    sample.time = 1;
    sample.x = x;
    sample.y = y;
    sample.pressure = pressure;
    Engine().AddPenDataAry(&sample, 1);
}

FOR_PAGE(drawFrame) void DrawFrame() { Engine().DrawLumoraLines(); }

// How many samples are still alive.
FOR_PAGE(tick) int Tick()
{
    Engine().DeleteOldPenData();
    return static_cast<int>(Engine().LivePointsNum());
}

FOR_PAGE(reportRate) int ReportRate() { return static_cast<int>(Engine().PenReoprtRate()); }
FOR_PAGE(setScale) void SetScale(double scale) { Engine().SetScale(scale); }
FOR_PAGE(setVectorOutline) void SetVectorOutline(bool on) { Engine().SetVectorOutline(on); }

} // extern "C"
