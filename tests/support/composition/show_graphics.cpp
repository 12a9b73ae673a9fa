// How Direct2D's and DXGI's arguments of recorded calls read.
#include "support/composition/show_graphics.h"

namespace zq::LM::test {

std::string Show(const D2D1_COLOR_F* colour)
{
    return colour == nullptr
               ? "null"
               : ShowFields({{"", colour->r}, {"", colour->g}, {"", colour->b}, {"", colour->a}});
}

std::string Show(const D2D1_RECT_F* rectangle)
{
    return rectangle == nullptr ? "null"
                                : ShowFields({{"", rectangle->left},
                                              {"", rectangle->top},
                                              {"", rectangle->right},
                                              {"", rectangle->bottom}});
}

std::string Show(const D2D1_POINT_2F& point) { return ShowFields({{"", point.x}, {"", point.y}}); }

std::string Show(const D2D1_MATRIX_3X2_F* matrix)
{
    return matrix == nullptr ? "null"
                             : ShowFields({{"", matrix->_11},
                                           {"", matrix->_12},
                                           {"", matrix->_21},
                                           {"", matrix->_22},
                                           {"", matrix->_31},
                                           {"", matrix->_32}});
}

std::string Show(const D2D1_STROKE_STYLE_PROPERTIES* properties)
{
    return properties == nullptr ? "null"
                                 : ShowFields({{"start", double(properties->startCap)},
                                               {"end", double(properties->endCap)},
                                               {"dash", double(properties->dashCap)},
                                               {"join", double(properties->lineJoin)},
                                               {"miter", properties->miterLimit},
                                               {"style", double(properties->dashStyle)},
                                               {"offset", properties->dashOffset}});
}

std::string Show(const D2D1_BITMAP_PROPERTIES1* properties)
{
    if (properties == nullptr) {
        return "null";
    }
    const std::string context = Show(properties->colorContext);
    return ShowFields({{"format", double(properties->pixelFormat.format)},
                       {"alpha", double(properties->pixelFormat.alphaMode)},
                       {"dpiX", properties->dpiX},
                       {"dpiY", properties->dpiY},
                       {"options", double(properties->bitmapOptions)}}) +
           " context " + context;
}

std::string Show(const D2D1_RENDER_TARGET_PROPERTIES* properties)
{
    return properties == nullptr ? "null"
                                 : ShowFields({{"type", double(properties->type)},
                                               {"format", double(properties->pixelFormat.format)},
                                               {"alpha", double(properties->pixelFormat.alphaMode)},
                                               {"dpiX", properties->dpiX},
                                               {"dpiY", properties->dpiY},
                                               {"usage", double(properties->usage)},
                                               {"level", double(properties->minLevel)}});
}

std::string Show(const D2D1_FACTORY_OPTIONS* options)
{
    return options == nullptr ? "null" : ShowFields({{"debug", double(options->debugLevel)}});
}

std::string Show(const DXGI_SWAP_CHAIN_DESC1* description)
{
    return description == nullptr ? "null"
                                  : ShowFields({{"width", double(description->Width)},
                                                {"height", double(description->Height)},
                                                {"format", double(description->Format)},
                                                {"stereo", double(description->Stereo)},
                                                {"samples", double(description->SampleDesc.Count)},
                                                {"quality", double(description->SampleDesc.Quality)},
                                                {"usage", double(description->BufferUsage)},
                                                {"buffers", double(description->BufferCount)},
                                                {"scaling", double(description->Scaling)},
                                                {"effect", double(description->SwapEffect)},
                                                {"alpha", double(description->AlphaMode)},
                                                {"flags", double(description->Flags)}});
}

} // namespace zq::LM::test
