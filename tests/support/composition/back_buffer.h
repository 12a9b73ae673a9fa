// A swap chain's back buffer as a surface.
#pragma once

#include "support/composition/stand_in_object.h"

#include <d3d11.h>
#include <dxgi1_2.h>
#include <wrl/client.h>

namespace zq::LM::test {

// Everything but the surface interfaces themselves is the texture's business: Direct2D finds it that way.
class BackBuffer final : public StandInObject<IDXGISurface2> {
public:
    static constexpr const char* Kind = "BackBuffer";

    explicit BackBuffer(ID3D11Texture2D* texture) : StandInObject(Kind), texture(texture) {}

    HRESULT STDMETHODCALLTYPE SetPrivateData(const GUID& id, UINT size, const void* data) override;
    HRESULT STDMETHODCALLTYPE SetPrivateDataInterface(const GUID& id, const IUnknown* object) override;
    HRESULT STDMETHODCALLTYPE GetPrivateData(const GUID& id, UINT* size, void* data) override;
    HRESULT STDMETHODCALLTYPE GetParent(const GUID& id, void** parent) override;
    HRESULT STDMETHODCALLTYPE GetDevice(const GUID& id, void** device) override;
    HRESULT STDMETHODCALLTYPE GetDesc(DXGI_SURFACE_DESC* description) override;
    HRESULT STDMETHODCALLTYPE Map(DXGI_MAPPED_RECT*, UINT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Unmap() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDC(BOOL, HDC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ReleaseDC(RECT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetResource(const GUID& id, void** resource, UINT* subresource) override;

private:
    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override;

    Microsoft::WRL::ComPtr<ID3D11Texture2D> texture;
};

} // namespace zq::LM::test
