// A clip that holds for a while.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/paint_area.h"

namespace zq::LM {

// What a device context draws is confined to an area meanwhile; everything, and a system that refuses,
// confine nothing.
class Clip {
public:
    Clip(HDC dc, const PaintArea& area);
    ~Clip() { Remove(); }
    Clip(const Clip&) = delete;
    Clip& operator=(const Clip&) = delete;

    // False when the system refuses: then all that is drawn stays confined.
    bool Remove();

private:
    HDC dc;
    bool isSet;
};

} // namespace zq::LM
