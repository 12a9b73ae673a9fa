// Tries the first steps of a back-end that is composed by the system.
#include "program/composition_probe.h"

#include <d3d11.h>
#include <dxgi1_3.h>
#include <wrl/client.h>

namespace lumora_pen {

namespace {

using Microsoft::WRL::ComPtr;

bool MakesCompositionSwapChain(IDXGIFactory2& factory, ID3D11Device& device)
{
    DXGI_SWAP_CHAIN_DESC1 description = {};
    description.Width = 1;
    description.Height = 1;
    description.Format = DXGI_FORMAT_B8G8R8A8_UNORM;
    description.SampleDesc.Count = 1;
    description.BufferUsage = DXGI_USAGE_RENDER_TARGET_OUTPUT;
    description.BufferCount = 2;
    description.SwapEffect = DXGI_SWAP_EFFECT_FLIP_SEQUENTIAL;
    description.AlphaMode = DXGI_ALPHA_MODE_PREMULTIPLIED;
    ComPtr<IDXGISwapChain1> swapChain;
    return SUCCEEDED(factory.CreateSwapChainForComposition(&device, &description, nullptr, &swapChain));
}

} // namespace

bool HasCompositionEngine()
{
    ComPtr<ID3D11Device> device;
    ComPtr<IDXGIFactory2> factory;
    return SUCCEEDED(D3D11CreateDevice(nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr,
                                       D3D11_CREATE_DEVICE_BGRA_SUPPORT, nullptr, 0, D3D11_SDK_VERSION,
                                       &device, nullptr, nullptr)) &&
           SUCCEEDED(CreateDXGIFactory2(0, __uuidof(IDXGIFactory2),
                                        reinterpret_cast<void**>(factory.GetAddressOf()))) &&
           MakesCompositionSwapChain(*factory.Get(), *device.Get());
}

} // namespace lumora_pen
