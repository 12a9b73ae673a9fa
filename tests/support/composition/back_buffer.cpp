// A swap chain's back buffer as a surface.
#include "support/composition/back_buffer.h"

namespace zq::LM::test {

HRESULT BackBuffer::SetPrivateData(const GUID& id, UINT size, const void* data)
{
    return texture->SetPrivateData(id, size, data);
}

HRESULT BackBuffer::SetPrivateDataInterface(const GUID& id, const IUnknown* object)
{
    return texture->SetPrivateDataInterface(id, object);
}

HRESULT BackBuffer::GetPrivateData(const GUID& id, UINT* size, void* data)
{
    return texture->GetPrivateData(id, size, data);
}

HRESULT BackBuffer::GetParent(const GUID& id, void** parent) { return GetDevice(id, parent); }

HRESULT BackBuffer::GetDevice(const GUID& id, void** device)
{
    Microsoft::WRL::ComPtr<ID3D11Device> owner;
    texture->GetDevice(owner.GetAddressOf());
    return owner->QueryInterface(id, device);
}

HRESULT BackBuffer::GetDesc(DXGI_SURFACE_DESC* description)
{
    D3D11_TEXTURE2D_DESC own{};
    texture->GetDesc(&own);
    *description = {own.Width, own.Height, own.Format, own.SampleDesc};
    return S_OK;
}

HRESULT BackBuffer::GetResource(const GUID& id, void** resource, UINT* subresource)
{
    *subresource = 0;
    return texture->QueryInterface(id, resource);
}

HRESULT BackBuffer::Find_(const GUID& id, void** out, const char*& foundKind)
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

} // namespace zq::LM::test
