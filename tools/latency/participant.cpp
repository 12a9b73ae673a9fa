// A host under Wine, from the side of the measuring program.
#include "latency/participant.h"

#include "latency/clock.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <new>
#include <stdexcept>
#include <thread>

namespace lumora::latency {

namespace {

// What has been handed over and is not on the screen yet.
class Watch {
public:
    Watch(const Framebuffer& screen, const Exchange& exchange)
        : screen(screen), exchange(exchange), before(screen.Copy())
    {
    }

    void Look()
    {
        const std::uint32_t count = exchange.given.load(std::memory_order_acquire);
        for (; known < count; ++known) {
            awaited.push_back(known);
        }
        std::erase_if(awaited, [this](std::uint32_t number) { return Seen_(exchange.samples[number]); });
    }

    std::vector<double> Take() { return std::move(milliseconds); }

private:
    bool Seen_(const Given& given)
    {
        const std::size_t index =
            static_cast<std::size_t>(given.y) * static_cast<std::size_t>(screen.Width()) +
            static_cast<std::size_t>(given.x);
        if (screen.At(given.x, given.y) == before.at(index)) {
            return false;
        }
        const std::int64_t passed = Now() - given.time;
        if (passed < 0 || passed > 60 * NanosecondsPerSecond) {
            throw std::runtime_error("the host's clock is not the one of this program");
        }
        milliseconds.push_back(static_cast<double>(passed) / NanosecondsPerMillisecond);
        return true;
    }

    const Framebuffer& screen;
    const Exchange& exchange;
    std::vector<std::uint32_t> before;
    std::vector<std::uint32_t> awaited;
    std::uint32_t known = 0;
    std::vector<double> milliseconds;
};

} // namespace

// A host that sees the file may use it: it gets its name when it is complete.
Participant::Participant(std::string name, const std::filesystem::path& exchangeFile) : name(std::move(name))
{
    const std::filesystem::path unfinished = exchangeFile.string() + ".new";
    descriptor = open(unfinished.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    void* mapped = MAP_FAILED;
    if (descriptor >= 0 && ftruncate(descriptor, sizeof(Exchange)) == 0) {
        mapped = mmap(nullptr, sizeof(Exchange), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    }
    if (mapped == MAP_FAILED) {
        throw std::runtime_error(exchangeFile.string() + " cannot be made");
    }
    exchange = new (mapped) Exchange{};
    exchange->version.store(ExchangeVersion);
    std::filesystem::rename(unfinished, exchangeFile);
}

Participant::~Participant()
{
    exchange->quits.store(1);
    munmap(exchange, sizeof(Exchange));
    close(descriptor);
}

void Participant::WaitUntilReady() const
{
    constexpr int Looks = 600;
    constexpr std::chrono::milliseconds BetweenLooks(100);
    for (int look = 0; look < Looks && exchange->isReady.load() == 0; ++look) {
        std::this_thread::sleep_for(BetweenLooks);
    }
    if (exchange->isReady.load() == 0) {
        throw std::runtime_error(name + " does not show its overlay");
    }
}

std::vector<double> Participant::Measure(const Framebuffer& screen, Pace pace, std::uint32_t samples)
{
    exchange->pace = pace;
    exchange->sampleCount = samples;
    exchange->given.store(0);
    Watch watch(screen, *exchange);
    const std::uint32_t run = exchange->wanted.load() + 1;
    exchange->wanted.store(run, std::memory_order_release);
    const std::int64_t latest = Now() + (std::int64_t{samples} / 10 + 60) * NanosecondsPerSecond;
    while (exchange->done.load(std::memory_order_acquire) != run) {
        watch.Look();
        if (Now() > latest) {
            throw std::runtime_error(name + " does not answer");
        }
    }
    return watch.Take();
}

} // namespace lumora::latency
