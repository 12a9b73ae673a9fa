// The stand-in for the system's composition engine itself: what it refuses, what it notices and how it flips.
#include "support/composition/composition_stand_in.h"

#include "render/d2d_headers.h"
#include "support/hook/import_table.h"

#include <d3d11.h>
#include <dcomp.h>
#include <dxgi1_3.h>
#include <wrl/client.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM::test {

namespace {

using Microsoft::WRL::ComPtr;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

DXGI_SWAP_CHAIN_DESC1 GoodDescription()
{
    DXGI_SWAP_CHAIN_DESC1 description{};
    description.Width = 40;
    description.Height = 30;
    description.Format = DXGI_FORMAT_B8G8R8A8_UNORM;
    description.SampleDesc.Count = 1;
    description.BufferUsage = DXGI_USAGE_RENDER_TARGET_OUTPUT;
    description.BufferCount = 2;
    description.Scaling = DXGI_SCALING_STRETCH;
    description.SwapEffect = DXGI_SWAP_EFFECT_FLIP_SEQUENTIAL;
    description.AlphaMode = DXGI_ALPHA_MODE_PREMULTIPLIED;
    return description;
}

// The test program is the watched module.
class StandInTest : public testing::Test {
protected:
    StandInTest()
    {
        composition.Show(false);
        D3D11CreateDevice(nullptr, D3D_DRIVER_TYPE_HARDWARE, nullptr, D3D11_CREATE_DEVICE_BGRA_SUPPORT,
                          nullptr, 0, D3D11_SDK_VERSION, device.GetAddressOf(), nullptr,
                          context.GetAddressOf());
        CreateDXGIFactory2(0, __uuidof(IDXGIFactory2), reinterpret_cast<void**>(factory.GetAddressOf()));
        composition.Take();
    }

    ~StandInTest() override { DestroyWindow(window); }

    HRESULT CreateChain(const DXGI_SWAP_CHAIN_DESC1& description)
    {
        return factory->CreateSwapChainForComposition(device.Get(), &description, nullptr,
                                                      chain.ReleaseAndGetAddressOf());
    }

    // Fills the buffer that is drawn into.
    void Fill(float red, float green, float blue)
    {
        ComPtr<ID3D11Texture2D> buffer;
        ComPtr<ID3D11RenderTargetView> view;
        chain->GetBuffer(0, __uuidof(ID3D11Texture2D), reinterpret_cast<void**>(buffer.GetAddressOf()));
        device->CreateRenderTargetView(buffer.Get(), nullptr, view.GetAddressOf());
        const float colour[] = {red, green, blue, 1};
        context->ClearRenderTargetView(view.Get(), colour);
    }

    HWND window = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_LAYERED, L"STATIC", L"Shown", WS_POPUP, 0, 0, 40,
                                  30, nullptr, nullptr, nullptr, nullptr);
    CompositionStandIn composition{GetModuleHandleW(nullptr)};
    ComPtr<ID3D11Device> device;
    ComPtr<ID3D11DeviceContext> context;
    ComPtr<IDXGIFactory2> factory;
    ComPtr<IDXGISwapChain1> chain;
};

TEST_F(StandInTest, RefusesWhatCannotBeComposed)
{
    const auto with = [](auto change) {
        DXGI_SWAP_CHAIN_DESC1 description = GoodDescription();
        change(description);
        return description;
    };
    EXPECT_EQ(CreateChain(GoodDescription()), S_OK);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.Width = 0; })), DXGI_ERROR_INVALID_CALL);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.Height = 0; })), DXGI_ERROR_INVALID_CALL);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.BufferCount = 1; })), DXGI_ERROR_INVALID_CALL);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.Scaling = DXGI_SCALING_NONE; })), DXGI_ERROR_INVALID_CALL);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.SwapEffect = DXGI_SWAP_EFFECT_DISCARD; })),
              DXGI_ERROR_INVALID_CALL);
    EXPECT_EQ(CreateChain(with([](auto& bad) { bad.SampleDesc.Count = 4; })), DXGI_ERROR_INVALID_CALL);
}

