// Which back-end is active, for the whole process.
#include "render/rendering_type.h"

#include "log/debug_log.h"

namespace zq::LM {

RenderingType g_renderingType = RenderingType::DirectComposition;

namespace {

const wchar_t* ConsultedLine(RenderingType type)
{
    switch (type) {
    case RenderingType::DirectComposition:
        return L"Rendering type is Direct Composition.\n";
    case RenderingType::Direct2D:
        return L"Rendering type is Direct2D.\n";
    case RenderingType::GDI:
        return L"Rendering type is DirectGDI.\n"; // the log's own name for GDI
    }
    return L"";
}

const wchar_t* ChosenLine(RenderingType type)
{
    switch (type) {
    case RenderingType::DirectComposition:
        return L"Direct Composition is set.\n";
    case RenderingType::Direct2D:
        return L"Direct2D is set.\n";
    case RenderingType::GDI:
        return L"GDI is set.\n";
    }
    return L"";
}

} // namespace

void ChooseRenderingType(RenderingType type)
{
    g_renderingType = type;
    Log(BASIC, ChosenLine(type));
}

RenderingType GetRenderingType()
{
    Log(DETAILED, ConsultedLine(g_renderingType));
    return g_renderingType;
}

} // namespace zq::LM
