// The device chain of the DirectComposition back-end and what is drawn with it.
#pragma once

#include "ink/pen_data.h"
#include "render/d2d_headers.h"

#include <d3d11.h>
#include <dcomp.h>
#include <dwrite.h>
#include <dxgi1_3.h>
#include <wrl/client.h>

#include <cstdint>
#include <vector>

namespace zq::LM {

// Drawing is harmless before a set-up and after one that broke off half-way, and says false then. Once the
// device is lost nothing shows until another instance brings a new one.
class DirectCompositionImpl {
public:
    DirectCompositionImpl();
    ~DirectCompositionImpl();
    DirectCompositionImpl(const DirectCompositionImpl&) = delete;
    DirectCompositionImpl& operator=(const DirectCompositionImpl&) = delete;

    // May be called again, and then starts over.
    bool InitTransparentWindow(HWND newWindow) { return InitTransparentWindowCore_(newWindow); }

    bool Clear();
    bool Present(); // only S_OK is a success
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2);
    void DrawPenData(const std::vector<PenData>* samples, unsigned width, unsigned colour);
    void DrawText(const wchar_t* text, int x, int y, unsigned colour);
    void Resize(); // raises CallFailed
    void FillRect(int left, int top, int right, int bottom, unsigned colour);

private:
    template <typename Interface> using ComPtr = Microsoft::WRL::ComPtr<Interface>;

    bool InitTransparentWindowCore_(HWND newWindow);
    void SetUp_();
    void CreateDevices_();
    void CreateSwapChain_();
    void CreateDeviceContext_();
    void CreateTargetBitmap_();
    void CreateVisualTree_();
    void CreateTextFormat_();

    bool IsReady_() const { return deviceContext != nullptr && swapChain != nullptr; }
    ID2D1SolidColorBrush* CachedBrush_(unsigned colour); // null when it could not be made

    HWND window = nullptr;
    ComPtr<ID3D11Device> d3dDevice;
    ComPtr<IDXGIDevice> dxgiDevice;
    ComPtr<IDXGIFactory2> dxgiFactory;
    ComPtr<IDXGISwapChain1> swapChain;
    ComPtr<ID2D1Factory2> d2dFactory;
    ComPtr<ID2D1Device1> d2dDevice;
    ComPtr<IDCompositionTarget> compositionTarget;
    ComPtr<ID2D1DeviceContext> deviceContext;
    ComPtr<IDCompositionDevice> compositionDevice;
    ComPtr<IUnknown> compositionDevice3; // nobody asks it for anything yet
    ComPtr<IDCompositionVisual> visual;
    std::uint32_t brushColour = 0xFF000000; // of the cached brush
    ComPtr<ID2D1SolidColorBrush> brush;
    ComPtr<ID2D1StrokeStyle> strokeStyle;
    ComPtr<IDWriteTextFormat> textFormat;
    ComPtr<IDWriteFactory> writeFactory;
    RECT clientRect{};
};

} // namespace zq::LM
