// The brush-data server with real clients on the loopback: what is received, and how the worker goes on.
#include "settings/brush_data_server.h"
#include "support/brush_data_bytes.h"
#include "support/brush_data_client.h"
#include "support/worker_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
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

TEST_F(BrushDataServerTest, OfABurstBetweenTwoTakesTheLastReceiveIsLeftOnce)
{
    const auto client = Connect();
    Send(*client, InkColorMessage());
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

TEST_F(BrushDataServerTest, ServesAndClosesTwoHundredConnectionsInSequence)
{
    constexpr std::uint8_t Count = 200;
    for (std::uint8_t i = 1; i <= Count; ++i) {
        const auto client = Connect();
        Send(*client, Bytes{i});
        Close(*client);
        ASSERT_EQ(server.TakeReceivedBytes(), Bytes{i});
    }
    EXPECT_EQ(worker.Accepts(), Count + 1U);
    EXPECT_EQ(worker.Closes(), Count + 0U);
}

// The buffer never holds more than one receive, and the server serves on afterwards.
TEST_F(BrushDataServerTest, OutlivesAClientThatSendsWithoutAPause)
{
    constexpr int Arrays = 1000; // taken while it sends
    std::atomic<bool> sending{true};
    auto client = Connect();
    std::thread sender([&] {
        const Bytes message = test::BrushParamsMessage();
        while (sending && client->Send(message)) {
        }
        client->Close();
    });
    for (int taken = 0; taken < Arrays && !HasFailure();) {
        const unsigned before = worker.Receives();
        const Bytes received = server.TakeReceivedBytes();
        EXPECT_LE(received.size(), 256U);
        taken += received.empty() ? 0 : 1;
        worker.WaitForReceives(before + 1);
    }
    sending = false;
    sender.join();
    worker.WaitForAccepts(2);

    client = Connect();
    Send(*client, InkColorMessage());
    EXPECT_EQ(server.TakeReceivedBytes(), InkColorMessage());
}

} // namespace
} // namespace zq::LM
