// How Direct2D's and DXGI's arguments of recorded calls read.
#include "support/composition/show_graphics.h"

namespace zq::LM::test {

std::string Show(const D2D1_COLOR_F* colour)
{
    return colour == nullptr ? "null" : ShowFields("", colour->r, colour->g, colour->b, colour->a);
}

std::string Show(const D2D1_RECT_F* place)
{
    return place == nullptr ? "null" : ShowFields("", place->left, place->top, place->right, place->bottom);
}

std::string Show(const D2D1_POINT_2F& point) { return ShowFields("", point.x, point.y); }

std::string Show(const D2D1_MATRIX_3X2_F* matrix)
{
    return matrix == nullptr
               ? "null"
               : ShowFields("", matrix->_11, matrix->_12, matrix->_21, matrix->_22, matrix->_31, matrix->_32);
}

std::string Show(const D2D1_STROKE_STYLE_PROPERTIES* properties)
{
    if (properties == nullptr) {
        return "null";
    }
    return ShowFields("start end dash join miter style offset", properties->startCap, properties->endCap,
                      properties->dashCap, properties->lineJoin, properties->miterLimit,
                      properties->dashStyle, properties->dashOffset);
}

std::string Show(const D2D1_BITMAP_PROPERTIES1* properties)
{
    if (properties == nullptr) {
        return "null";
    }
    return ShowFields("format alpha dpiX dpiY options", properties->pixelFormat.format,
                      properties->pixelFormat.alphaMode, properties->dpiX, properties->dpiY,
                      properties->bitmapOptions) +
           " context " + Show(properties->colorContext);
}

std::string Show(const D2D1_RENDER_TARGET_PROPERTIES* properties)
{
    if (properties == nullptr) {
        return "null";
    }
    return ShowFields("type format alpha dpiX dpiY usage level", properties->type,
                      properties->pixelFormat.format, properties->pixelFormat.alphaMode, properties->dpiX,
                      properties->dpiY, properties->usage, properties->minLevel);
}

std::string Show(const D2D1_FACTORY_OPTIONS* options)
{
    return options == nullptr ? "null" : ShowFields("debug", options->debugLevel);
}

std::string Show(const DXGI_SWAP_CHAIN_DESC1* chain)
{
    if (chain == nullptr) {
        return "null";
    }
    return ShowFields("width height format stereo samples quality usage buffers scaling effect alpha flags",
                      chain->Width, chain->Height, chain->Format, chain->Stereo, chain->SampleDesc.Count,
                      chain->SampleDesc.Quality, chain->BufferUsage, chain->BufferCount, chain->Scaling,
                      chain->SwapEffect, chain->AlphaMode, chain->Flags);
}

} // namespace zq::LM::test
