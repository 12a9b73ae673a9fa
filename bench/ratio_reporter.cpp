// Prints the usual console table and, at the end, what the library costs as a multiple of a bare loop.
#include "ratio_reporter.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace zq::LM::bench {

namespace {

constexpr std::string_view Library = "/library";
constexpr std::string_view Bare = "/bare";

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) {
            continue;
        }
        // The fastest repetition is the one that other programs disturbed least.
        std::string name = run.run_name.function_name;
        if (!run.run_name.args.empty()) {
            name += "/" + run.run_name.args;
        }
        names[{run.family_index, run.per_family_instance_index}] = name;
        const auto place = fastest.emplace(name, run.GetAdjustedCPUTime()).first;
        place->second = std::min(place->second, run.GetAdjustedCPUTime());
    }
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n| pair | library | bare | unit | ratio |\n|---|---|---|---|---|\n");
    for (const auto& [order, name] : names) {
        const std::size_t place = name.find(Library);
        if (place == std::string::npos) {
            continue;
        }
        std::string bareName = name;
        bareName.replace(place, Library.size(), Bare);
        const auto bare = fastest.find(bareName);
        if (bare == fastest.end()) {
            continue;
        }
        std::string subject = name;
        subject.erase(place, Library.size());
        const double library = fastest.at(name);
        std::printf("| %s | %.1f | %.1f | ns | %.2f |\n", subject.c_str(), library, bare->second,
                    library / bare->second);
    }
}

} // namespace zq::LM::bench
