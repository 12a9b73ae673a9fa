// A swap chain for composition, over textures of the real device.
#include "support/composition/swap_chain.h"

#include "support/composition/back_buffer.h"
#include "support/composition/composition_tree.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

std::vector<SwapChain*> g_living;

bool IsFitForComposition(const DXGI_SWAP_CHAIN_DESC1& description)
{
    const bool flips = description.SwapEffect == DXGI_SWAP_EFFECT_FLIP_SEQUENTIAL ||
                       static_cast<int>(description.SwapEffect) == 4; // flip and discard, of newer headers
    return description.Width > 0 && description.Height > 0 && description.BufferCount >= 2 &&
           description.BufferCount <= DXGI_MAX_SWAP_CHAIN_BUFFERS &&
           description.Scaling == DXGI_SCALING_STRETCH && flips && description.SampleDesc.Count == 1;
}

D3D11_TEXTURE2D_DESC BufferDescription(const DXGI_SWAP_CHAIN_DESC1& chain)
{
    D3D11_TEXTURE2D_DESC description{};
    description.Width = chain.Width;
    description.Height = chain.Height;
    description.MipLevels = 1;
    description.ArraySize = 1;
    description.Format = chain.Format;
    description.SampleDesc.Count = 1;
    description.Usage = D3D11_USAGE_DEFAULT;
    description.BindFlags = D3D11_BIND_RENDER_TARGET | D3D11_BIND_SHADER_RESOURCE;
    return description;
}

} // namespace

HRESULT SwapChain::Create(IUnknown* device, const DXGI_SWAP_CHAIN_DESC1* description, IDXGISwapChain1** out)
{
    ComPtr<ID3D11Device> d3dDevice;
    if (device == nullptr || description == nullptr || !IsFitForComposition(*description) ||
        FAILED(device->QueryInterface(__uuidof(ID3D11Device),
                                      reinterpret_cast<void**>(d3dDevice.GetAddressOf())))) {
        return DXGI_ERROR_INVALID_CALL;
    }
    auto* chain = new SwapChain(d3dDevice.Get(), *description);
    const HRESULT result = chain->MakeBuffers_();
    if (FAILED(result)) {
        chain->Drop();
        return result;
    }
    *out = chain;
    return S_OK;
}

SwapChain* SwapChain::From(IUnknown* object)
{
    const auto found = std::find_if(g_living.begin(), g_living.end(), [=](SwapChain* chain) {
        return static_cast<IUnknown*>(chain) == object;
    });
    return found != g_living.end() ? *found : nullptr;
}

SwapChain::SwapChain(ID3D11Device* device, const DXGI_SWAP_CHAIN_DESC1& description)
    : StandInObject(Kind), device(device), description(description)
{
    device->GetImmediateContext(context.GetAddressOf());
    g_living.push_back(this);
}

SwapChain::~SwapChain() { g_living.erase(std::find(g_living.begin(), g_living.end(), this)); }

HRESULT SwapChain::MakeBuffers_()
{
    const D3D11_TEXTURE2D_DESC buffer = BufferDescription(description);
    buffers.assign(description.BufferCount, nullptr);
    HRESULT result = device->CreateTexture2D(&buffer, nullptr, spare.ReleaseAndGetAddressOf());
    for (auto place = buffers.begin(); SUCCEEDED(result) && place != buffers.end(); ++place) {
        result = device->CreateTexture2D(&buffer, nullptr, place->GetAddressOf());
    }
    return result;
}

HRESULT SwapChain::Present(UINT syncInterval, UINT flags)
{
    CallScope scope(LUMORA_CALLER, this, "Present");
    scope.Arguments(syncInterval, flags);
    return scope.Do([=, this] { return Present_(flags); });
}

