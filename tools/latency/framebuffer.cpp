// What Xvfb shows, in its own memory.
#include "latency/framebuffer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace lumora::latency {

namespace {

// Of the header's numbers, each 32 bits with the highest first, those that matter (X11/XWDFile.h).
enum HeaderField : std::size_t {
    HeaderSize = 0,
    PixmapWidth = 4,
    PixmapHeight = 5,
    BitsPerPixel = 11,
    BytesPerLine = 12,
    ColourCount = 19,
    FieldCount = 25
};
constexpr std::size_t BytesOfColour = 12;

std::uint32_t Field(const unsigned char* bytes, HeaderField field)
{
    const unsigned char* at = bytes + 4 * static_cast<std::size_t>(field);
    return std::uint32_t{at[0]} << 24 | std::uint32_t{at[1]} << 16 | std::uint32_t{at[2]} << 8 | at[3];
}

} // namespace

Framebuffer::Framebuffer(const std::filesystem::path& file)
    : descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC))
{
    struct stat status = {};
    if (descriptor >= 0 && fstat(descriptor, &status) == 0) {
        size = static_cast<std::size_t>(status.st_size);
        mapped = mmap(nullptr, size, PROT_READ, MAP_SHARED, descriptor, 0);
        bytes = mapped == MAP_FAILED ? nullptr : static_cast<const unsigned char*>(mapped);
    }
    Read_(file);
}

void Framebuffer::Read_(const std::filesystem::path& file)
{
    constexpr std::size_t BytesOfPixel = 4;
    const std::size_t headerBytes = FieldCount * 4;
    if (bytes != nullptr && size >= headerBytes && Field(bytes, BitsPerPixel) == 8 * BytesOfPixel) {
        const std::size_t begin = Field(bytes, HeaderSize) + Field(bytes, ColourCount) * BytesOfColour;
        width = static_cast<std::int32_t>(Field(bytes, PixmapWidth));
        height = static_cast<std::int32_t>(Field(bytes, PixmapHeight));
        pixelsPerRow = Field(bytes, BytesPerLine) / BytesOfPixel;
        if (begin + Field(bytes, BytesPerLine) * static_cast<std::size_t>(height) <= size) {
            pixels = reinterpret_cast<const volatile std::uint32_t*>(bytes + begin);
            return;
        }
    }
    throw std::runtime_error(file.string() + " is no screen of Xvfb's with 32 bits a pixel");
}

Framebuffer::~Framebuffer()
{
    munmap(mapped, size);
    close(descriptor);
}

std::uint32_t Framebuffer::At(std::int32_t x, std::int32_t y) const
{
    return pixels[static_cast<std::size_t>(y) * pixelsPerRow + static_cast<std::size_t>(x)];
}

std::vector<std::uint32_t> Framebuffer::Copy() const
{
    std::vector<std::uint32_t> copy;
    copy.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            copy.push_back(At(x, y));
        }
    }
    return copy;
}

} // namespace lumora::latency
