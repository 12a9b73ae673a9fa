// The brush-data server: start, worker and stop.
#include "settings/brush_data_server.h"

#include "interface/debug_log.h"

#include <array>
#include <cstdio>

namespace zq::LM {

namespace {

void LogPort(std::uint16_t port)
{
    if (std::snprintf(g_logBuffer, LogBufferSize, "Port = %d\n", port) >= 0) {
        LogA(BASIC, g_logBuffer);
    }
}

// Asked for and dropped: the server reports no failure.
void DropLastError() { static_cast<void>(WSAGetLastError()); }

} // namespace

BrushDataServer::BrushDataServer(std::uint16_t port) : port(port)
{
    if (!winsock.Start()) {
        DropLastError();
        return;
    }
    Listen_();
    exchange.SetRunning(true);
    worker = std::thread(&BrushDataServer::ServeClients_, this);
    LogA(BASIC, "DLL has started TCP/IP Server to receive Brush Data.\n");
    LogPort(port);
    DropLastError();
}

// The order is fixed: first what the worker may wait in, then what it asks before it goes on.
BrushDataServer::~BrushDataServer()
{
    winsock.End();
    exchange.SetRunning(false);
    if (worker.joinable()) {
        worker.join();
    }
    LogA(BASIC, "DLL has closed TCP/IP Server.\n");
}

// No result is looked at, on purpose: a port in use starts the worker like a free one.
void BrushDataServer::Listen_()
{
    constexpr int WaitingClients = 1;
    listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    static_cast<void>(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)));
    static_cast<void>(listen(listener, WaitingClients));
}

// A listener that accepts nobody makes this a tight loop, on purpose: it ends with the server.
void BrushDataServer::ServeClients_()
{
    while (exchange.IsRunning()) {
        sockaddr_in peer{}; // of no interest
        int size = sizeof(peer);
        ReceiveFrom_(accept(listener, reinterpret_cast<sockaddr*>(&peer), &size));
    }
}

// A client of a server that stops is left to Winsock's end.
void BrushDataServer::ReceiveFrom_(SOCKET client)
{
    std::array<std::uint8_t, 256> bytes{};
    while (exchange.IsRunning()) {
        const int count =
            recv(client, reinterpret_cast<char*>(bytes.data()), static_cast<int>(bytes.size()), 0);
        if (count <= 0) {
            closesocket(client); // may be no socket at all; then there is nothing to close
            return;
        }
        exchange.Put({bytes.data(), static_cast<std::size_t>(count)});
    }
}

} // namespace zq::LM
