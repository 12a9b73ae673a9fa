// Brush data through a Core of the test program's own: both roads into the record, the engine and the view,
// and the life of the server.
#include "parts/core/core_test.h"
#include "support/brush_data_bytes.h"
#include "support/brush_data_client.h"
#include "support/log_level.h"
#include "support/worker_calls.h"

#include <gmock/gmock.h>

namespace zq::LM::test {
namespace {

constexpr std::uint16_t Port = 44056;

class CoreBrushData : public CoreTest {
protected:
    // As a view writes it: in place, without passing it on.
    void EditRecord(std::uint32_t brushSize) { core->Ink().Get()->brushSize = brushSize; }
};

TEST_F(CoreBrushData, FromTheHostReachesRecordEngineAndView)
{
    CreateWindowed();
    Bytes message = InkColorMessage();
    core->Ink().Apply(message.data());
    EXPECT_EQ(Record().inkColor, 0x00332211U);
    EXPECT_EQ(EngineRecord().inkColor, 0x00332211U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, OfNoKindFromTheHostStillRefreshesEngineAndView)
{
    CreateWindowed();
    EditRecord(77);
    Bytes message = Message("Nothing", 0, {});
    core->Ink().Apply(message.data());
    EXPECT_EQ(EngineRecord().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, OfNullFromTheHostIsOfNoKind)
{
    CreateWindowed();
    EditRecord(77);
    core->Ink().Apply(nullptr);
    EXPECT_EQ(EngineRecord().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushData, HasNoServerUnlessItIsWanted)
{
    calls.Record<"WSAStartup">(WSAStartup);
    CreateWindowed();
    EXPECT_EQ(calls.Count("WSAStartup"), 0U);
    SendMessageW(core->Window(), WM_TIMER, 0, 0);
    EXPECT_EQ(calls.Take(), Lines{});
}

// At the library's own port, which is one for the machine: these run one at a time.
class CoreBrushDataServer : public CoreBrushData {
protected:
    CoreBrushDataServer() { makers.useBrushDataServer = true; }
    ~CoreBrushDataServer() override
    {
        if (core != nullptr) {
            DestroyWindowAndCore(); // while its worker is still watched
        }
    }

    // Returns when the bytes lie in the server's buffer.
    void SendOnce(const Bytes& bytes)
    {
        const unsigned before = worker.Receives();
        const BrushDataClient client(Port);
        EXPECT_TRUE(client.Send(bytes));
        worker.WaitForReceives(before + 2);
    }

    WorkerCalls worker;
};

TEST_F(CoreBrushDataServer, ListensAtItsPort)
{
    CreateWindowed();
    const BrushDataClient client(Port);
    worker.WaitForReceives(1);
}

TEST_F(CoreBrushDataServer, StartsAtTheEndOfTheCoresMaking)
{
    const LogLevel basic(BASIC);
    calls.RecordLog();
    MakeCore();
    const Lines lines = calls.Take();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
              (Lines{"log: DLL has started TCP/IP Server to receive Brush Data.\n", "log: Port = 44056\n"}));
}

TEST_F(CoreBrushDataServer, ATickTakesAMessageToRecordEngineAndView)
{
    CreateWindowed();
    SendOnce(BrushParamsMessage());
    EXPECT_EQ(Record().brushSize, DefaultParams.brushSize); // not before the tick
    Tick();
    EXPECT_EQ(Record().inkColor, 0x00665544U);
    EXPECT_EQ(EngineRecord().inkColor, 0x00665544U);
    EXPECT_EQ(EngineRecord().brushSize, 300U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushDataServer, AMessageIsTakenByOneTickOnly)
{
    CreateWindowed();
    SendOnce(InkColorMessage());
    Tick();
    calls.Take();
    Tick();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(CoreBrushDataServer, OfABurstBetweenTwoTicksTheLastIsApplied)
{
    CreateWindowed();
    SendOnce(InkColorMessage());
    SendOnce(InkDecayTimeMessage());
    SendOnce(BrushSizeMessage());
    Tick();
    EXPECT_EQ(EngineRecord().inkColor, DefaultParams.inkColor);
    EXPECT_EQ(EngineRecord().inkDecayTime, DefaultParams.inkDecayTime);
    EXPECT_EQ(EngineRecord().brushSize, 30U);
}

TEST_F(CoreBrushDataServer, ATickWithoutBytesLeavesEngineAndViewAlone)
{
    CreateWindowed();
    EditRecord(77);
    Tick();
    EXPECT_EQ(EngineRecord().brushSize, DefaultParams.brushSize);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(CoreBrushDataServer, BytesOfNoKindStillRefreshEngineAndView)
{
    CreateWindowed();
    EditRecord(77);
    SendOnce(Bytes(256, 0xC3));
    Tick();
    EXPECT_EQ(EngineRecord().brushSize, 77U);
    EXPECT_EQ(calls.Take(), Lines{"view refreshed"});
}

TEST_F(CoreBrushDataServer, AMessageThatLiesAboutItsSizeIsAppliedAndDoesNoHarm)
{
    CreateWindowed();
    SendOnce(Message("InkColor", 0xFFFFFFFF, {0x11, 0x22, 0x33, 0x00}));
    Tick();
    EXPECT_EQ(EngineRecord().inkColor, 0x00332211U);
}

TEST_F(CoreBrushDataServer, ATickTakesBrushDataBeforeItAgesTheInk)
{
    CreateWindowed();
    Params params = Record();
    params.inkDecayTime = 1'000'000'000;
    SetParams(params);
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
    calls.Record<"WSACleanup">(WSACleanup);
    CreateWindowed();
    const LogLevel basic(BASIC);
    calls.RecordLog();
    HWND window = core->Window();
    core.reset();
    const Lines lines = calls.Take();
    const Lines expected = {"KillTimer(window 1, 12345)",
                            "WSACleanup()",
                            "log: DLL has closed TCP/IP Server.\n",
                            "0: destroyed",
                            "1: destroyed",
                            "2: destroyed"};
    ASSERT_GE(lines.size(), expected.size());
    EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(expected.size()), lines.end()), expected);
    DestroyWindow(window);
}

TEST_F(CoreBrushDataServer, EndsWithItsCoreWhileAClientIsConnected)
{
    CreateWindowed();
    const BrushDataClient client(Port);
    worker.WaitForReceives(1);
    DestroyWindowAndCore();
    EXPECT_FALSE(client.Send(InkColorMessage()));
    EXPECT_FALSE(IsAnswered(Port));
}

TEST_F(CoreBrushDataServer, OfTheNextCoreHasTheSamePort)
{
    CreateWindowed();
    SendOnce(InkColorMessage());
    DestroyWindowAndCore();
    CreateWindowed();
    SendOnce(BrushSizeMessage());
    Tick();
    EXPECT_EQ(EngineRecord().inkColor, DefaultParams.inkColor);
    EXPECT_EQ(EngineRecord().brushSize, 30U);
}

} // namespace
} // namespace zq::LM::test
