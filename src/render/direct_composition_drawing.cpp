// The device chain of the DirectComposition back-end: frames and what is drawn in them.
#include "log/debug_log.h"
#include "platform/dropped.h"
#include "render/d2d_calls.h"
#include "render/d2d_rules.h"
#include "render/direct_composition_impl.h"
#include "render/line_rules.h"

namespace zq::LM {

namespace {

D2D1_POINT_2F Point(const PenData& sample) { return D2DPoint(sample.x, sample.y); }

// Only slanting steps bend the line. A stroke that goes straight along one axis is a single dot.
bool AddsPoint(const PenData& previous, const PenData& current)
{
    return current.x != previous.x && current.y != previous.y;
}

// Ends where the pen lifts: the first sample without a touch may still be reached, none behind it.
void AddTouchingFigure(ID2D1GeometrySink& sink, const std::vector<PenData>& samples)
{
    sink.SetFillMode(D2D1_FILL_MODE_WINDING);
    sink.SetSegmentFlags(D2D1_PATH_SEGMENT_FORCE_ROUND_LINE_JOIN);
    sink.BeginFigure(Point(samples.front()), D2D1_FIGURE_BEGIN_FILLED);
    for (std::size_t i = 1; i < samples.size() && Touches(samples[i - 1]); ++i) {
        if (AddsPoint(samples[i - 1], samples[i])) {
            sink.AddLine(Point(samples[i]));
        }
    }
    sink.EndFigure(D2D1_FIGURE_END_OPEN);
}

} // namespace

bool DirectCompositionImpl::Clear()
{
    if (!IsReady_()) {
        return false;
    }
    deviceContext->BeginDraw();
    deviceContext->Clear(nullptr); // fully transparent
    return true;
}

bool DirectCompositionImpl::Present()
{
    if (!IsReady_()) {
        return false;
    }
    Dropped(deviceContext->EndDraw()); // should it fail, the next frame draws all living ink again
    constexpr UINT NoWaiting = 0;
    if (swapChain->Present(NoWaiting, 0) != S_OK) {
        LogAtNormal(L"Exception is thrown!\n");
        return false;
    }
    return true;
}

void DirectCompositionImpl::DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2,
                                     unsigned width2, unsigned colour2)
{
    if (!IsReady_()) {
        return;
    }
    if (ID2D1SolidColorBrush* lineBrush = CachedBrush_(MixColors(colour1, colour2))) {
        deviceContext->DrawLine(D2DPoint(x1, y1), D2DPoint(x2, y2), lineBrush, HalfWidthSum(width1, width2),
                                strokeStyle.Get());
    }
}

void DirectCompositionImpl::DrawPenData(const std::vector<PenData>* samples, unsigned width, unsigned colour)
{
    constexpr float HalfOpacity = 0.5F;
    if (samples == nullptr || samples->empty() || !IsReady_()) {
        return;
    }
    ComPtr<ID2D1PathGeometry1> path;
    ComPtr<ID2D1GeometrySink> sink;
    if (FAILED(d2dFactory->CreatePathGeometry(path.GetAddressOf())) ||
        FAILED(path->Open(sink.GetAddressOf()))) {
        return;
    }
    AddTouchingFigure(*sink.Get(), *samples);
    Dropped(sink->Close()); // a path that did not take its points shows nothing
    const ComPtr<ID2D1SolidColorBrush> pathBrush =
        NewBrush(*deviceContext.Get(), ShareColour(colour, HalfOpacity));
    ComPtr<ID2D1StrokeStyle> style;
    Dropped(MakeRoundStroke(*d2dFactory.Get(), style.GetAddressOf())); // without it the stroke has flat ends
    if (pathBrush != nullptr) {
        deviceContext->DrawGeometry(path.Get(), pathBrush.Get(), static_cast<float>(width), style.Get());
    }
}

void DirectCompositionImpl::DrawText(const wchar_t* text, int x, int y, unsigned colour)
{
    if (deviceContext == nullptr || textFormat == nullptr) {
        return;
    }
    const ComPtr<ID2D1SolidColorBrush> textBrush = NewBrush(*deviceContext.Get(), ShareColour(colour, 1.0F));
    if (textBrush == nullptr) {
        return;
    }
    const float size = textFormat->GetFontSize();
    const D2D1_POINT_2F corner = D2DPoint(x, y);
    // One line of square characters.
    const D2D1_RECT_F layout = {corner.x, corner.y, corner.x + size * static_cast<float>(lstrlenW(text)),
                                corner.y + size};
    DrawTextIn(*deviceContext.Get(), text, *textFormat.Get(), layout, *textBrush.Get());
}

void DirectCompositionImpl::FillRect(int left, int top, int right, int bottom, unsigned colour)
{
    if (!IsReady_()) {
        return;
    }
    if (ID2D1SolidColorBrush* fillBrush = CachedBrush_(colour)) {
        const D2D1_RECT_F rectangle = {static_cast<float>(left), static_cast<float>(top),
                                       static_cast<float>(right), static_cast<float>(bottom)};
        deviceContext->FillRectangle(&rectangle, fillBrush);
    }
}

ID2D1SolidColorBrush* DirectCompositionImpl::CachedBrush_(unsigned colour)
{
    if (colour != brushColour || brush == nullptr) {
        brushColour = colour;
        brush.Reset();
        brush = NewBrush(*deviceContext.Get(), ShareColourWithAlpha(colour));
    }
    return brush.Get();
}

} // namespace zq::LM
