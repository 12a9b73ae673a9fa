// Pictures of the real screen.
#pragma once

#include <filesystem>
#include <memory>

#include <windows.h>

namespace lumora::replay {

// The primary screen's pixels at one moment.
class Screenshot {
public:
    // Throws ReplayError when the screen cannot be read.
    Screenshot();

    // Throws ReplayError when the file cannot be written.
    void SaveAsPng(const std::filesystem::path& file) const;

private:
    struct BitmapDeleter {
        void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    };

    std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> bitmap;
    int width = 0;
    int height = 0;
    void* bits = nullptr; // the bitmap's own memory
};

} // namespace lumora::replay
