// A client of the brush-data server.
#include "support/brush_data_client.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace zq::LM::test {

namespace {

sockaddr_in Loopback(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// A socket with a Winsock of its own around it.
class Probe {
public:
    Probe()
    {
        WSADATA facts{};
        EXPECT_EQ(WSAStartup(MAKEWORD(2, 0), &facts), 0);
        socket = ::socket(AF_INET, SOCK_STREAM, 0);
    }
    ~Probe()
    {
        closesocket(socket);
        WSACleanup();
    }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    SOCKET Get() const { return socket; }

private:
    SOCKET socket = INVALID_SOCKET;
};

} // namespace

BrushDataClient::BrushDataClient(std::uint16_t port) : socket(::socket(AF_INET, SOCK_STREAM, 0))
{
    const sockaddr_in address = Loopback(port);
    if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        ADD_FAILURE() << "nobody answers at port " << port << ", error " << WSAGetLastError();
    }
    const BOOL on = TRUE; // each send leaves at once
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on), sizeof(on));
}

bool BrushDataClient::Send(const std::vector<std::uint8_t>& bytes) const
{
    return send(socket, reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()), 0) ==
           static_cast<int>(bytes.size());
}

void BrushDataClient::Close()
{
    if (socket != INVALID_SOCKET) {
        closesocket(std::exchange(socket, INVALID_SOCKET));
    }
}

std::uint16_t FreePort()
{
    // Not one of those that the system gives to whoever connects: it would do so before the server is there.
    constexpr std::uint16_t First = 20000;
    constexpr std::uint16_t Count = 10000;
    constexpr int Tries = 100;
    std::random_device chance;
    for (int i = 0; i < Tries; ++i) {
        const auto port = static_cast<std::uint16_t>(First + chance() % Count);
        const Probe probe;
        const sockaddr_in address = Loopback(port);
        if (bind(probe.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
            return port;
        }
    }
    ADD_FAILURE() << "no port is free";
    return 0;
}

bool CanShare(std::uint16_t port)
{
    const Probe probe;
    const BOOL on = TRUE;
    EXPECT_EQ(
        setsockopt(probe.Get(), SOL_SOCKET, SO_REUSEADDR, reinterpret_cast<const char*>(&on), sizeof(on)), 0);
    sockaddr_in address = Loopback(port);
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    return bind(probe.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

bool IsAnswered(std::uint16_t port)
{
    const Probe probe;
    const sockaddr_in address = Loopback(port);
    return connect(probe.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

} // namespace zq::LM::test
