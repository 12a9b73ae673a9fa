// How Direct2D's and DXGI's arguments of recorded calls read.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/d2d_headers.h"
#include "support/hook/show.h"

#include <dxgi1_2.h>

#include <string>

namespace zq::LM::test {

std::string Show(const D2D1_COLOR_F* colour);
std::string Show(const D2D1_RECT_F* place);
std::string Show(const D2D1_POINT_2F& point);
std::string Show(const D2D1_MATRIX_3X2_F* matrix);
std::string Show(const D2D1_STROKE_STYLE_PROPERTIES* properties);
std::string Show(const D2D1_BITMAP_PROPERTIES1* properties);
std::string Show(const D2D1_RENDER_TARGET_PROPERTIES* properties);
std::string Show(const D2D1_FACTORY_OPTIONS* options);
std::string Show(const DXGI_SWAP_CHAIN_DESC1* chain);

} // namespace zq::LM::test
