// A frame of Direct2D's calls on a swap chain that the composition engine shows.
#include "bare_d2d.h"

#include "support/hook/import_table.h"

#include <d3d11.h>
#include <dcomp.h>
#include <dxgi1_3.h>

namespace zq::LM::bench {

namespace {

constexpr DXGI_FORMAT Format = DXGI_FORMAT_B8G8R8A8_UNORM;

template <typename Interface> void** Out(ComPtr<Interface>& pointer)
{
    return reinterpret_cast<void**>(pointer.GetAddressOf());
}

class Composition final : public BareBackEnd {
public:
    explicit Composition(HMODULE library) : library(library) {}

    DWORD ExtendedStyle() const override { return WS_EX_NOREDIRECTIONBITMAP; }

    void Bind(HWND window) override
    {
        CreateContext_();
        CreateChain_(window);
        CreateTree_(window);
    }

    void Paint(HWND, const Ink& ink) override
    {
        context->BeginDraw();
        context->Clear(nullptr);
        for (std::size_t i = 0; i + 1 < ink.points.size(); ++i) {
            DrawSegment(*context.Get(), ink.points[i], ink.points[i + 1], *brush.Get(), *style.Get());
        }
        Need(context->EndDraw(), "frame");
        Need(chain->Present(0, 0), "present");
    }

private:
    // Whatever stands behind the library's import stands behind this call.
    template <typename Function> Function* Imported_(const char* name)
    {
        void** entry = test::FindImport(library, name);
        if (entry == nullptr) {
            throw std::runtime_error(std::string("the library does not import ") + name);
        }
        return reinterpret_cast<Function*>(*entry);
    }

    void CreateContext_()
    {
        using FactoryMaker = HRESULT WINAPI(D2D1_FACTORY_TYPE, REFIID, const D2D1_FACTORY_OPTIONS*, void**);
        Need(Imported_<decltype(D3D11CreateDevice)>("D3D11CreateDevice")(
                 nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr, D3D11_CREATE_DEVICE_BGRA_SUPPORT, nullptr, 0,
                 D3D11_SDK_VERSION, d3dDevice.GetAddressOf(), nullptr, nullptr),
             "device");
        Need(d3dDevice->QueryInterface(__uuidof(IDXGIDevice), Out(dxgiDevice)), "DXGI device");
        Need(Imported_<FactoryMaker>("D2D1CreateFactory")(D2D1_FACTORY_TYPE_SINGLE_THREADED,
                                                          __uuidof(ID2D1Factory2), nullptr, Out(factory)),
             "factory");
        Need(factory->CreateDevice(dxgiDevice.Get(), d2dDevice.GetAddressOf()), "Direct2D device");
        Need(d2dDevice->CreateDeviceContext(D2D1_DEVICE_CONTEXT_OPTIONS_NONE, context.GetAddressOf()),
             "context");
        brush = LineBrush(*context.Get());
        style = RoundStroke(*factory.Get());
    }

    void CreateChain_(HWND window)
    {
        RECT client = {};
        GetClientRect(window, &client);
        DXGI_SWAP_CHAIN_DESC1 description{};
        description.Width = static_cast<UINT>(client.right);
        description.Height = static_cast<UINT>(client.bottom);
        description.Format = Format;
        description.SampleDesc.Count = 1;
        description.BufferUsage = DXGI_USAGE_RENDER_TARGET_OUTPUT;
        description.BufferCount = 2;
        description.SwapEffect = DXGI_SWAP_EFFECT_FLIP_SEQUENTIAL;
        description.AlphaMode = DXGI_ALPHA_MODE_PREMULTIPLIED;
        ComPtr<IDXGIFactory2> dxgi;
        Need(Imported_<decltype(CreateDXGIFactory2)>("CreateDXGIFactory2")(0, __uuidof(IDXGIFactory2),
                                                                           Out(dxgi)),
             "DXGI factory");
        Need(dxgi->CreateSwapChainForComposition(dxgiDevice.Get(), &description, nullptr,
                                                 chain.GetAddressOf()),
             "swap chain");
        ComPtr<IDXGISurface2> surface;
        Need(chain->GetBuffer(0, __uuidof(IDXGISurface2), Out(surface)), "buffer");
        D2D1_BITMAP_PROPERTIES1 properties{};
        properties.pixelFormat = {Format, D2D1_ALPHA_MODE_PREMULTIPLIED};
        properties.bitmapOptions = D2D1_BITMAP_OPTIONS_TARGET | D2D1_BITMAP_OPTIONS_CANNOT_DRAW;
        ComPtr<ID2D1Bitmap1> bitmap;
        Need(context->CreateBitmapFromDxgiSurface(surface.Get(), &properties, bitmap.GetAddressOf()),
             "bitmap");
        context->SetTarget(bitmap.Get());
    }

    void CreateTree_(HWND window)
    {
        Need(Imported_<decltype(DCompositionCreateDevice)>("DCompositionCreateDevice")(
                 dxgiDevice.Get(), __uuidof(IDCompositionDevice), Out(engine)),
             "engine");
        Need(engine->CreateTargetForHwnd(window, TRUE, target.GetAddressOf()), "target");
        Need(engine->CreateVisual(visual.GetAddressOf()), "visual");
        Need(visual->SetContent(chain.Get()), "content");
        Need(target->SetRoot(visual.Get()), "root");
        Need(engine->Commit(), "commit");
    }

    HMODULE library;
    ComPtr<ID3D11Device> d3dDevice;
    ComPtr<IDXGIDevice> dxgiDevice;
    ComPtr<ID2D1Factory2> factory;
    ComPtr<ID2D1Device1> d2dDevice;
    ComPtr<IDXGISwapChain1> chain;
    ComPtr<ID2D1DeviceContext> context;
    ComPtr<ID2D1SolidColorBrush> brush;
    ComPtr<ID2D1StrokeStyle> style;
    ComPtr<IDCompositionDevice> engine;
    ComPtr<IDCompositionTarget> target;
    ComPtr<IDCompositionVisual> visual;
};

} // namespace

std::unique_ptr<BareBackEnd> BareComposition(HMODULE library)
{
    return std::make_unique<Composition>(library);
}

} // namespace zq::LM::bench
