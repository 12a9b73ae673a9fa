// A run of a host.
#include "latency/paced_run.h"

#include "latency/pen_path.h"

#include <algorithm>
#include <array>

namespace lumora::latency {

namespace {

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
constexpr std::int64_t NanosecondsPerMillisecond = 1'000'000;

std::int64_t Now()
{
    LARGE_INTEGER count = {};
    LARGE_INTEGER frequency = {};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return count.QuadPart / frequency.QuadPart * NanosecondsPerSecond +
           count.QuadPart % frequency.QuadPart * NanosecondsPerSecond / frequency.QuadPart;
}

// 200 a second in a stream. Apart from one another they keep off the 50 ms of an overlay's timer.
std::int64_t PauseAfter(Pace pace, std::uint32_t number)
{
    return pace == Pace::Stream ? 5 : 60 + number * 7 % 13;
}

LM_PenData SampleAt(Place place, std::int32_t pressure)
{
    LM_PenData sample = {};
    sample.time = 1;
    sample.x = place.x;
    sample.y = place.y;
    sample.pressure = pressure;
    return sample;
}

void PumpUntil(std::int64_t time)
{
    for (std::int64_t left = time - Now(); left > 0; left = time - Now()) {
        PumpFor(static_cast<DWORD>(
            std::max<std::int64_t>((left + NanosecondsPerMillisecond - 1) / NanosecondsPerMillisecond, 1)));
    }
}

} // namespace

void PumpFor(DWORD milliseconds)
{
    MsgWaitForMultipleObjectsEx(0, nullptr, milliseconds, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        DispatchMessageW(&message);
    }
}

void Run(Exchange& exchange, InkSink& sink)
{
    const std::uint32_t count = std::min(exchange.sampleCount, MostSamples);
    const std::int32_t width = GetSystemMetrics(SM_CXSCREEN);
    const std::int32_t height = GetSystemMetrics(SM_CYSCREEN);
    std::int64_t due = Now();
    Place end;
    for (std::uint32_t number = 0; number < count; ++number) {
        const PenStep step = StepAt(number, width, height);
        if (step.beginsRow) {
            sink.Input(
                std::array{SampleAt(number > 0 ? end : step.from, 0), SampleAt(step.from, FullPressure)});
            due += PauseAfter(exchange.pace, number) * NanosecondsPerMillisecond;
        }
        PumpUntil(due);
        exchange.samples[number] = {step.watched.x, step.watched.y, Now()};
        sink.Input(std::array{SampleAt(step.to, FullPressure)});
        exchange.given.store(number + 1, std::memory_order_release);
        due += PauseAfter(exchange.pace, number) * NanosecondsPerMillisecond;
        end = step.to;
    }
    sink.Input(std::array{SampleAt(end, 0)});
    PumpUntil(Now() +
              2 * std::int64_t{InkLifeMs} * NanosecondsPerMillisecond); // and the screen is empty again
}

} // namespace lumora::latency
