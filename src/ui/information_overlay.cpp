// The information overlay: what a frame tells about itself for diagnosis, in its upper right corner.
#include "ui/information_overlay.h"

#include "render/text_conversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <string_view>

namespace zq::LM {

namespace {

constexpr int PanelWidth = 360;
// Fixed wording, although the key is W.
constexpr std::string_view MenuLine = "DLL Menu : Ctrl + Alt + Shirt + S";

char g_line[4096]; // only the overlay's thread formats

const char* NameOf(RenderingType type)
{
    switch (type) {
    case RenderingType::DirectComposition:
        return "Direct Composition";
    case RenderingType::Direct2D:
        return "Direct2D";
    case RenderingType::GDI:
        return "GDI";
    }
    return "???";
}

// A bar fills the panel at 300 a second and is not stopped there; the arithmetic wraps at 32 bits.
int BarEnd(int left, std::uint32_t rate)
{
    constexpr std::uint32_t FullRate = 300;
    return static_cast<int>(static_cast<std::uint32_t>(left) + rate * PanelWidth / FullRate);
}

unsigned TextColour(std::uint32_t index)
{
    constexpr unsigned Colours[] = {0x00FFFF60, 0x0040FF40, 0x004040FF};
    return Colours[std::min<std::size_t>(index, std::size(Colours) - 1)];
}

struct Bar {
    int top;
    int bottom;
    unsigned colour;
    int labelTop;
    unsigned labelColour;
    const char* label;
};

// One drawing of the overlay.
class Overlay {
public:
    Overlay(DrawingLib& backEnd, double renderScale, const InformationFacts& facts)
        : backEnd(backEnd), renderScale(renderScale), facts(facts)
    {
    }

    void DrawBars() const;
    void DrawLines() const;

private:
    void DrawBar_(const Bar& bar, std::uint32_t rate) const;
    void DrawText_(int x, int y, unsigned colour, const char* text) const
    {
        DrawNarrowText(backEnd, renderScale, x, y, colour, text);
    }

    DrawingLib& backEnd;
    double renderScale;
    const InformationFacts& facts;
};

void Overlay::DrawBars() const
{
    constexpr int PanelTop = 300;
    constexpr int PanelBottom = 444;
    constexpr unsigned PanelColour = 0x447F7F7F;
    constexpr Bar PenBar = {336, 360, 0x7FFF33FF, 288, 0xFFFF33FF, "Pen Report Rate (Max 300 Hz)"};
    // Fixed wording: this bar, too, is full at 300.
    constexpr Bar DrawingBar = {400, 424, 0x7F00FF00, 352, 0xFF00FF00, "Reflesh Rate ( Max 120 Hz)"};

    backEnd.FillRect(facts.screenWidth - PanelWidth, PanelTop, facts.screenWidth, PanelBottom, PanelColour);
    DrawBar_(PenBar, facts.penRate);
    DrawBar_(DrawingBar, facts.drawingRate);
}

void Overlay::DrawBar_(const Bar& bar, std::uint32_t rate) const
{
    const int left = facts.screenWidth - PanelWidth;
    backEnd.FillRect(left, bar.top, BarEnd(left, rate), bar.bottom, bar.colour);
    DrawText_(left, bar.labelTop, bar.labelColour, bar.label);
}

void Overlay::DrawLines() const
{
    constexpr int CharacterWidth = 10;
    constexpr int LineHeight = 24;
    constexpr unsigned DebugColour = 0x000000FF;
    const int x = facts.screenWidth - static_cast<int>(MenuLine.size()) * CharacterWidth;
    int y = 32;
    const auto drawLine = [&, colour = TextColour(facts.textColour)](int length) {
        if (length >= 0) { // a line that could not be formatted leaves its place empty
            DrawText_(x, y, colour, g_line);
        }
        y += LineHeight;
    };

    if (facts.debugSwitch) {
        DrawText_(x, y, DebugColour, "(DEBUG_)");
        y += LineHeight;
    }
    drawLine(std::snprintf(g_line, std::size(g_line), "%s", MenuLine.data()));
    drawLine(std::snprintf(g_line, std::size(g_line), "Version = { %d, %d, %d, %d }", facts.version[0],
                           facts.version[1], facts.version[2], facts.version[3]));
    drawLine(std::snprintf(g_line, std::size(g_line), "Frequency (Drawing) = %3d",
                           static_cast<int>(facts.drawingRate)));
    drawLine(std::snprintf(g_line, std::size(g_line), "Frequency (Pen Data) = %3d",
                           static_cast<int>(facts.penRate)));
    drawLine(std::snprintf(g_line, std::size(g_line), "Rendering Type = %s", NameOf(facts.renderingType)));
    drawLine(std::snprintf(g_line, std::size(g_line), "Screen = {%4ld, %4ld, %4ld, %4ld}", facts.shell.left,
                           facts.shell.top, facts.shell.right, facts.shell.bottom));
    drawLine(std::snprintf(g_line, std::size(g_line), "Position = (%4d, %4d)", facts.lastPenData.x,
                           facts.lastPenData.y));
    drawLine(std::snprintf(g_line, std::size(g_line), "Pressure = %5d", facts.lastPenData.pressure));
    if (facts.port != 0) {
        drawLine(std::snprintf(g_line, std::size(g_line), "Port Number = %d", static_cast<int>(facts.port)));
    }
}

} // namespace

void DrawInformationOverlay(DrawingLib& backEnd, double renderScale, const InformationFacts& facts)
{
    const Overlay overlay(backEnd, renderScale, facts);
    overlay.DrawBars();
    overlay.DrawLines();
}

} // namespace zq::LM
