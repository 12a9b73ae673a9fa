// The device chain of the DirectComposition back-end: how it is made, resized and released.
#include "render/direct_composition_impl.h"

#include "log/debug_log.h"
#include "render/d2d_calls.h"
#include "render/require.h"

namespace zq::LM {

namespace {

constexpr DXGI_FORMAT Format = DXGI_FORMAT_B8G8R8A8_UNORM;

// The third interface of a composition device.
constexpr GUID CompositionDevice3Id = {
    0x0987CB06, 0xF916, 0x48BF, {0x8D, 0x35, 0xCE, 0x76, 0x41, 0x78, 0x1B, 0xD9}};

DXGI_SWAP_CHAIN_DESC1 SwapChainDescription(const RECT& client)
{
    DXGI_SWAP_CHAIN_DESC1 description{};
    description.Width = static_cast<UINT>(client.right - client.left);
    description.Height = static_cast<UINT>(client.bottom - client.top);
    description.Format = Format;
    description.Stereo = FALSE;
    description.SampleDesc.Count = 1;
    description.SampleDesc.Quality = 0;
    description.BufferUsage = DXGI_USAGE_RENDER_TARGET_OUTPUT;
    description.BufferCount = 2;
    description.Scaling = DXGI_SCALING_STRETCH;
    description.SwapEffect = DXGI_SWAP_EFFECT_FLIP_SEQUENTIAL;
    description.AlphaMode = DXGI_ALPHA_MODE_PREMULTIPLIED;
    description.Flags = 0;
    return description;
}

} // namespace

DirectCompositionImpl::DirectCompositionImpl() { LogAtNormal(L"DirectCompositionImpl(Constructor)\n"); }

// What shows and what draws goes before what it was made with.
DirectCompositionImpl::~DirectCompositionImpl()
{
    LogAtNormal(L"~DirectCompositionImpl(Destructor)\n");
    writeFactory.Reset();
    textFormat.Reset();
    strokeStyle.Reset();
    brush.Reset();
    visual.Reset();
    compositionDevice3.Reset();
    compositionDevice.Reset();
    deviceContext.Reset();
    compositionTarget.Reset();
    d2dDevice.Reset();
    d2dFactory.Reset();
    swapChain.Reset();
    dxgiFactory.Reset();
    dxgiDevice.Reset();
    d3dDevice.Reset();
}

bool DirectCompositionImpl::InitTransparentWindowCore_(HWND newWindow)
{
    window = newWindow;
    try {
        SetUp_();
    } catch (const CallFailed&) {
        LogAtNormal(L"InitTransparentWindowCore_ is failed.");
        LogAtNormal(L"Exception is thrown!\n");
        return false;
    }
    LogAtNormal(L"InitTransparentWindowCore_ is successful.");
    return true;
}

void DirectCompositionImpl::SetUp_()
{
    CreateDevices_();
    CreateSwapChain_();
    CreateDeviceContext_();
    CreateTargetBitmap_();
    CreateVisualTree_();
    Require(DWriteCreateFactory(DWRITE_FACTORY_TYPE_SHARED, __uuidof(IDWriteFactory),
                                reinterpret_cast<IUnknown**>(writeFactory.ReleaseAndGetAddressOf())));
    Require(MakeRoundStroke(*d2dFactory.Get(), strokeStyle.ReleaseAndGetAddressOf()));
    CreateTextFormat_();
}

void DirectCompositionImpl::CreateDevices_()
{
    Require(D3D11CreateDevice(nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr, D3D11_CREATE_DEVICE_BGRA_SUPPORT,
                              nullptr, 0, D3D11_SDK_VERSION, d3dDevice.ReleaseAndGetAddressOf(), nullptr,
                              nullptr));
    Require(d3dDevice->QueryInterface(__uuidof(IDXGIDevice),
                                      reinterpret_cast<void**>(dxgiDevice.ReleaseAndGetAddressOf())));
    Require(CreateDXGIFactory2(0, __uuidof(IDXGIFactory2),
                               reinterpret_cast<void**>(dxgiFactory.ReleaseAndGetAddressOf())));
    if (dxgiFactory == nullptr || dxgiDevice == nullptr) {
        throw CallFailed();
    }
}

void DirectCompositionImpl::CreateSwapChain_()
{
    GetClientRect(window, &clientRect);
    const DXGI_SWAP_CHAIN_DESC1 description = SwapChainDescription(clientRect);
    Require(dxgiFactory->CreateSwapChainForComposition(dxgiDevice.Get(), &description, nullptr,
                                                       swapChain.ReleaseAndGetAddressOf()));
}

void DirectCompositionImpl::CreateDeviceContext_()
{
    brush.Reset(); // belongs to the context before
    const D2D1_FACTORY_OPTIONS options = {D2D1_DEBUG_LEVEL_NONE};
    Require(D2D1CreateFactory(D2D1_FACTORY_TYPE_SINGLE_THREADED, __uuidof(ID2D1Factory2), &options,
                              reinterpret_cast<void**>(d2dFactory.ReleaseAndGetAddressOf())));
    Require(d2dFactory->CreateDevice(dxgiDevice.Get(), d2dDevice.ReleaseAndGetAddressOf()));
    Require(d2dDevice->CreateDeviceContext(D2D1_DEVICE_CONTEXT_OPTIONS_NONE,
                                           deviceContext.ReleaseAndGetAddressOf()));
}

void DirectCompositionImpl::CreateTargetBitmap_()
{
    ComPtr<IDXGISurface2> surface;
    Require(
        swapChain->GetBuffer(0, __uuidof(IDXGISurface2), reinterpret_cast<void**>(surface.GetAddressOf())));
    D2D1_BITMAP_PROPERTIES1 properties{};
    properties.pixelFormat = {Format, D2D1_ALPHA_MODE_PREMULTIPLIED};
    properties.bitmapOptions = D2D1_BITMAP_OPTIONS_TARGET | D2D1_BITMAP_OPTIONS_CANNOT_DRAW;
    ComPtr<ID2D1Bitmap1> bitmap;
    Require(deviceContext->CreateBitmapFromDxgiSurface(surface.Get(), &properties, bitmap.GetAddressOf()));
    deviceContext->SetTarget(bitmap.Get());
}

void DirectCompositionImpl::CreateVisualTree_()
{
    compositionDevice.Reset();
    Require(DCompositionCreateDevice(dxgiDevice.Get(), __uuidof(IDCompositionDevice),
                                     reinterpret_cast<void**>(compositionDevice.GetAddressOf())));
    // The newer kind of device takes the place of the older one, whose reference nobody has afterwards: each
    // set-up costs one device for the life of the process.
    Require(DCompositionCreateDevice3(dxgiDevice.Get(), __uuidof(IDCompositionDevice),
                                      reinterpret_cast<void**>(compositionDevice.GetAddressOf())));
    Require(compositionDevice->QueryInterface(
        CompositionDevice3Id, reinterpret_cast<void**>(compositionDevice3.ReleaseAndGetAddressOf())));
    constexpr BOOL Topmost = TRUE;
    Require(
        compositionDevice->CreateTargetForHwnd(window, Topmost, compositionTarget.ReleaseAndGetAddressOf()));
    Require(compositionDevice->CreateVisual(visual.ReleaseAndGetAddressOf()));
    Require(visual->SetContent(swapChain.Get()));
    Require(compositionTarget->SetRoot(visual.Get()));
    Require(compositionDevice->Commit());
}

void DirectCompositionImpl::CreateTextFormat_()
{
    constexpr float Size = 24.0F;
    Require(writeFactory->CreateTextFormat(L"Gabriola", nullptr, DWRITE_FONT_WEIGHT_NORMAL,
                                           DWRITE_FONT_STYLE_NORMAL, DWRITE_FONT_STRETCH_NORMAL, Size,
                                           L"en-us", textFormat.ReleaseAndGetAddressOf()));
}

void DirectCompositionImpl::Resize()
{
    if (!IsReady_()) {
        return;
    }
    DXGI_SWAP_CHAIN_DESC1 description{};
    if (FAILED(swapChain->GetDesc1(&description))) {
        return;
    }
    RECT place{};
    GetWindowRect(window, &place);
    const UINT width = static_cast<UINT>(place.right - place.left);
    const UINT height = static_cast<UINT>(place.bottom - place.top);
    if (width == description.Width && height == description.Height) {
        return;
    }
    deviceContext->SetTarget(nullptr); // the buffers cannot be resized while one is referred to
    const HRESULT result =
        swapChain->ResizeBuffers(description.BufferCount, width, height, DXGI_FORMAT_UNKNOWN, 0);
    if (result == DXGI_ERROR_DEVICE_REMOVED || result == DXGI_ERROR_DEVICE_RESET) {
        Log(BASIC, L"Device-Lost occured.\n");
        return;
    }
    CreateTargetBitmap_(); // after a failure too: the old buffers can still be drawn into
}

} // namespace zq::LM
