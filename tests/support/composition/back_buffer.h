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

    STDMETHODIMP SetPrivateData(const GUID& id, UINT size, const void* data) override
    {
        return texture->SetPrivateData(id, size, data);
    }
    STDMETHODIMP SetPrivateDataInterface(const GUID& id, const IUnknown* object) override
    {
        return texture->SetPrivateDataInterface(id, object);
    }
    STDMETHODIMP GetPrivateData(const GUID& id, UINT* size, void* data) override
    {
        return texture->GetPrivateData(id, size, data);
    }
    STDMETHODIMP GetParent(const GUID& id, void** parent) override { return GetDevice(id, parent); }
    STDMETHODIMP GetDevice(const GUID& id, void** device) override
    {
        Microsoft::WRL::ComPtr<ID3D11Device> owner;
        texture->GetDevice(owner.GetAddressOf());
        return owner->QueryInterface(id, device);
    }
    STDMETHODIMP GetDesc(DXGI_SURFACE_DESC* description) override
    {
        D3D11_TEXTURE2D_DESC own{};
        texture->GetDesc(&own);
        *description = {own.Width, own.Height, own.Format, own.SampleDesc};
        return S_OK;
    }
    STDMETHODIMP Map(DXGI_MAPPED_RECT*, UINT) override { return E_NOTIMPL; }
    STDMETHODIMP Unmap() override { return E_NOTIMPL; }
    STDMETHODIMP GetDC(BOOL, HDC*) override { return E_NOTIMPL; }
    STDMETHODIMP ReleaseDC(RECT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetResource(const GUID& id, void** resource, UINT* subresource) override
    {
        *subresource = 0;
        return texture->QueryInterface(id, resource);
    }

private:
    HRESULT Find_(const GUID& id, void** out, const char*& foundKind) override
    {
        if (id == __uuidof(IUnknown) || id == __uuidof(IDXGIObject) || id == __uuidof(IDXGIDeviceSubObject) ||
            id == __uuidof(IDXGISurface) || id == __uuidof(IDXGISurface1) || id == __uuidof(IDXGISurface2)) {
            Hold();
            *out = static_cast<IDXGISurface2*>(this);
            return S_OK;
        }
        foundKind = "Texture";
        return texture->QueryInterface(id, out);
    }

    Microsoft::WRL::ComPtr<ID3D11Texture2D> texture;
};

} // namespace zq::LM::test
