// A client of the brush-data server, on the loopback of this machine.
#pragma once

#include <winsock2.h>

#include <cstdint>
#include <vector>

namespace zq::LM::test {

// Uses the Winsock that the server under test has started, and starts none: the server waits for the end of
// the only one. Its calls are all made on one thread.
class BrushDataClient {
public:
    explicit BrushDataClient(std::uint16_t port); // connects; fails the test when it cannot
    ~BrushDataClient() { Close(); }
    BrushDataClient(const BrushDataClient&) = delete;
    BrushDataClient& operator=(const BrushDataClient&) = delete;

    // In one send, which on the loopback is one segment. False once the server has gone.
    bool Send(const std::vector<std::uint8_t>& bytes) const;
    void Close();

private:
    SOCKET socket;
};

// These start a Winsock of their own and end it again.
std::uint16_t FreePort(); // nobody listens at it
bool IsAnswered(std::uint16_t port);
bool CanShare(std::uint16_t port); // bind to it at every local address beside whoever has it already

} // namespace zq::LM::test
