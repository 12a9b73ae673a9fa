// Each call that the library makes fails once, in each piece of an instance's life: the first call of a
// function, the second, and so on until there is none left to fail; once only, and from then on.
#include "library/faults/fault_scenarios.h"
#include "library/faults/fault_test.h"

#include <algorithm>
#include <cstdlib>
#include <random>

namespace zq::LM::test {

namespace {

// LUMORA_TEST_FAULTS=all tries every call in every scenario, which takes hours; otherwise it is the first of
// each function and a few pairs with GDI, and a few calls where a device has to be made for each life.
bool IsLong() { return std::getenv("LUMORA_TEST_FAULTS") != nullptr; }

std::vector<FaultScenario> Scenarios()
{
    std::vector<FaultScenario> all = AllFaultScenarios();
    if (!IsLong()) {
        std::erase_if(all, [](const FaultScenario& scenario) {
            const bool isTried = scenario.name == "CreateDirectComposition" ||
                                 scenario.name == "CreateDirect2D" ||
                                 scenario.name == "FromDirect2DToDirectComposition";
            return scenario.NeedsDevices() && !isTried;
        });
    }
    return all;
}

std::vector<FaultScenario> ScenariosForPairs()
{
    std::vector<FaultScenario> all = AllFaultScenarios();
    if (!IsLong()) {
        std::erase_if(all, [](const FaultScenario& scenario) { return scenario.NeedsDevices(); });
    }
    return all;
}

std::string NameOfScenario(const testing::TestParamInfo<FaultScenario>& info) { return info.param.name; }

} // namespace

class EachCallFails : public FaultTest, public testing::WithParamInterface<FaultScenario> {
protected:
    static std::vector<std::string> Some(std::vector<std::string> called)
    {
        constexpr std::size_t Few = 3;
        if (!IsLong() && GetParam().NeedsDevices()) {
            std::shuffle(called.begin(), called.end(), std::mt19937(static_cast<unsigned>(called.size())));
            called.resize(std::min(called.size(), Few));
        }
        return called;
    }

    unsigned FailEachCall(const std::string& name, unsigned times)
    {
        constexpr unsigned Plenty = 5000;
        const unsigned most = IsLong() ? Plenty : 1;
        unsigned nth = 1;
        while (nth <= most && !HasFatalFailure() && Live(GetParam(), {{name, nth, times}})) {
            ++nth;
        }
        EXPECT_LE(nth, Plenty) << name << " is called without end";
        return nth - 1;
    }
};

TEST_P(EachCallFails, AndTheHostNeverSuffers)
{
    const std::vector<std::string> called = LearnHealthy(GetParam());
    EXPECT_FALSE(called.empty());
    unsigned failures = 0;
    for (const std::string& name : Some(called)) {
        failures += FailEachCall(name, 1);
        failures += FailEachCall(name, NthCall::Always);
    }
    std::printf("%zu functions and methods, %u failures\n", called.size(), failures);
    const KeptObjects kept = KeptByHealthyLife();
    std::printf("a life leaves %zu windows, %zu dialogs, %zu devices\n", kept.windows, kept.dialogs,
                kept.devices);
}

class PairsOfCallsFail : public EachCallFails {};

TEST_P(PairsOfCallsFail, AndTheHostNeverSuffers)
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

INSTANTIATE_TEST_SUITE_P(Scenarios, EachCallFails, testing::ValuesIn(Scenarios()), NameOfScenario);
INSTANTIATE_TEST_SUITE_P(Scenarios, PairsOfCallsFail, testing::ValuesIn(ScenariosForPairs()), NameOfScenario);

} // namespace zq::LM::test