TEST_F(StandInTest, RefusesToResizeBuffersThatAreHeld)
{
    CreateChain(GoodDescription());
    ComPtr<IDXGISurface2> buffer;
    chain->GetBuffer(0, __uuidof(IDXGISurface2), reinterpret_cast<void**>(buffer.GetAddressOf()));
    EXPECT_EQ(chain->ResizeBuffers(2, 50, 60, DXGI_FORMAT_UNKNOWN, 0), DXGI_ERROR_INVALID_CALL);
    buffer.Reset();
    EXPECT_EQ(chain->ResizeBuffers(2, 50, 60, DXGI_FORMAT_UNKNOWN, 0), S_OK);
}

TEST_F(StandInTest, ShowsAnOlderFrameWhereNothingIsCleared)
{
    CreateChain(GoodDescription());
    Fill(1, 0, 0);
    chain->Present(0, 0);
    EXPECT_EQ(composition.LastFrame().At(5, 5), 0xFFFF0000U);
    Fill(0, 0, 1);
    chain->Present(0, 0);
    EXPECT_EQ(composition.LastFrame().At(5, 5), 0xFF0000FFU);
    chain->Present(0, 0);
    EXPECT_EQ(composition.LastFrame().At(5, 5), 0xFFFF0000U);
    EXPECT_EQ(composition.LastFrame().serial, 3U);
}

TEST_F(StandInTest, FlipsThroughAllBuffers)
{
    DXGI_SWAP_CHAIN_DESC1 description = GoodDescription();
    description.BufferCount = 3;
    CreateChain(description);
    Fill(1, 0, 0);
    chain->Present(0, 0);
    Fill(0, 1, 0);
    chain->Present(0, 0);
    Fill(0, 0, 1);
    chain->Present(0, 0);
    chain->Present(0, 0);
    EXPECT_EQ(composition.LastFrame().At(5, 5), 0xFFFF0000U);
    chain->Present(0, 0);
    EXPECT_EQ(composition.LastFrame().At(5, 5), 0xFF00FF00U);
}

TEST_F(StandInTest, GivesAWindowOneTopmostTarget)
{
    ComPtr<IDXGIDevice> dxgiDevice;
    ComPtr<IDCompositionDevice> composer;
    ComPtr<IDCompositionTarget> first;
    ComPtr<IDCompositionTarget> second;
    device.As(&dxgiDevice);
    DCompositionCreateDevice(dxgiDevice.Get(), __uuidof(IDCompositionDevice),
                             reinterpret_cast<void**>(composer.GetAddressOf()));
    EXPECT_EQ(composer->CreateTargetForHwnd(window, TRUE, first.GetAddressOf()), S_OK);
    EXPECT_EQ(composer->CreateTargetForHwnd(window, TRUE, second.GetAddressOf()),
              static_cast<HRESULT>(0x88980800));
    EXPECT_EQ(composer->CreateTargetForHwnd(nullptr, TRUE, second.GetAddressOf()), E_INVALIDARG);
    first.Reset();
    EXPECT_EQ(composer->CreateTargetForHwnd(window, TRUE, second.GetAddressOf()), S_OK);
}

TEST_F(StandInTest, AnswersTheChosenCallAndNoOther)
{
    CreateChain(GoodDescription());
    composition.Answer("SwapChain.Present", E_FAIL, 2, 2);
    EXPECT_FALSE(composition.WereAnswersUsed());
    EXPECT_EQ(chain->Present(0, 0), S_OK);
    EXPECT_EQ(chain->Present(0, 0), E_FAIL);
    EXPECT_EQ(chain->Present(0, 0), E_FAIL);
    EXPECT_EQ(chain->Present(0, 0), S_OK);
    EXPECT_TRUE(composition.WereAnswersUsed());
    EXPECT_EQ(composition.LastFrame().serial, 2U);
}

