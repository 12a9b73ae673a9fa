// The brush-data server: start, worker and stop.
#include "settings/brush_data_server.h"

#include "log/debug_log.h"
#include "platform/dropped.h"

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

// The server reports no failure.
void DropLastError() { Dropped(WSAGetLastError()); }

// A program that the host starts with its inheritable handles would keep the connection beyond the server's
// end.
void KeepFromChildren(SOCKET socket)
{
    if (socket == INVALID_SOCKET) {
        return; // as a handle it would be this process
    }
    Dropped(SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0));
}

// Another program could otherwise ask to share the port, and take the clients.
void KeepPortFromOthers(SOCKET socket)
{
    const BOOL on = TRUE;
    Dropped(
        setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on), sizeof(on)));
}

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

// A worker that waits on a socket is woken by Winsock's end, so this comes before the join; the flag then
// keeps it from trying again.
BrushDataServer::~BrushDataServer()
{
    winsock.End();
    exchange.SetRunning(false);
    if (worker.joinable()) {
        worker.join();
    }
    LogA(BASIC, "DLL has closed TCP/IP Server.\n");
}

// Nobody could be told of a failure, so none is asked for: the worker runs in vain then.
void BrushDataServer::Listen_()
{
    constexpr int WaitingClients = 1;
    listener = socket(AF_INET, SOCK_STREAM, 0);
    KeepFromChildren(listener);
    KeepPortFromOthers(listener);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    Dropped(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)));
    Dropped(listen(listener, WaitingClients));
}

// Where every accept fails this spins until the server ends; nobody could reach such a server anyway.
void BrushDataServer::ServeClients_()
{
    while (exchange.IsRunning()) {
        sockaddr_in peer{}; // of no interest
        int size = sizeof(peer);
        const SOCKET client = accept(listener, reinterpret_cast<sockaddr*>(&peer), &size);
        KeepFromChildren(client);
        ReceiveFrom_(client);
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
