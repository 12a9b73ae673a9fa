// The brush-data server with real clients on the loopback: what is received, and how the worker goes on.
#include "settings/brush_data.h"
#include "settings/brush_data_server.h"
#include "support/brush_data_bytes.h"
#include "support/brush_data_client.h"
#include "support/worker_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

namespace zq::LM {
namespace {

using test::BrushDataClient;
using test::Bytes;
using test::InkColorMessage;

class BrushDataServerTest : public ::testing::Test {
protected:
    // A client that the worker has accepted and waits for.
    std::unique_ptr<BrushDataClient> Connect()
    {
        const unsigned before = worker.Receives();
        auto client = std::make_unique<BrushDataClient>(port);
        worker.WaitForReceives(before + 1);
        return client;
    }

    // Returns when the bytes are in the server's buffer, if they fit into one receive.
    void Send(const BrushDataClient& client, const Bytes& bytes) const
    {
        const unsigned before = worker.Receives();
        EXPECT_TRUE(client.Send(bytes));
        worker.WaitForReceives(before + 1);
    }

    // Returns when the worker has closed it too.
    void Close(BrushDataClient& client) const
    {
        const unsigned before = worker.Accepts();
        client.Close();
        worker.WaitForAccepts(before + 1);
    }

    test::WorkerCalls worker;
    const std::uint16_t port = test::FreePort();
    BrushDataServer server{port};
};

TEST_F(BrushDataServerTest, KnowsItsPort) { EXPECT_EQ(server.Port(), port); }

TEST_F(BrushDataServerTest, HasNothingBeforeAClient)
{
    worker.WaitForAccepts(1);
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes{});
}

TEST_F(BrushDataServerTest, GivesAMessageOnce)
{
    const auto client = Connect();
    Send(*client, InkColorMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes{});
}

TEST_F(BrushDataServerTest, OfTwoMessagesInOneReceiveTheFirstIsDecoded)
{
    const auto client = Connect();
    Bytes both = InkColorMessage();
    const Bytes second = test::BrushSizeMessage();
    both.insert(both.end(), second.begin(), second.end());
    Send(*client, both);
    const Bytes received = server.TakeReceivedBytes();
    EXPECT_EQ(received, both);
    Params params = DefaultParams;
    EXPECT_EQ(DecodeReceivedBrushData(params, received), BrushDataKind::InkColor);
    EXPECT_EQ(params.brushSize, DefaultParams.brushSize);
}

TEST_F(BrushDataServerTest, AMessageInTwoReceivesIsNotJoined)
{
    const auto client = Connect();
    const Bytes message = InkColorMessage();
    const Bytes first(message.begin(), message.begin() + 10);
    const Bytes second(message.begin() + 10, message.end());
    Send(*client, first);
    Send(*client, second);
    EXPECT_EQ(server.TakeReceivedBytes(), second);
}

TEST_F(BrushDataServerTest, OfABurstBetweenTwoTakesTheLastIsLeft)
{
    const auto client = Connect();
    Send(*client, InkColorMessage());
    Send(*client, test::BrushSizeMessage());
    Send(*client, test::InkDecayTimeMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), test::InkDecayTimeMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes{});
}

TEST_F(BrushDataServerTest, AReceiveEndsAfter256Bytes)
{
    const auto client = Connect();
    Send(*client, Bytes(256, 7));
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes(256, 7));

    Bytes longer(300, 7);
    std::fill(longer.begin() + 256, longer.end(), std::uint8_t{9});
    const unsigned before = worker.Receives();
    ASSERT_TRUE(client->Send(longer));
    worker.WaitForReceives(before + 2);
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes(44, 9));
}

TEST_F(BrushDataServerTest, WhatAClientSentIsThereAfterItHasGone)
{
    const auto client = Connect();
    Send(*client, InkColorMessage());
    Close(*client);
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());
}

TEST_F(BrushDataServerTest, AClientThatOnlyConnectsLeavesNothingAndTheNextIsServed)
{
    const auto first = Connect();
    Close(*first);
    EXPECT_EQ(server.TakeReceivedBytes(), Bytes{});
    const auto second = Connect();
    Send(*second, InkColorMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());
}

TEST_F(BrushDataServerTest, ASecondClientWaitsForTheFirstToGo)
{
    const auto first = Connect();
    const BrushDataClient second(port);
    ASSERT_TRUE(second.Send(test::BrushSizeMessage()));
    Send(*first, InkColorMessage());
    EXPECT_EQ(worker.Accepts(), 1U);
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());

    const unsigned before = worker.Receives();
    Close(*first);
    worker.WaitForReceives(before + 2); // the second's message, and what may follow it
    EXPECT_EQ(worker.Accepts(), 2U);
    EXPECT_EQ(server.TakeReceivedBytes(), test::BrushSizeMessage());
}

TEST_F(BrushDataServerTest, ServesAThousandConnectionsInSequence)
{
    constexpr std::uint8_t Count = 250;
    constexpr int Rounds = 4;
    for (int round = 0; round < Rounds; ++round) {
        for (std::uint8_t i = 1; i <= Count; ++i) {
            const auto client = Connect();
            Send(*client, Bytes{i});
            Close(*client);
            ASSERT_EQ(server.TakeReceivedBytes(), Bytes{i});
        }
    }
    EXPECT_EQ(worker.Accepts(), Rounds * Count + 1U);
    EXPECT_EQ(worker.Closes(), 1U * Rounds * Count);
}

TEST_F(BrushDataServerTest, ClosesEachClientThatHasGone)
{
    for (int i = 0; i < 3; ++i) {
        Close(*Connect());
    }
    EXPECT_EQ(worker.Closes(), 3U);
}

// The buffer never holds more than one receive, and the server serves on afterwards.
TEST_F(BrushDataServerTest, OutlivesAClientThatSendsForTenSecondsWithoutAPause)
{
    constexpr auto Duration = std::chrono::seconds(10);
    std::atomic<bool> sending{true};
    std::uint64_t sent = 0;
    auto client = Connect();
    std::thread sender([&] {
        const Bytes message = test::BrushParamsMessage();
        while (sending && client->Send(message)) {
            ++sent;
        }
        client->Close();
    });
    Params params = DefaultParams;
    unsigned arrays = 0;
    const auto end = std::chrono::steady_clock::now() + Duration;
    while (std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a tick
        const Bytes received = server.TakeReceivedBytes();
        EXPECT_LE(received.size(), 256U);
        arrays += received.empty() ? 0 : 1;
        DecodeReceivedBrushData(params, received);
    }
    sending = false;
    sender.join();
    worker.WaitForAccepts(2);
    EXPECT_GT(arrays, 0U);
    EXPECT_GT(sent, 0U);

    client = Connect();
    Send(*client, InkColorMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());
}

} // namespace
} // namespace zq::LM
