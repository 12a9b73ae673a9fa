// The table of a measurement.
#include "latency/report.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace lumora::latency {

namespace {

PairResult Example()
{
    PairResult result;
    result.first = "lumora";
    result.second = "bare";
    result.width = 1920;
    result.height = 1080;
    result.samples = 3;
    result.firstTimes = {1.5, 2, 3};
    result.secondTimes = {4, 5};
    result.runs = {{0.5, 0.375}};
    return result;
}

TEST(LatencyReport, RowHasBothDistributionsAndTheRatio)
{
    std::ostringstream output;
    WriteTableRow(output, Example());
    EXPECT_EQ(
        output.str(),
        "| 1920 x 1080 | isolated | lumora | bare | 2.00 (1.50 to 3.00) | 4.00 (4.00 to 5.00), 1 not seen | "
        "0.50 | 0.38 |\n");
}

TEST(LatencyReport, RowHasAsManyCellsAsTheHead)
{
    std::ostringstream head;
    std::ostringstream row;
    WriteTableHead(head);
    WriteTableRow(row, Example());
    const std::string names = head.str().substr(0, head.str().find('\n'));
    const std::string cells = row.str();
    EXPECT_EQ(std::count(names.begin(), names.end(), '|'), std::count(cells.begin(), cells.end(), '|'));
}

TEST(LatencyReport, CsvHasEachTime)
{
    std::ostringstream output;
    PairResult result = Example();
    result.pace = Pace::Stream;
    result.firstTimes = {1.25};
    result.secondTimes = {4};
    WriteCsvHead(output);
    WriteCsv(output, result);
    EXPECT_EQ(output.str(), "screen,samples,name,milliseconds\n"
                            "1920x1080,200 Hz,lumora,1.250\n"
                            "1920x1080,200 Hz,bare,4.000\n");
}

} // namespace

} // namespace lumora::latency
