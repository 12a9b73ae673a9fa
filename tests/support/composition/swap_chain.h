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

    HRESULT STDMETHODCALLTYPE Present(UINT syncInterval, UINT flags) override;
    HRESULT STDMETHODCALLTYPE GetBuffer(UINT index, const GUID& id, void** out) override;
    HRESULT STDMETHODCALLTYPE GetDesc1(DXGI_SWAP_CHAIN_DESC1* out) override;
    HRESULT STDMETHODCALLTYPE ResizeBuffers(UINT count, UINT width, UINT height, DXGI_FORMAT format,
                                            UINT flags) override;
    HRESULT STDMETHODCALLTYPE Present1(UINT syncInterval, UINT flags,
                                       const DXGI_PRESENT_PARAMETERS* parameters) override;
    HRESULT STDMETHODCALLTYPE GetDevice(const GUID& id, void** out) override;

    // What nobody asks a composition chain for.
    HRESULT STDMETHODCALLTYPE SetPrivateData(const GUID&, UINT, const void*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetPrivateDataInterface(const GUID&, const IUnknown*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetPrivateData(const GUID&, UINT*, void*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetParent(const GUID&, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetFullscreenState(BOOL, IDXGIOutput*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFullscreenState(BOOL*, IDXGIOutput**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDesc(DXGI_SWAP_CHAIN_DESC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ResizeTarget(const DXGI_MODE_DESC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainingOutput(IDXGIOutput**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFrameStatistics(DXGI_FRAME_STATISTICS*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetLastPresentCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFullscreenDesc(DXGI_SWAP_CHAIN_FULLSCREEN_DESC*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetHwnd(HWND*) override { return DXGI_ERROR_INVALID_CALL; }
    HRESULT STDMETHODCALLTYPE GetCoreWindow(const GUID&, void**) override { return DXGI_ERROR_INVALID_CALL; }
    BOOL STDMETHODCALLTYPE IsTemporaryMonoSupported() override { return FALSE; }
    HRESULT STDMETHODCALLTYPE GetRestrictToOutput(IDXGIOutput**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetBackgroundColor(const DXGI_RGBA*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetBackgroundColor(DXGI_RGBA*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetRotation(DXGI_MODE_ROTATION) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRotation(DXGI_MODE_ROTATION*) override { return E_NOTIMPL; }

private:
    template <typename Interface> using ComPtr = Microsoft::WRL::ComPtr<Interface>;

    SwapChain(ID3D11Device* device, const DXGI_SWAP_CHAIN_DESC1& description);
    ~SwapChain() override;

    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;
    HRESULT MakeBuffers_();
    bool IsBufferHeld_() const;
    HRESULT Present_(UINT flags);
    void Flip_();

    ComPtr<ID3D11Device> device;
    ComPtr<ID3D11DeviceContext> context;
    DXGI_SWAP_CHAIN_DESC1 description;
    std::vector<ComPtr<ID3D11Texture2D>> buffers; // the first is drawn into, and stays the same texture
    ComPtr<ID3D11Texture2D> spare;
    Frame front;
};

} // namespace zq::LM::test
