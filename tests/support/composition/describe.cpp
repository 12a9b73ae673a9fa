// Arguments of recorded calls as texts.
#include "support/composition/describe.h"

#include "support/composition/call_recorder.h"

#include <initializer_list>

namespace zq::LM::test {

namespace {

struct Field {
    const char* name;
    double value;
};

std::string Fields(std::initializer_list<Field> fields)
{
    std::ostringstream text;
    const char* separator = "{";
    for (const Field& field : fields) {
        text << separator << field.name << (*field.name != '\0' ? "=" : "") << field.value;
        separator = ", ";
    }
    text << '}';
    return text.str();
}

} // namespace

std::string Describe(const void* object)
{
    return Recorder() != nullptr ? Recorder()->objects.Name(object) : std::string();
}

std::string Describe(const wchar_t* text)
{
    if (text == nullptr) {
        return "null";
    }
    std::string narrow = "\"";
    for (; *text != L'\0'; ++text) {
        narrow += *text < 0x80 ? static_cast<char>(*text) : '?';
    }
    return narrow + '"';
}

std::string Describe(HWND window)
{
    std::ostringstream text;
    text << "window " << static_cast<const void*>(window);
    return text.str();
}

std::string Describe(const GUID& id)
{
    constexpr int Length = 39;
    wchar_t text[Length] = {};
    StringFromGUID2(id, text, Length);
    std::string narrow;
    for (const wchar_t* character = text; *character != L'\0'; ++character) {
        narrow += static_cast<char>(*character);
    }
    return narrow;
}

std::string Describe(const RECT* rectangle)
{
    return rectangle == nullptr ? "null"
                                : Fields({{"", double(rectangle->left)},
                                          {"", double(rectangle->top)},
                                          {"", double(rectangle->right)},
                                          {"", double(rectangle->bottom)}});
}

std::string Describe(const D2D1_COLOR_F* colour)
{
    return colour == nullptr ? "null"
                             : Fields({{"", colour->r}, {"", colour->g}, {"", colour->b}, {"", colour->a}});
}

std::string Describe(const D2D1_RECT_F* rectangle)
{
    return rectangle == nullptr ? "null"
                                : Fields({{"", rectangle->left},
                                          {"", rectangle->top},
                                          {"", rectangle->right},
                                          {"", rectangle->bottom}});
}

std::string Describe(const D2D1_POINT_2F& point) { return Fields({{"", point.x}, {"", point.y}}); }

std::string Describe(const D2D1_MATRIX_3X2_F* matrix)
{
    return matrix == nullptr ? "null"
                             : Fields({{"", matrix->_11},
                                       {"", matrix->_12},
                                       {"", matrix->_21},
                                       {"", matrix->_22},
                                       {"", matrix->_31},
                                       {"", matrix->_32}});
}

std::string Describe(const D2D1_STROKE_STYLE_PROPERTIES* properties)
{
    return properties == nullptr ? "null"
                                 : Fields({{"start", double(properties->startCap)},
                                           {"end", double(properties->endCap)},
                                           {"dash", double(properties->dashCap)},
                                           {"join", double(properties->lineJoin)},
                                           {"miter", properties->miterLimit},
                                           {"style", double(properties->dashStyle)},
                                           {"offset", properties->dashOffset}});
}

std::string Describe(const D2D1_BITMAP_PROPERTIES1* properties)
{
    if (properties == nullptr) {
        return "null";
    }
    const std::string context = Describe(static_cast<const void*>(properties->colorContext));
    return Fields({{"format", double(properties->pixelFormat.format)},
                   {"alpha", double(properties->pixelFormat.alphaMode)},
                   {"dpiX", properties->dpiX},
                   {"dpiY", properties->dpiY},
                   {"options", double(properties->bitmapOptions)}}) +
           " context " + context;
}

std::string Describe(const D2D1_RENDER_TARGET_PROPERTIES* properties)
{
    return properties == nullptr ? "null"
                                 : Fields({{"type", double(properties->type)},
                                           {"format", double(properties->pixelFormat.format)},
                                           {"alpha", double(properties->pixelFormat.alphaMode)},
                                           {"dpiX", properties->dpiX},
                                           {"dpiY", properties->dpiY},
                                           {"usage", double(properties->usage)},
                                           {"level", double(properties->minLevel)}});
}

std::string Describe(const D2D1_FACTORY_OPTIONS* options)
{
    return options == nullptr ? "null" : Fields({{"debug", double(options->debugLevel)}});
}

std::string Describe(const DXGI_SWAP_CHAIN_DESC1* description)
{
    return description == nullptr ? "null"
                                  : Fields({{"width", double(description->Width)},
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