HRESULT SwapChain::Present1(UINT syncInterval, UINT flags, const DXGI_PRESENT_PARAMETERS* parameters)
{
    CallScope scope(LUMORA_CALLER, this, "Present1");
    scope.Arguments(syncInterval, flags, static_cast<const void*>(parameters));
    return scope.Do([=, this] { return Present_(flags); });
}

HRESULT SwapChain::Present_(UINT flags)
{
    if ((flags & DXGI_PRESENT_TEST) != 0) {
        return S_OK;
    }
    const unsigned serial = front.serial + 1;
    front = ReadPixels(buffers.front().Get());
    front.serial = serial;
    Flip_();
    if (g_recorder != nullptr) {
        g_recorder->lastFrame = front;
    }
    ShowOnTargets(this);
    return S_OK;
}

// Whoever draws keeps hold of the first texture, so contents move instead: each buffer's to the one before
// it, the first one's to the last.
void SwapChain::Flip_()
{
    context->CopyResource(spare.Get(), buffers[0].Get());
    context->CopyResource(buffers[0].Get(), buffers[1].Get());
    std::rotate(buffers.begin() + 1, buffers.begin() + 2, buffers.end());
    std::swap(buffers.back(), spare);
}

HRESULT SwapChain::GetBuffer(UINT index, const GUID& id, void** out)
{
    CallScope scope(LUMORA_CALLER, this, "GetBuffer");
    scope.Arguments(index, id);
    return scope.Give(out, BackBuffer::Kind, [&] {
        if (index >= buffers.size()) {
            return DXGI_ERROR_INVALID_CALL;
        }
        auto* buffer = new BackBuffer(buffers[index].Get());
        const HRESULT result = buffer->QueryInterface(id, out);
        buffer->Drop();
        return result;
    });
}

HRESULT SwapChain::GetDesc1(DXGI_SWAP_CHAIN_DESC1* out)
{
    CallScope scope(LUMORA_CALLER, this, "GetDesc1");
    return scope.Do([&] {
        *out = description;
        return S_OK;
    });
}

// A surface, or what is drawn with, keeps a reference to its texture.
bool SwapChain::IsBufferHeld_() const
{
    constexpr ULONG Own = 1;
    return std::any_of(buffers.begin(), buffers.end(), [](const ComPtr<ID3D11Texture2D>& buffer) {
        buffer.Get()->AddRef();
        return buffer.Get()->Release() > Own;
    });
}

HRESULT SwapChain::ResizeBuffers(UINT count, UINT width, UINT height, DXGI_FORMAT format, UINT flags)
{
    CallScope scope(LUMORA_CALLER, this, "ResizeBuffers");
    scope.Arguments(count, width, height, format, flags);
    return scope.Do([=, this] { return Resize_(count, width, height, format, flags); });
}

HRESULT SwapChain::Resize_(UINT count, UINT width, UINT height, DXGI_FORMAT format, UINT flags)
{
    DXGI_SWAP_CHAIN_DESC1 changed = description;
    changed.BufferCount = count != 0 ? count : changed.BufferCount;
    changed.Width = width;
    changed.Height = height;
    changed.Format = format != DXGI_FORMAT_UNKNOWN ? format : changed.Format;
    changed.Flags = flags;
    if (IsBufferHeld_() || !IsFitForComposition(changed)) {
        return DXGI_ERROR_INVALID_CALL;
    }
    description = changed;
    return MakeBuffers_();
}

HRESULT SwapChain::GetDevice(const GUID& id, void** out) { return device->QueryInterface(id, out); }

HRESULT SwapChain::Find_(const GUID& id, void** out, const char*&)
{
    if (id == __uuidof(IUnknown) || id == __uuidof(IDXGIObject) || id == __uuidof(IDXGIDeviceSubObject) ||
        id == __uuidof(IDXGISwapChain) || id == __uuidof(IDXGISwapChain1)) {
        Hold();
        *out = static_cast<IDXGISwapChain1*>(this);
        return S_OK;
    }
    return E_NOINTERFACE;
}

} // namespace zq::LM::test
