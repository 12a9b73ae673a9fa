// Prints what the ink engine calls, answers and logs on random walks. Built natively and for the browser, it
// has to print the same.
#include "engine/walked_engine.h"
#include "support/recorded_log.h"

#include <cstdint>
#include <iostream>

namespace zq::LM::test {
namespace {

void TakeAndPrint(WalkedEngine& engine, const Step& step)
{
    const RecordedLog log;
    engine.Take(step);
    for (const Call& call : engine.calls.Take()) {
        std::cout << call << '\n';
    }
    for (const LogLine& line : log.Lines()) {
        std::cout << line.text;
    }
    Drawing& drawing = engine.drawing;
    std::cout << drawing.LivePointsNum() << ' ' << drawing.PenReoprtRate() << ' '
              << drawing.EnabledOptions(engine.mask) << '\n';
}

} // namespace
} // namespace zq::LM::test

int main()
{
    using namespace zq::LM::test;
    constexpr std::uint32_t Walks = 600; // those of the engine's model test
    constexpr std::size_t StepsInAWalk = 80;
    for (std::uint32_t seed = 0; seed < Walks; ++seed) {
        std::cout << "walk " << seed << '\n';
        WalkedEngine engine;
        for (const Step& step : RandomSteps(seed, StepsInAWalk)) {
            TakeAndPrint(engine, step);
        }
        zq::LM::SetDebugLevel(zq::LM::NONE);
    }
}
