// Each call that the library makes fails once, in each piece of an instance's life: the first call of a
// function, the second, and so on until there is none left to fail; once only, and from then on.
#include "library/faults/fault_scenarios.h"

#include <cstdlib>
#include <random>

namespace zq::LM::test {

namespace {

// LUMORA_TEST_FAULTS=all tries every call; otherwise the first of each function and a few pairs.
bool IsLong() { return std::getenv("LUMORA_TEST_FAULTS") != nullptr; }

} // namespace

class EachCallFails : public FaultHost, public testing::WithParamInterface<FaultScenario> {
protected:
    unsigned FailEachCall(const std::string& name, unsigned times)
    {
        constexpr unsigned Plenty = 5000;
        const unsigned most = IsLong() ? Plenty : 1;
        unsigned nth = 1;
        while (nth <= most && !HasFatalFailure() && Live(GetParam(), {{name, nth, times}})) {
            ++nth;
        }
        return nth - 1;
    }
};

TEST_P(EachCallFails, AndTheHostNeverSuffers)
{
    const std::vector<std::string> called = LearnHealthy(GetParam());
    EXPECT_FALSE(called.empty());
    unsigned failures = 0;
    for (const std::string& name : called) {
        failures += FailEachCall(name, 1);
        failures += FailEachCall(name, NthCall::Always);
    }
    std::printf("%zu functions and methods, %u failures\n", called.size(), failures);
}

TEST_P(EachCallFails, InPairsAndTheHostNeverSuffers)
{
    const std::vector<std::string> called = LearnHealthy(GetParam());
    std::mt19937 random(static_cast<unsigned>(called.size()));
    const auto some = [&]() -> Fault {
        const auto chosen = static_cast<std::size_t>(random() % called.size());
        return {called[chosen], 1 + static_cast<unsigned>(random() % 3),
                random() % 2 == 0 ? 1 : NthCall::Always};
    };
    const int pairs = IsLong() ? 200 : 4;
    for (int i = 0; i < pairs; ++i) {
        Live(GetParam(), {some(), some()});
    }
}

INSTANTIATE_TEST_SUITE_P(Scenarios, EachCallFails, testing::ValuesIn(AllFaultScenarios()),
                         [](const auto& info) { return info.param.name; });

} // namespace zq::LM::test
