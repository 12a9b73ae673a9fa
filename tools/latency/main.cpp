// lumora-latency: from a sample's call to its pixel in the memory of the X server, for two hosts in turns.
#include "latency/mouse_road.h"
#include "latency/participant.h"
#include "latency/report.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iomanip>
#include <iostream>
#include <stdexcept>

namespace {

using namespace lumora::latency;

struct Options {
    std::string screen;
    std::string firstName;
    std::string secondName;
    std::string firstExchange;
    std::string secondExchange;
    std::string csv;
    std::uint32_t samples = 120;
    unsigned runs = 3;
    bool heads = false;
    bool byMouse = false;
    MouseRoad mouse;
};

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
    MouseRoad road = options.mouse;
    road.samples = options.samples;
    const Distribution times = DistributionOf(MeasureMouse(road, screen));
    std::cout << std::fixed << std::setprecision(2) << options.firstName << ", mouse, " << screen.Width()
              << " x " << screen.Height() << ": median " << times.median << " ms, 5th percentile " << times.p5
              << ", 95th " << times.p95 << ", " << times.count << " of " << road.samples << " seen\n";
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
    Options options;
    CLI::App app("From a sample's call to its pixel in the memory of the X server, for two hosts in turns.");
    app.add_option("--screen", options.screen, "the file in which Xvfb keeps its screen (-fbdir)");
    app.add_option("--first", options.firstName, "the name of the first host");
    app.add_option("--second", options.secondName, "the name of the second one");
    app.add_option("--first-exchange", options.firstExchange, "its file, which is made here");
    app.add_option("--second-exchange", options.secondExchange, "the second one's");
    app.add_option("--csv", options.csv, "appends each time to this file");
    app.add_option("--samples", options.samples, "of an isolated run; a stream has four times as many")
        ->check(CLI::Range(1, 1024));
    app.add_option("--runs", options.runs, "paired runs, each A B B A")->check(CLI::Range(1, 99));
    app.add_flag("--heads", options.heads, "writes the names of the columns, and measures nothing");
    app.add_flag("--mouse", options.byMouse, "measures a program that is there, by the display's mouse");
    app.add_option("--hold", options.mouse.heldKeys,
                   "keys that are held while it writes (Control_L Shift_L)");
    app.add_option("--button", options.mouse.button, "a button that is held while it writes");
    CLI11_PARSE(app, argc, argv);
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
