// Reads what was drawn into a texture.
#include "support/composition/pixel_reader.h"

#include <algorithm>
#include <cstring>
#include <d3d11.h>
#include <stdexcept>
#include <wrl/client.h>

namespace zq::LM::test {

using Microsoft::WRL::ComPtr;

std::uint32_t Frame::At(UINT x, UINT y) const
{
    if (x >= width || y >= height) {
        throw std::out_of_range("a pixel outside the frame");
    }
    return pixels[static_cast<std::size_t>(y) * width + x];
}

std::size_t Frame::Count(std::uint32_t pixel) const
{
    return static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), pixel));
}

Frame ReadPixels(ID3D11Texture2D* texture)
{
    D3D11_TEXTURE2D_DESC description{};
    texture->GetDesc(&description);
    Frame frame{description.Width, description.Height, 0, {}};
    description.Usage = D3D11_USAGE_STAGING;
    description.BindFlags = 0;
    description.CPUAccessFlags = D3D11_CPU_ACCESS_READ;
    description.MiscFlags = 0;

    ComPtr<ID3D11Device> device;
    ComPtr<ID3D11DeviceContext> context;
    ComPtr<ID3D11Texture2D> readable;
    texture->GetDevice(device.GetAddressOf());
    device->GetImmediateContext(context.GetAddressOf());
    if (FAILED(device->CreateTexture2D(&description, nullptr, readable.GetAddressOf()))) {
        throw std::runtime_error("no texture to read from");
    }
    context->CopyResource(readable.Get(), texture);
    D3D11_MAPPED_SUBRESOURCE mapped{};
    if (FAILED(context->Map(readable.Get(), 0, D3D11_MAP_READ, 0, &mapped))) {
        throw std::runtime_error("a texture cannot be read");
    }
    frame.pixels.resize(static_cast<std::size_t>(frame.width) * frame.height);
    for (UINT y = 0; y < frame.height; ++y) {
        std::memcpy(&frame.pixels[static_cast<std::size_t>(y) * frame.width],
                    static_cast<const char*>(mapped.pData) + static_cast<std::size_t>(y) * mapped.RowPitch,
                    static_cast<std::size_t>(frame.width) * sizeof(std::uint32_t));
    }
    context->Unmap(readable.Get(), 0);
    return frame;
}

} // namespace zq::LM::test
