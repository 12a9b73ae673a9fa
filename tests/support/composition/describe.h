// Arguments of recorded calls as texts.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/d2d_headers.h"

#include <dxgi1_2.h>

#include <sstream>
#include <string>
#include <type_traits>

namespace zq::LM::test {

std::string Describe(const void* object); // by the name that the recorder gave it
std::string Describe(const wchar_t* text);
std::string Describe(HWND window);
std::string Describe(const GUID& id);
std::string Describe(const RECT* rectangle);
std::string Describe(const D2D1_COLOR_F* colour);
std::string Describe(const D2D1_RECT_F* rectangle);
std::string Describe(const D2D1_POINT_2F& point);
std::string Describe(const D2D1_MATRIX_3X2_F* matrix);
std::string Describe(const D2D1_STROKE_STYLE_PROPERTIES* properties);
std::string Describe(const D2D1_BITMAP_PROPERTIES1* properties);
std::string Describe(const D2D1_RENDER_TARGET_PROPERTIES* properties);
std::string Describe(const D2D1_FACTORY_OPTIONS* options);
std::string Describe(const DXGI_SWAP_CHAIN_DESC1* description);

template <typename Value>
requires(std::is_arithmetic_v<Value> || std::is_enum_v<Value>) std::string Describe(Value value)
{
    std::ostringstream text;
    if constexpr (std::is_enum_v<Value>) {
        text << static_cast<long long>(value);
    } else {
        text << value;
    }
    return text.str();
}

} // namespace zq::LM::test