TEST_F(StandInTest, KnowsWhatIsHeld)
{
    CreateChain(GoodDescription());
    EXPECT_THAT(composition.Living(), ElementsAre(Pair("SwapChain", 1)));
    EXPECT_THAT(composition.Held(), testing::Contains(Pair("SwapChain#1", 1)));
    device->AddRef();
    EXPECT_THAT(composition.Held(), testing::Contains(Pair("D3DDevice#1", 2)));
    device->Release();
    chain.Reset();
    EXPECT_THAT(composition.Held(), testing::Contains(Pair("D3DDevice#1", 1)));
    EXPECT_THAT(composition.Held(), testing::Not(testing::Contains(testing::Key("SwapChain#1"))));
    EXPECT_THAT(composition.Living(), IsEmpty());
    EXPECT_THAT(composition.ReleasedTooOften(), IsEmpty());
}

TEST_F(StandInTest, RecordsTheTargetOfADeviceContextToo)
{
    {
        ComPtr<ID2D1Factory> d2dFactory;
        ComPtr<ID2D1DCRenderTarget> target;
        ComPtr<ID2D1SolidColorBrush> brush;
        D2D1CreateFactory(D2D1_FACTORY_TYPE_SINGLE_THREADED, __uuidof(ID2D1Factory), nullptr,
                          reinterpret_cast<void**>(d2dFactory.GetAddressOf()));
        D2D1_RENDER_TARGET_PROPERTIES properties{};
        properties.pixelFormat = {DXGI_FORMAT_B8G8R8A8_UNORM, D2D1_ALPHA_MODE_IGNORE};
        d2dFactory->CreateDCRenderTarget(&properties, target.GetAddressOf());
        target->SetAntialiasMode(D2D1_ANTIALIAS_MODE_ALIASED);
        const D2D1_COLOR_F colour{1, 0, 0, 1};
        target->CreateSolidColorBrush(&colour, nullptr, brush.GetAddressOf());
    }
    EXPECT_THAT(
        composition.Take(),
        ElementsAre("D2D1CreateFactory(0, {06152247-6F50-465A-9245-118BFD3B6007}, null) = 0 -> D2DFactory#1",
                    "D2DFactory#1.CreateDCRenderTarget({type=0, format=87, alpha=3, dpiX=0, dpiY=0, usage=0, "
                    "level=0}) = 0 -> DCRenderTarget#1",
                    "DCRenderTarget#1.SetAntialiasMode(1)",
                    "DCRenderTarget#1.CreateSolidColorBrush({1, 0, 0, 1}, null) = 0 -> Brush#1",
                    "Brush#1.Release() = 0", "DCRenderTarget#1.Release() = 0", "D2DFactory#1.Release() = 0"));
}

TEST(StandInObjectTableTest, NoticesWhatIsReleasedTooOften)
{
    const int object = 0;
    ObjectTable table;
    table.Given(&object, "Brush");
    table.Added(&object);
    table.Released(&object);
    table.Released(&object);
    EXPECT_THAT(table.ReleasedTooOften(), IsEmpty());
    EXPECT_THAT(table.Held(), IsEmpty());
    table.Released(&object);
    EXPECT_THAT(table.ReleasedTooOften(), ElementsAre("Brush#1"));
}

TEST(StandInObjectTableTest, NamesANewObjectInAnOldOnesPlaceAnew)
{
    const int object = 0;
    ObjectTable table;
    table.Given(&object, "Brush");
    table.Released(&object);
    table.Given(&object, "Path");
    EXPECT_EQ(NameOf(&object), "Path#1");
    EXPECT_THAT(table.Held(), ElementsAre(Pair("Path#1", 1)));
}

TEST(StandInImportsTest, AreThoseOfTheSystemAgainAfterwards)
{
    void** entry = FindImport(GetModuleHandleW(nullptr), "D3D11CreateDevice");
    ASSERT_NE(entry, nullptr);
    const void* original = *entry;
    for (int i = 0; i < 3; ++i) {
        const CompositionStandIn composition(GetModuleHandleW(nullptr));
        EXPECT_NE(*entry, original);
    }
    EXPECT_EQ(*entry, original);
}

} // namespace

} // namespace zq::LM::test
