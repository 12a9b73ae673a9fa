// Reads what was drawn into a texture.
#pragma once

#include "platform/win32/windows_header.h"

#include <cstddef>
#include <cstdint>
#include <vector>

struct ID3D11Texture2D;

namespace zq::LM::test {

// A presented frame. Pixels are 0xAARRGGBB with premultiplied alpha, row by row from the top.
struct Frame {
    UINT width = 0;
    UINT height = 0;
    unsigned serial = 0; // 1 for the first frame that was presented; 0 for none
    std::vector<std::uint32_t> pixels;

    std::uint32_t At(UINT x, UINT y) const; // raises std::out_of_range
    std::size_t Count(std::uint32_t pixel) const;
};

// Without a serial.
Frame ReadPixels(ID3D11Texture2D* texture);

} // namespace zq::LM::test
