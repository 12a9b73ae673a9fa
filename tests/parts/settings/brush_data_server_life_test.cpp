// The start and the stop of the brush-data server: the order of its calls, its log, and what it does without
// Winsock or without its port.
#include "settings/brush_data_server.h"
#include "support/brush_data_bytes.h"
#include "support/brush_data_client.h"
#include "support/hook/hooks.h"
#include "support/log_level.h"
#include "support/recorded_log.h"
#include "support/worker_calls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace zq::LM {
namespace {

using test::BrushDataClient;
using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using Lines = std::vector<std::string>;

const LogLine Started = {false, "DLL has started TCP/IP Server to receive Brush Data.\n"};
const LogLine Closed = {false, "DLL has closed TCP/IP Server.\n"};

bool IsInherited(SOCKET socket)
{
    DWORD flags = 0;
    EXPECT_NE(GetHandleInformation(reinterpret_cast<HANDLE>(socket), &flags), 0);
    return (flags & HANDLE_FLAG_INHERIT) != 0;
}

LogLine PortLine(std::uint16_t port) { return {false, "Port = " + std::to_string(port) + "\n"}; }

class BrushDataServerLife : public ::testing::Test {
protected:
    // The calls of start and stop, without the worker's. No socket listens for real.
    void RecordCalls()
    {
        calls.Record<"WSAStartup">(WSAStartup);
        calls.Record<"socket">(socket);
        calls.Record<"SetHandleInformation">(SetHandleInformation);
        calls.Record<"setsockopt">(setsockopt);
        calls.Answer<"bind">(bind, [this](SOCKET, const sockaddr* address, int) {
            bound = *reinterpret_cast<const sockaddr_in*>(address);
            return 0;
        });
        calls.Answer<"listen">(listen, [](SOCKET, int) { return 0; });
        calls.Record<"WSACleanup">(WSACleanup);
    }

