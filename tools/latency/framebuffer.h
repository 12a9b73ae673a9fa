// What Xvfb shows, in its own memory: with -fbdir it keeps its screen in a file, as xwd writes one, which
// changes as it draws.
#pragma once

#include "latency/exchange.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace lumora::latency {

class Framebuffer {
public:
    // Throws std::runtime_error when the file is no such screen of 32 bits a pixel.
    explicit Framebuffer(const std::filesystem::path& file);
    ~Framebuffer();
    Framebuffer(const Framebuffer&) = delete;
    Framebuffer& operator=(const Framebuffer&) = delete;

    std::int32_t Width() const { return width; }
    std::int32_t Height() const { return height; }

    // As it is now. Inside of the screen only.
    std::uint32_t At(std::int32_t x, std::int32_t y) const;

    // Row by row.
    std::vector<std::uint32_t> Copy() const;

private:
    void Read_(const std::filesystem::path& file);

    int descriptor;
    std::size_t size = 0;
    void* mapped = nullptr; // all of the file
    const unsigned char* bytes = nullptr;
    const volatile std::uint32_t* pixels = nullptr;
    std::size_t pixelsPerRow = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

} // namespace lumora::latency
