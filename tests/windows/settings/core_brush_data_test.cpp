// Brush data through a Core of the test program's own: both roads into the record, the engine and the view,
// and the life of the server.
#include "support/brush_data_bytes.h"
#include "support/brush_data_client.h"
#include "support/brush_data_setting.h"
#include "support/log_level.h"
#include "support/worker_calls.h"
#include "windows/window/core_window_test.h"

#include <gmock/gmock.h>

namespace zq::LM::test {
namespace {

constexpr std::uint16_t Port = 44056;

class CoreBrushData : public CoreWindowTest {
protected:
    void CreateShown()
    {
        CreateWindowed(RenderingType::GDI);
        core->SetParamsView(std::make_unique<TracedView>());
        calls.Take();
    }

    Params Engine()
    {
        Params params{};
        core->GetEngineParams(&params);
        return params;
    }

    // As a view writes it: in place, without passing it on.
    void EditRecord(std::uint32_t brushSize) { const_cast<Params*>(core->Record())->brushSize = brushSize; }
};

TEST_F(CoreBrushData, FromTheHostReachesRecordEngineAndView)
{
    CreateShown();
    Bytes message = InkColorMessage();
    core->SetBrushData(message.data());
    EXPECT_EQ(core->Record()->inkColor, 0x00332211U);
    EXPECT_EQ(Engine().inkColor, 0x00332211U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, OfNoKindFromTheHostStillRefreshesEngineAndView)
{
    CreateShown();
    EditRecord(77);
    Bytes message = Message("Nothing", 0, {});
    core->SetBrushData(message.data());
    EXPECT_EQ(Engine().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, OfNullFromTheHostIsOfNoKind)
{
    CreateShown();
    EditRecord(77);
    core->SetBrushData(nullptr);
    EXPECT_EQ(Engine().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, HasNoServerUnlessItIsWanted)
{
    calls.Record<"WSAStartup">("WS2_32.dll", WSAStartup);
    CreateShown();
    EXPECT_EQ(core->Server(), nullptr);
    EXPECT_EQ(calls.Count("WSAStartup"), 0U);
    SendMessageW(core->Window(), WM_TIMER, 0, 0);
    EXPECT_EQ(calls.Take(), Lines{});
}

// At the library's own port, which is one for the machine: these run one at a time, as all that use the
// screen.
class CoreBrushDataServer : public CoreBrushData {
protected:
    CoreBrushDataServer() { WantBrushDataServer(true); }

    // Returns when the bytes lie in the server's buffer.
    void SendOnce(const Bytes& bytes)
    {
        const unsigned before = worker.Receives();
        const BrushDataClient client(Port);
        EXPECT_TRUE(client.Send(bytes));
        worker.WaitForReceives(before + 2);
    }

    void Tick() { SendMessageW(core->Window(), WM_TIMER, 0, 0); }

    WorkerCalls worker;
};

TEST_F(CoreBrushDataServer, ListensAtItsPort)
{
    CreateShown();
    ASSERT_NE(core->Server(), nullptr);
    EXPECT_EQ(core->Server()->Port(), Port);
    const BrushDataClient client(Port);
    worker.WaitForReceives(1);
}

TEST_F(CoreBrushDataServer, StartsAtTheEndOfTheCoresMaking)
{
    const LogLevel basic(BASIC);
    calls.RecordLog();
    g_renderingType = RenderingType::GDI;
    core = std::make_unique<Core>(Program(), 0U);
    const Lines lines = calls.Take();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
              (Lines{"log: DLL has started TCP/IP Server to receive Brush Data.\n", "log: Port = 44056\n"}));
}

TEST_F(CoreBrushDataServer, ATickTakesAMessageToRecordEngineAndView)
{
    CreateShown();
    SendOnce(BrushParamsMessage());
    EXPECT_EQ(core->Record()->brushSize, DefaultParams.brushSize); // not before the tick
    Tick();
    EXPECT_EQ(core->Record()->inkColor, 0x00665544U);
    EXPECT_EQ(Engine().inkColor, 0x00665544U);
    EXPECT_EQ(Engine().brushSize, 300U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushDataServer, AMessageIsTakenByOneTickOnly)
{
    CreateShown();
    SendOnce(InkColorMessage());
    Tick();
    calls.Take();
    Tick();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(CoreBrushDataServer, OfABurstBetweenTwoTicksTheLastIsApplied)
{
    CreateShown();
    SendOnce(InkColorMessage());
    SendOnce(InkDecayTimeMessage());
    SendOnce(BrushSizeMessage());
    Tick();
    EXPECT_EQ(Engine().inkColor, DefaultParams.inkColor);
    EXPECT_EQ(Engine().inkDecayTime, DefaultParams.inkDecayTime);
    EXPECT_EQ(Engine().brushSize, 30U);
}

TEST_F(CoreBrushDataServer, ATickWithoutBytesLeavesEngineAndViewAlone)
{
    CreateShown();
    EditRecord(77);
    Tick();
    EXPECT_EQ(Engine().brushSize, DefaultParams.brushSize);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(CoreBrushDataServer, BytesOfNoKindStillRefreshEngineAndView)
{
    CreateShown();
    EditRecord(77);
    SendOnce(Bytes(256, 0xC3));
    Tick();
    EXPECT_EQ(Engine().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushDataServer, AMessageThatLiesAboutItsSizeIsAppliedAndDoesNoHarm)
{
    CreateShown();
    SendOnce(Message("InkColor", 0xFFFFFFFF, {0x11, 0x22, 0x33, 0x00}));
    Tick();
    EXPECT_EQ(Engine().inkColor, 0x00332211U);
}

TEST_F(CoreBrushDataServer, ATickTakesBrushDataBeforeItAgesTheInk)
{
    CreateShown();
    Params params = *core->Record();
    params.inkDecayTime = 1'000'000'000;
    core->SetParams(params);
    PenData sample{};
    sample.time = sample.x = sample.y = 1;
    core->InputPenData(&sample, 1);
    UpdateWindow(core->Window());
    Tick();
    ASSERT_FALSE(GetUpdateRect(core->Window(), nullptr, FALSE));
    SendOnce(Message("InkDecayTime", 4, {0, 0, 0, 0}));
    Tick();
    EXPECT_TRUE(GetUpdateRect(core->Window(), nullptr, FALSE)); // the same tick wipes the last ink
}

TEST_F(CoreBrushDataServer, EndsAfterTheTimerAndBeforeTheBackEnds)
{
    RecordDestruction();
    calls.Record<"WSACleanup">("WS2_32.dll", WSACleanup);
    CreateShown();
    const LogLevel basic(BASIC);
    calls.RecordLog();
    HWND window = core->Window();
    core.reset();
    const Lines lines = calls.Take();
    const Lines expected = {
        "KillTimer(window 1, 12345)", "WSACleanup()",         "log: DLL has closed TCP/IP Server.\n",
        "back-end 0 destroyed",       "back-end 1 destroyed", "back-end 2 destroyed"};
    ASSERT_GE(lines.size(), expected.size());
    EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(expected.size()), lines.end()), expected);
    DestroyWindow(window);
}

TEST_F(CoreBrushDataServer, EndsWithItsCoreWhileAClientIsConnected)
{
    CreateShown();
    const BrushDataClient client(Port);
    worker.WaitForReceives(1);
    DestroyWindowAndCore();
    EXPECT_FALSE(client.Send(InkColorMessage()));
    EXPECT_FALSE(IsAnswered(Port));
}

TEST_F(CoreBrushDataServer, OfTheNextCoreHasTheSamePort)
{
    CreateShown();
    SendOnce(InkColorMessage());
    DestroyWindowAndCore();
    CreateShown();
    SendOnce(BrushSizeMessage());
    Tick();
    EXPECT_EQ(Engine().inkColor, DefaultParams.inkColor);
    EXPECT_EQ(Engine().brushSize, 30U);
}

} // namespace
} // namespace zq::LM::test
