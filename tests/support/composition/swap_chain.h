// A swap chain for composition, over textures of the real device.
#pragma once

#include "support/composition/stand_in_object.h"

#include <d3d11.h>
#include <dxgi1_2.h>
#include <wrl/client.h>

#include <vector>

namespace zq::LM::test {

// Takes and refuses what DXGI does for composition. Buffers flip: after Present, what is drawn next starts
// from the contents of an older frame.
class SwapChain final : public StandInObject<IDXGISwapChain1> {
public:
    static constexpr const char* Kind = "SwapChain";

    static HRESULT Create(IUnknown* device, const DXGI_SWAP_CHAIN_DESC1* description, IDXGISwapChain1** out);

    // The living swap chain that this is; null for anything else.
    static SwapChain* From(IUnknown* object);

    // Its last presented frame; the serial is 0 before the first.
    const Frame& Front() const { return front; }

    STDMETHODIMP Present(UINT syncInterval, UINT flags) override;
    STDMETHODIMP GetBuffer(UINT index, const GUID& id, void** out) override;
    STDMETHODIMP GetDesc1(DXGI_SWAP_CHAIN_DESC1* out) override;
    STDMETHODIMP ResizeBuffers(UINT count, UINT width, UINT height, DXGI_FORMAT format, UINT flags) override;
    STDMETHODIMP Present1(UINT syncInterval, UINT flags, const DXGI_PRESENT_PARAMETERS* parameters) override;
    STDMETHODIMP GetDevice(const GUID& id, void** out) override;

    // What nobody asks a composition chain for.
    STDMETHODIMP SetPrivateData(const GUID&, UINT, const void*) override { return E_NOTIMPL; }
    STDMETHODIMP SetPrivateDataInterface(const GUID&, const IUnknown*) override { return E_NOTIMPL; }
    STDMETHODIMP GetPrivateData(const GUID&, UINT*, void*) override { return E_NOTIMPL; }
    STDMETHODIMP GetParent(const GUID&, void**) override { return E_NOTIMPL; }
    STDMETHODIMP SetFullscreenState(BOOL, IDXGIOutput*) override { return E_NOTIMPL; }
    STDMETHODIMP GetFullscreenState(BOOL*, IDXGIOutput**) override { return E_NOTIMPL; }
    STDMETHODIMP GetDesc(DXGI_SWAP_CHAIN_DESC*) override { return E_NOTIMPL; }
    STDMETHODIMP ResizeTarget(const DXGI_MODE_DESC*) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainingOutput(IDXGIOutput**) override { return E_NOTIMPL; }
    STDMETHODIMP GetFrameStatistics(DXGI_FRAME_STATISTICS*) override { return E_NOTIMPL; }
    STDMETHODIMP GetLastPresentCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetFullscreenDesc(DXGI_SWAP_CHAIN_FULLSCREEN_DESC*) override { return E_NOTIMPL; }
    STDMETHODIMP GetHwnd(HWND*) override { return DXGI_ERROR_INVALID_CALL; }
    STDMETHODIMP GetCoreWindow(const GUID&, void**) override { return DXGI_ERROR_INVALID_CALL; }
    STDMETHODIMP_(BOOL) IsTemporaryMonoSupported() override { return FALSE; }
    STDMETHODIMP GetRestrictToOutput(IDXGIOutput**) override { return E_NOTIMPL; }
    STDMETHODIMP SetBackgroundColor(const DXGI_RGBA*) override { return E_NOTIMPL; }
    STDMETHODIMP GetBackgroundColor(DXGI_RGBA*) override { return E_NOTIMPL; }
    STDMETHODIMP SetRotation(DXGI_MODE_ROTATION) override { return E_NOTIMPL; }
    STDMETHODIMP GetRotation(DXGI_MODE_ROTATION*) override { return E_NOTIMPL; }

private:
    template <typename Interface> using ComPtr = Microsoft::WRL::ComPtr<Interface>;

    SwapChain(ID3D11Device* device, const DXGI_SWAP_CHAIN_DESC1& description);
    ~SwapChain() override;

    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;
    HRESULT MakeBuffers_();
    bool IsBufferHeld_() const;
    HRESULT Present_(UINT flags);
    HRESULT Resize_(UINT count, UINT width, UINT height, DXGI_FORMAT format, UINT flags);
    void Flip_();

    ComPtr<ID3D11Device> device;
    ComPtr<ID3D11DeviceContext> context;
    DXGI_SWAP_CHAIN_DESC1 description;
    std::vector<ComPtr<ID3D11Texture2D>> buffers; // the first is drawn into, and stays the same texture
    ComPtr<ID3D11Texture2D> spare;
    Frame front;
};

} // namespace zq::LM::test
