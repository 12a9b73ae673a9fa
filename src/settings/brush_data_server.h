// Receives brush-data messages over TCP on a thread of its own, from one client at a time.
#pragma once

#include "settings/brush_data_exchange.h"
#include "settings/winsock.h"

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace zq::LM {

// Listens on every local address, asks nobody who they are and never answers. What one receive brings is
// taken for one whole message, and the last one wins: messages that are split, or that follow one another
// faster than the bytes are taken, are lost.
//
// No failure is reported. Without Winsock there is no worker; with a port in use the worker tries without a
// pause until the server ends.
class BrushDataServer {
public:
    // Raises std::system_error when no thread can be made.
    explicit BrushDataServer(std::uint16_t port);

    // Ends the process's Winsock, which is what wakes the worker. With another user of Winsock in the process
    // a worker without news from the network is not woken, and this does not return.
    ~BrushDataServer();
    BrushDataServer(const BrushDataServer&) = delete;
    BrushDataServer& operator=(const BrushDataServer&) = delete;

    // What was received last and is not taken yet; empty when there is nothing.
    std::vector<std::uint8_t> TakeReceivedBytes() { return exchange.Take(); }

    std::uint16_t Port() const { return port; }

private:
    void Listen_();
    void ServeClients_();
    void ReceiveFrom_(SOCKET client);

    BrushDataExchange exchange;
    Winsock winsock;
    SOCKET listener = INVALID_SOCKET;         // closed by Winsock's end, never by hand
    const std::string hostName = "localhost"; // a name only: the listener takes every local address
    const std::uint16_t port;
    std::thread worker; // last: it uses the others
};

} // namespace zq::LM
