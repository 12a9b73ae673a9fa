// lumora-latency: from a sample's call to its pixel in the memory of the X server, for two hosts in turns.
#include "latency/mouse_road.h"
#include "latency/options.h"
#include "latency/participant.h"
#include "latency/report.h"

#include <fstream>
#include <iomanip>
#include <iostream>
#include <stdexcept>

namespace {

using namespace lumora::latency;

void Append(std::vector<double>& all, const std::vector<double>& more)
{
    all.insert(all.end(), more.begin(), more.end());
}

// A B B A: what drifts, drifts for both.
void MeasureRun(PairResult& result, Participant& first, Participant& second, const Framebuffer& screen,
                std::uint32_t samples)
{
    std::vector<double> firstTimes = first.Measure(screen, result.pace, samples);
    std::vector<double> secondTimes = second.Measure(screen, result.pace, samples);
    Append(secondTimes, second.Measure(screen, result.pace, samples));
    Append(firstTimes, first.Measure(screen, result.pace, samples));
    result.runs.push_back(RatioOf(DistributionOf(firstTimes), DistributionOf(secondTimes)));
    result.samples += 2 * samples;
    Append(result.firstTimes, firstTimes);
    Append(result.secondTimes, secondTimes);
}

void Measure(const Options& options)
{
    const Framebuffer screen(options.screen);
    Participant first(options.firstName, options.firstExchange);
    Participant second(options.secondName, options.secondExchange);
    first.WaitUntilReady();
    second.WaitUntilReady();
    std::ofstream csv;
    if (!options.csv.empty()) {
        csv.open(options.csv, std::ios::app);
    }
    for (const Pace pace : {Pace::Isolated, Pace::Stream}) {
        PairResult result;
        result.first = first.Name();
        result.second = second.Name();
        result.pace = pace;
        result.width = screen.Width();
        result.height = screen.Height();
        // A stream's samples cost little time.
        const std::uint32_t samples =
            std::min(pace == Pace::Stream ? 4 * options.samples : options.samples, MostSamples);
        for (unsigned run = 0; run < options.runs; ++run) {
            MeasureRun(result, first, second, screen, samples);
        }
        if (result.firstTimes.empty() || result.secondTimes.empty()) {
            throw std::runtime_error("no ink was seen of " +
                                     (result.firstTimes.empty() ? first : second).Name());
        }
        WriteTableRow(std::cout, result);
        std::cout.flush();
        WriteCsv(csv, result);
    }
}

void MeasureByMouse(const Options& options)
{
    const Framebuffer screen(options.screen);
    const Distribution times = DistributionOf(MeasureMouse(options.mouse, screen));
    std::cout << std::fixed << std::setprecision(2) << options.firstName << ", mouse, " << screen.Width()
              << " x " << screen.Height() << ": median " << times.median << " ms, 5th percentile " << times.p5
              << ", 95th " << times.p95 << ", " << times.count << " of " << options.mouse.samples
              << " seen\n";
    if (times.count == 0) {
        throw std::runtime_error("no ink was seen");
    }
}

void WriteHeads(const Options& options)
{
    WriteTableHead(std::cout);
    std::ofstream csv(options.csv);
    WriteCsvHead(csv);
}

int Answer(int argc, char** argv)
{
    const OptionsReading reading = ReadOptions({argv + 1, argv + argc});
    if (reading.status) {
        (*reading.status == 0 ? std::cout : std::cerr) << reading.text;
        return *reading.status;
    }
    const Options& options = reading.options;
    if (options.heads) {
        WriteHeads(options);
    } else if (options.byMouse) {
        MeasureByMouse(options);
    } else {
        Measure(options);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Answer(argc, argv);
    } catch (const std::exception& failure) {
        std::cerr << "lumora-latency: " << failure.what() << '\n';
        return 1;
    }
}
