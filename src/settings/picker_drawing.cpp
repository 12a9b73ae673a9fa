// The colour picker as it is seen: the pictures of the value bar and the wheel with their markers on top.
#include "settings/picker_drawing.h"

#include "settings/colour_geometry.h"
#include "settings/colour_images.h"

#include <iterator>

namespace zq::LM {

namespace {

constexpr int MarkerPenWidth = 2;

// Pen and brush of a marker, selected for a while.
class MarkerInk {
public:
    MarkerInk(HDC dc, COLORREF line, COLORREF area)
        : pen(CreatePen(PS_INSIDEFRAME, MarkerPenWidth, line)), brush(CreateSolidBrush(area)),
          selectedPen(dc, pen.get()), selectedBrush(dc, brush.get())
    {
    }

private:
    GdiObject<HPEN> pen;
    GdiObject<HBRUSH> brush;
    SelectedObject selectedPen;
    SelectedObject selectedBrush;
};

// A control that is due for painting would cover what is shown now with its own grey, so it paints at once;
// asking for it colours the control again.
void ShowInControl(const OffScreenImage& image)
{
    image.Show();
    UpdateWindow(image.Control());
    UpdateWindow(image.Control());
}

} // namespace

bool BuildValueBar(OffScreenImage& image, HWND control)
{
    if (!image.Make(control)) {
        return false;
    }
    PaintValueBar(image.Pixels());
    return true;
}

bool BuildWheel(OffScreenImage& image, HWND control)
{
    if (!image.Make(control)) {
        return false;
    }
    PaintWheel(image.Pixels());
    return true;
}

void ShowValueBar(const OffScreenImage& image, double value)
{
    constexpr COLORREF LineColour = 0x00111111;
    constexpr COLORREF White = 0x00FFFFFF;
    OffScreenImage working;
    if (!working.MakeCopyOf(image)) {
        return;
    }
    const int x = ValueMarkerColumn(value, working.Pixels().width);
    const int half = working.Pixels().height / 2;
    const POINT wedge[] = {{x, half}, {x + half, 0}, {x - half, 0}};
    {
        const MarkerInk ink(working.DC(), LineColour, White);
        Polygon(working.DC(), wedge, static_cast<int>(std::size(wedge)));
    }
    ShowInControl(working);
}

void ShowWheel(const OffScreenImage& image, const Hsv& colour)
{
    constexpr COLORREF Black = 0x00000000;
    constexpr int Radius = 10;
    OffScreenImage working;
    if (!working.MakeCopyOf(image)) {
        return;
    }
    RECT client{};
    GetClientRect(working.Control(), &client);
    const PixelPoint centre = WheelMarker(colour, WheelIn(client.right, client.bottom));
    {
        const MarkerInk ink(working.DC(), Black,
                            TruncatedReference(RgbFromHsv({colour.hue, colour.saturation, 255.0})));
        Ellipse(working.DC(), centre.x - Radius, centre.y - Radius, centre.x + Radius, centre.y + Radius);
    }
    ShowInControl(working);
}

} // namespace zq::LM
