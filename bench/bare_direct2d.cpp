// A frame of Direct2D's calls on a bitmap, a brush and a stroke for each line.
#include "bare_d2d.h"

namespace zq::LM::bench {

namespace {

class Direct2D final : public BareBackEnd {
public:
    void Bind(HWND window) override
    {
        constexpr BYTE Opaque = 255;
        SetLayeredWindowAttributes(window, Key, Opaque, LWA_COLORKEY);
        bitmap.Create(window);
        Need(D2D1CreateFactory(D2D1_FACTORY_TYPE_SINGLE_THREADED, __uuidof(ID2D1Factory), nullptr,
                               reinterpret_cast<void**>(factory.GetAddressOf())),
             "factory");
        D2D1_RENDER_TARGET_PROPERTIES properties{};
        properties.pixelFormat = {DXGI_FORMAT_B8G8R8A8_UNORM, D2D1_ALPHA_MODE_IGNORE};
        Need(factory->CreateDCRenderTarget(&properties, target.GetAddressOf()), "target");
        target->SetAntialiasMode(D2D1_ANTIALIAS_MODE_ALIASED);
        RECT client = {};
        GetClientRect(window, &client);
        Need(target->BindDC(bitmap.DC(), &client), "bitmap");
    }

    void Paint(HWND window, const Ink& ink) override
    {
        constexpr D2D1_MATRIX_3X2_F Identity = {{{1.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F}}};
        constexpr D2D1_COLOR_F KeyColour = {1.0F, 0.0F, 1.0F, 0.5F};
        target->BeginDraw();
        target->SetTransform(&Identity);
        target->Clear(&KeyColour);
        for (std::size_t i = 0; i + 1 < ink.points.size(); ++i) {
            const ComPtr<ID2D1SolidColorBrush> brush = LineBrush(*target.Get());
            const ComPtr<ID2D1StrokeStyle> style = RoundStroke(*factory.Get());
            DrawSegment(*target.Get(), ink.points[i], ink.points[i + 1], *brush.Get(), *style.Get());
        }
        Need(target->EndDraw(), "frame");
        bitmap.CopyTo(window, ink.bounds);
    }

private:
    BareBitmap bitmap;
    ComPtr<ID2D1Factory> factory;
    ComPtr<ID2D1DCRenderTarget> target;
};

} // namespace

std::unique_ptr<BareBackEnd> BareDirect2D() { return std::make_unique<Direct2D>(); }

} // namespace zq::LM::bench
