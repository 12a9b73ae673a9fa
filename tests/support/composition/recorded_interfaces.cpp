// Which of the system's objects are watched, and which of their methods.
#include "support/composition/recorded_interfaces.h"

#include "support/composition/method_hook.h"
#include "support/composition/swap_chain.h"

namespace zq::LM::test {

namespace {

ULONG STDMETHODCALLTYPE AddRefHook(IUnknown* self)
{
    CallScope scope(LUMORA_CALLER, self, "AddRef");
    return scope.Added(MethodSlot<&IUnknown::AddRef>::Real(self));
}

ULONG STDMETHODCALLTYPE ReleaseHook(IUnknown* self)
{
    CallScope scope(LUMORA_CALLER, self, "Release");
    return scope.Released(MethodSlot<&IUnknown::Release>::Real(self));
}

// The system lacks this one: its slot leads to the stand-in's swap chain.
HRESULT STDMETHODCALLTYPE CreateSwapChainHook(IDXGIFactory2* self, IUnknown* device,
                                              const DXGI_SWAP_CHAIN_DESC1* description, IDXGIOutput* output,
                                              IDXGISwapChain1** swapChain)
{
    CallScope scope(LUMORA_CALLER, self, "CreateSwapChainForComposition");
    scope.Arguments(device, description, output);
    return scope.Give(swapChain, SwapChain::Kind,
                      [=] { return SwapChain::Create(device, description, swapChain); });
}

// Which of several methods of one name is meant.
using AsksById = HRESULT (IUnknown::*)(const GUID&, void**);
using TakesStroke = HRESULT (ID2D1Factory::*)(const D2D1_STROKE_STYLE_PROPERTIES*, const FLOAT*, UINT,
                                              ID2D1StrokeStyle**);
using GivesPath = HRESULT (ID2D1Factory::*)(ID2D1PathGeometry**);
using GivesPath1 = HRESULT (ID2D1Factory1::*)(ID2D1PathGeometry1**);
using GivesDevice1 = HRESULT (ID2D1Factory2::*)(IDXGIDevice*, ID2D1Device1**);
using TakesBrushColour = HRESULT (ID2D1RenderTarget::*)(const D2D1_COLOR_F*, const D2D1_BRUSH_PROPERTIES*,
                                                        ID2D1SolidColorBrush**);
using TakesSurface = HRESULT (ID2D1DeviceContext::*)(IDXGISurface*, const D2D1_BITMAP_PROPERTIES1*,
                                                     ID2D1Bitmap1**);
using TakesColour = void (ID2D1RenderTarget::*)(const D2D1_COLOR_F*);
using TakesMatrix = void (ID2D1RenderTarget::*)(const D2D1_MATRIX_3X2_F*);
using TakesRectangle = void (ID2D1RenderTarget::*)(const D2D1_RECT_F*, ID2D1Brush*);
using TakesText = void (ID2D1RenderTarget::*)(const WCHAR*, UINT, IDWriteTextFormat*, const D2D1_RECT_F*,
                                              ID2D1Brush*, D2D1_DRAW_TEXT_OPTIONS, DWRITE_MEASURING_MODE);

const char* WatchReferences(IUnknown* object, const char* kind)
{
    MethodHook<"QueryInterface", static_cast<AsksById>(&IUnknown::QueryInterface)>::Patch(object);
    MethodSlot<&IUnknown::AddRef>::Hook(object, AddRefHook);
    MethodSlot<&IUnknown::Release>::Hook(object, ReleaseHook);
    return kind;
}

template <FixedText Name, auto Method> using DrawingHook = MethodHook<Name, Method, WithoutTarget::IsLeftOut>;

HRESULT STDMETHODCALLTYPE EndDrawHook(ID2D1RenderTarget* self, D2D1_TAG* tag1, D2D1_TAG* tag2)
{
    CallScope scope(LUMORA_CALLER, self, "EndDraw");
    scope.Arguments(tag1, tag2);
    return scope.Do([=] {
        const HRESULT result = MethodSlot<&ID2D1RenderTarget::EndDraw>::Real(self, tag1, tag2);
        return LacksTarget(self) ? static_cast<HRESULT>(D2DERR_WRONG_STATE) : result;
    });
}

void STDMETHODCALLTYPE SetTargetHook(ID2D1DeviceContext* self, ID2D1Image* target)
{
    CallScope scope(LUMORA_CALLER, self, "SetTarget");
    scope.Arguments(target);
    MethodSlot<&ID2D1DeviceContext::SetTarget>::Real(self, target);
    NoteTarget(self, target);
}

const char* WatchDrawing(ID2D1RenderTarget* object, const char* kind)
{
    using Target = ID2D1RenderTarget;
    MethodHook<"CreateSolidColorBrush", static_cast<TakesBrushColour>(&Target::CreateSolidColorBrush)>::Patch(
        object);
    DrawingHook<"DrawLine", &Target::DrawLine>::Patch(object);
    DrawingHook<"FillRectangle", static_cast<TakesRectangle>(&Target::FillRectangle)>::Patch(object);
    DrawingHook<"DrawGeometry", &Target::DrawGeometry>::Patch(object);
    DrawingHook<"FillGeometry", &Target::FillGeometry>::Patch(object);
    DrawingHook<"DrawText", static_cast<TakesText>(&Target::DrawText)>::Patch(object);
    DrawingHook<"Clear", static_cast<TakesColour>(&Target::Clear)>::Patch(object);
    MethodHook<"SetTransform", static_cast<TakesMatrix>(&Target::SetTransform)>::Patch(object);
    MethodHook<"SetAntialiasMode", &Target::SetAntialiasMode>::Patch(object);
    MethodHook<"SetTextAntialiasMode", &Target::SetTextAntialiasMode>::Patch(object);
    MethodHook<"BeginDraw", &Target::BeginDraw>::Patch(object);
    MethodHook<"Flush", &Target::Flush>::Patch(object);
    MethodSlot<&Target::EndDraw>::Hook(object, EndDrawHook);
    return WatchReferences(object, kind);
}

// Null for the identifier of another interface.
template <typename Interface> const char* WatchIf(const GUID& id, void* object)
{
    return id == __uuidof(Interface) ? Watch(static_cast<Interface*>(object)) : nullptr;
}

} // namespace

const char* Watch(ID3D11Device* object) { return WatchReferences(object, "D3DDevice"); }
const char* Watch(ID3D11DeviceContext* object) { return WatchReferences(object, "D3DContext"); }
const char* Watch(IDXGIDevice* object) { return WatchReferences(object, "DxgiDevice"); }
const char* Watch(ID2D1Bitmap1* object) { return WatchReferences(object, "Bitmap"); }
const char* Watch(ID2D1SolidColorBrush* object) { return WatchReferences(object, "Brush"); }
const char* Watch(ID2D1StrokeStyle* object) { return WatchReferences(object, "StrokeStyle"); }

const char* Watch(IDXGIFactory2* object)
{
    MethodSlot<&IDXGIFactory2::CreateSwapChainForComposition>::Hook(object, CreateSwapChainHook);
    return WatchReferences(object, "DxgiFactory");
}

const char* Watch(ID2D1Factory* object)
{
    MethodHook<"CreateStrokeStyle", static_cast<TakesStroke>(&ID2D1Factory::CreateStrokeStyle)>::Patch(
        object);
    MethodHook<"CreatePathGeometry", static_cast<GivesPath>(&ID2D1Factory::CreatePathGeometry)>::Patch(
        object);
    MethodHook<"CreateDCRenderTarget", &ID2D1Factory::CreateDCRenderTarget>::Patch(object);
    return WatchReferences(object, "D2DFactory");
}

const char* Watch(ID2D1Factory2* object)
{
    MethodHook<"CreatePathGeometry", static_cast<GivesPath1>(&ID2D1Factory1::CreatePathGeometry)>::Patch(
        object);
    MethodHook<"CreateDevice", static_cast<GivesDevice1>(&ID2D1Factory2::CreateDevice)>::Patch(object);
    return Watch(static_cast<ID2D1Factory*>(object));
}

const char* Watch(ID2D1Device* object)
{
    using GivesContext = HRESULT (ID2D1Device::*)(D2D1_DEVICE_CONTEXT_OPTIONS, ID2D1DeviceContext**);
    MethodHook<"CreateDeviceContext", static_cast<GivesContext>(&ID2D1Device::CreateDeviceContext)>::Patch(
        object);
    return WatchReferences(object, "D2DDevice");
}

const char* Watch(ID2D1DeviceContext* object)
{
    MethodHook<"CreateBitmapFromDxgiSurface",
               static_cast<TakesSurface>(&ID2D1DeviceContext::CreateBitmapFromDxgiSurface)>::Patch(object);
    MethodSlot<&ID2D1DeviceContext::SetTarget>::Hook(object, SetTargetHook);
    NoteTarget(object, nullptr);
    return WatchDrawing(object, "DeviceContext");
}

const char* Watch(ID2D1DCRenderTarget* object)
{
    MethodHook<"BindDC", &ID2D1DCRenderTarget::BindDC>::Patch(object);
    return WatchDrawing(object, "DCRenderTarget");
}

const char* Watch(ID2D1PathGeometry* object)
{
    MethodHook<"Open", &ID2D1PathGeometry::Open>::Patch(object);
    return WatchReferences(object, "Path");
}

const char* Watch(ID2D1GeometrySink* object)
{
    using Sink = ID2D1SimplifiedGeometrySink;
    MethodHook<"SetFillMode", &Sink::SetFillMode>::Patch(object);
    MethodHook<"SetSegmentFlags", &Sink::SetSegmentFlags>::Patch(object);
    MethodHook<"BeginFigure", &Sink::BeginFigure>::Patch(object);
    MethodHook<"AddLine", &ID2D1GeometrySink::AddLine>::Patch(object);
    MethodHook<"EndFigure", &Sink::EndFigure>::Patch(object);
    MethodHook<"Close", &Sink::Close>::Patch(object);
    return WatchReferences(object, "Sink");
}

const char* Watch(IDWriteFactory* object)
{
    MethodHook<"CreateTextFormat", &IDWriteFactory::CreateTextFormat>::Patch(object);
    return WatchReferences(object, "WriteFactory");
}

const char* Watch(IDWriteTextFormat* object)
{
    MethodHook<"GetFontSize", &IDWriteTextFormat::GetFontSize>::Patch(object);
    return WatchReferences(object, "TextFormat");
}

const char* WatchAs(const GUID& id, void* object)
{
    for (const auto watchIf : {WatchIf<IDXGIDevice>, WatchIf<IDXGIFactory2>, WatchIf<ID2D1Factory>,
                               WatchIf<ID2D1Factory2>, WatchIf<IDWriteFactory>}) {
        if (const char* kind = watchIf(id, object)) {
            return kind;
        }
    }
    return WatchReferences(static_cast<IUnknown*>(object), "Unknown");
}

} // namespace zq::LM::test