    const std::uint16_t port = test::FreePort();
    sockaddr_in bound{};
    test::WorkerCalls worker;
    test::Hooks calls{GetModuleHandleW(nullptr)};
};

TEST_F(BrushDataServerLife, LogsItsStartItsPortAndItsEndFromLevelOneOn)
{
    for (const std::uint32_t level : {NONE, BASIC}) {
        const LogLevel inForce(level);
        const RecordedLog log;
        auto server = std::make_unique<BrushDataServer>(port);
        const std::vector<LogLine> started = {Started, PortLine(port)};
        EXPECT_EQ(log.Lines(), level == NONE ? std::vector<LogLine>{} : started);
        server.reset();
        const std::vector<LogLine> ended = {Started, PortLine(port), Closed};
        EXPECT_EQ(log.Lines(), level == NONE ? std::vector<LogLine>{} : ended);
    }
}

TEST_F(BrushDataServerLife, EndsRightAfterItsStartAndWhileItWaitsForAClient)
{
    for (int i = 0; i < 50; ++i) {
        const BrushDataServer server(port);
    }
    {
        const unsigned before = worker.Accepts();
        const BrushDataServer server(port);
        worker.WaitForAccepts(before + 1);
    }
    EXPECT_FALSE(test::IsAnswered(port));
}

TEST_F(BrushDataServerLife, EndsWhileAClientIsConnectedAndAnotherWaitsBehindIt)
{
    auto server = std::make_unique<BrushDataServer>(port);
    const BrushDataClient first(port);
    worker.WaitForReceives(1);
    const BrushDataClient second(port);
    EXPECT_EQ(worker.Accepts(), 1U);
    server.reset();
    EXPECT_FALSE(first.Send(test::InkColorMessage()));
    EXPECT_FALSE(second.Send(test::InkColorMessage()));
    EXPECT_FALSE(test::IsAnswered(port));
}

TEST_F(BrushDataServerLife, NeverClosesItsListenerByHand)
{
    auto server = std::make_unique<BrushDataServer>(port);
    worker.WaitForAccepts(1);
    const SOCKET listener = worker.Listener();
    server.reset();
    EXPECT_NE(listener, INVALID_SOCKET);
    EXPECT_THAT(worker.Closed(), ::testing::Not(::testing::Contains(listener)));
}

TEST_F(BrushDataServerLife, GivesItsPortToTheNextServer)
{
    for (int i = 0; i < 3; ++i) {
        BrushDataServer server(port);
        const unsigned before = worker.Receives();
        const BrushDataClient client(port);
        ASSERT_TRUE(client.Send(test::InkColorMessage()));
        worker.WaitForReceives(before + 2);
        EXPECT_EQ(server.TakeReceivedBytes(), test::InkColorMessage());
    }
}

TEST_F(BrushDataServerLife, WithItsPortInUseStartsAllTheSameAndTriesUntilItEnds)
{
    const BrushDataServer holder(port); // the one that is found at the port
    const BrushDataClient client(port);
    worker.WaitForReceives(1);
    const unsigned before = worker.Accepts();
    calls.Record<"SetHandleInformation">(SetHandleInformation);
    const LogLevel basic(BASIC);
    const RecordedLog log;
    {
        BrushDataServer second(port);
        EXPECT_EQ(log.Lines(), (std::vector<LogLine>{Started, PortLine(port)}));
        worker.WaitForAccepts(before + 1000);               // without a pause
        EXPECT_EQ(calls.Count("SetHandleInformation"), 1U); // of its own socket, and of none that failed
        EXPECT_EQ(second.TakeReceivedBytes(), test::Bytes{});
    }
    EXPECT_EQ(log.Lines().back(), Closed);
    const unsigned receives = worker.Receives();
    EXPECT_TRUE(client.Send(test::InkColorMessage())); // the holder goes on
    worker.WaitForReceives(receives + 1);
}

TEST_F(BrushDataServerLife, WithoutWinsockDoesNothing)
{
    calls.Answer<"WSAStartup">(WSAStartup, [](WORD, WSADATA*) { return WSASYSNOTREADY; });
    calls.Record<"socket">(socket);
    calls.Record<"WSACleanup">(WSACleanup);
    const LogLevel basic(BASIC);
    const RecordedLog log;
    {
        BrushDataServer server(port);
        EXPECT_EQ(log.Lines(), std::vector<LogLine>{});
        EXPECT_EQ(server.TakeReceivedBytes(), test::Bytes{});
        EXPECT_EQ(server.Port(), port);
    }
    EXPECT_EQ(calls.Count("socket"), 0U);
    EXPECT_EQ(calls.Count("WSACleanup"), 0U); // it would end another user's
    EXPECT_EQ(worker.Accepts(), 0U);
    EXPECT_EQ(log.Lines(), std::vector<LogLine>{Closed});
}

// A program that the host starts would otherwise keep the port, and a client's connection, beyond the
// server's end.
TEST_F(BrushDataServerLife, KeepsItsSocketsFromProgramsThatTheHostStarts)
{
    const BrushDataServer server(port);
    const BrushDataClient client(port);
    worker.WaitForReceives(1);
    EXPECT_FALSE(IsInherited(worker.Listener()));
    EXPECT_FALSE(IsInherited(worker.Client()));

    const SOCKET plain = socket(AF_INET, SOCK_STREAM, 0);
    EXPECT_TRUE(IsInherited(plain)); // as the system makes them
    closesocket(plain);
}

TEST_F(BrushDataServerLife, HasItsPortForItselfAlone)
{
    BOOL isExclusive = FALSE;
    calls.Record<"bind">(bind).Before([&](SOCKET socket, const sockaddr*, int) {
        int size = sizeof(isExclusive);
        EXPECT_EQ(
            getsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<char*>(&isExclusive), &size),
            0);
    });
    const BrushDataServer server(port);
    EXPECT_NE(isExclusive, FALSE);
    EXPECT_FALSE(test::CanShare(port));
}

TEST_F(BrushDataServerLife, StartsAndEndsInAFixedOrder)
{
    RecordCalls();
    {
        const BrushDataServer server(port);
    }
    EXPECT_THAT(calls.Take(),
                ::testing::ElementsAre("WSAStartup(2, *)", "socket(2, 1, 0)",
                                       ::testing::MatchesRegex("SetHandleInformation\\(.*, 1, 0\\)"),
                                       ::testing::MatchesRegex("setsockopt\\(.*, 65535, -5, .*, 4\\)"),
                                       ::testing::MatchesRegex("bind\\(.*, \\*, 16\\)"),
                                       ::testing::MatchesRegex("listen\\(.*, 1\\)"), "WSACleanup()"));
    EXPECT_EQ(bound.sin_family, AF_INET);
    EXPECT_EQ(ntohs(bound.sin_port), port);
    EXPECT_EQ(bound.sin_addr.s_addr, htonl(INADDR_ANY)); // not the loopback alone
}

} // namespace
} // namespace zq::LM
