// A life in which calls fail, and what must hold whichever of them do.
#pragma once

#include "library/faults/fault_host.h"
#include "support/fakes/memory.h"
#include "support/hook/every_import.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace zq::LM::test {

struct FaultScenario;

// A function or a method, by the name under which it is recorded, that fails from its nth call on.
struct Fault {
    std::string name;
    unsigned nth = 1;
    unsigned times = 1;
};

struct LeftObjects {
    std::size_t gdiObjects;
    std::size_t kernelHandles;
    std::size_t windows;
    std::size_t memoryBlocks;
    bool operator==(const LeftObjects&) const = default;
};
std::ostream& operator<<(std::ostream& out, const LeftObjects& left);

// What a life leaves on purpose, until the host or the test gives it back.
struct KeptObjects {
    std::size_t windows;
    std::size_t dialogs;
    std::size_t devices;
};

class FaultTest : public FaultHost {
protected:
    FaultTest();
    ~FaultTest() override;

    // Lives through the scenario, these faults among it; whether any of them came to pass. Checks everything
    // that has to hold then and afterwards.
    bool Live(const FaultScenario& scenario, const std::vector<Fault>& faults);

    // What the scenario calls when nothing fails, and what stays behind then.
    std::vector<std::string> LearnHealthy(const FaultScenario& scenario);

    KeptObjects KeptByHealthyLife() const { return keptByHealthy; }

private:
    bool HasFailed() const override;
    bool LiveOnce_(const FaultScenario& scenario, const std::vector<Fault>& faults);
    void LiveHealthy_(const FaultScenario& scenario);
    std::vector<std::string> CallsOf_(const FaultScenario& scenario);
    void Inject_(const std::vector<Fault>& faults);
    void FailNoMore_();
    void Start_(const FaultScenario& scenario);
    void ExpectUsable_();
    void ExpectNoSheet_(const FaultScenario& scenario) const;
    void ExpectKnownLines_() const;
    void ExpectGraphicsBalanced_() const;
    void BeHealthyAgain_();
    void RaiseTheFirstExceptions_();
    void WithoutDevices_(const std::function<void()>& work);
    LeftObjects Count_();
    void CountKept_();
    void ExpectNoMoreKept_() const;

    std::optional<MemoryStandIn> memory;
    std::optional<CompositionStandIn> graphics;
    std::optional<EveryImport> imports;
    std::optional<LeftObjects> healthy;
    KeptObjects kept{};
    KeptObjects keptByHealthy{};
    std::size_t devicesBefore = 0;
    std::set<std::string> healthyLines;
    unsigned lives = 0;
};

} // namespace zq::LM::test
