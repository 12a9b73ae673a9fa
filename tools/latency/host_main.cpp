// lumora-latency-host: hands over samples when the measuring program asks for a run.
//
//   lumora-latency-host EXCHANGE-FILE bare
//   lumora-latency-host EXCHANGE-FILE gdi|direct2d LIBRARY-FILE
#include "latency/paced_run.h"
#include "latency/shared_file.h"

#include "lumora/error.hpp"
#include "lumora/lumora.hpp"

#include <iostream>
#include <string_view>

namespace {

using lumora::BackEnd;
using namespace lumora::latency;

void Serve(Exchange& exchange, InkSink& sink)
{
    constexpr DWORD LookEveryMs = 10;
    exchange.isReady.store(1);
    while (exchange.quits.load() == 0) {
        PumpFor(LookEveryMs);
        const std::uint32_t wanted = exchange.wanted.load(std::memory_order_acquire);
        if (wanted != exchange.done.load()) {
            Run(exchange, sink);
            exchange.done.store(wanted, std::memory_order_release);
        }
    }
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    const std::wstring_view kind = argc > 2 ? argv[2] : L"";
    const bool isBare = kind == L"bare" && argc == 3;
    if (!isBare && ((kind != L"gdi" && kind != L"direct2d") || argc != 4)) {
        std::cerr << "usage: lumora-latency-host EXCHANGE-FILE bare\n"
                     "       lumora-latency-host EXCHANGE-FILE gdi|direct2d LIBRARY-FILE\n";
        return 2;
    }
    try {
        const SharedFile file(argv[1]);
        const std::unique_ptr<InkSink> sink =
            isBare ? MakeBareSink()
                   : MakeLibrarySink(argv[3], kind == L"gdi" ? BackEnd::GDI : BackEnd::Direct2D);
        Serve(file.Get(), *sink);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "lumora-latency-host: " << failure.what() << '\n';
        return 1;
    }
}
