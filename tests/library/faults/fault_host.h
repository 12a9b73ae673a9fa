// A host whose library meets failing calls, and what must hold whichever of them fails.
#pragma once

#include "library/host/working_overlay.h"
#include "support/fakes/memory.h"
#include "support/hook/every_import.h"
#include "support/hook/hooks.h"
#include "support/library/back_end_test.h"

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

class FaultHost : public WorkingOverlayTest {
public:
    // What scenarios are made of. An export may raise std::bad_alloc and nothing else.
    void Create();
    void Destroy();
    void Write(); // a batch of samples and its frame
    void Age();   // and the tick that finds it
    void PaintFrame() { UpdateWindow(library.GetWindowHandle()); }
    void Send(UINT message, WPARAM wParam, LPARAM lParam) const;
    void SendBrushData();
    void UseDialog();
    void ChooseBackEnd(WPARAM command) const { Send(WM_COMMAND, command, 0); }
    void SetLevel(std::uint32_t level)
    {
        Try_([&] { library.SetDebugLevel(level); });
    }
    void SetRecord(const LM_Params& record)
    {
        Try_([&] { library.SetParams(&record); });
    }
    void MoveShell(const RECT& place) { shell.Move(place); }
    static LM_Params Ink() { return RedInk(); }
    static constexpr RECT AtHome = Desktop;

protected:
    FaultHost();
    ~FaultHost() override;

    // Lives through the scenario, these faults among it; whether any of them came to pass. Checks everything
    // that has to hold then and afterwards.
    bool Live(const FaultScenario& scenario, const std::vector<Fault>& faults);

    // What the scenario calls when nothing fails, and what stays behind then.
    std::vector<std::string> LearnHealthy(const FaultScenario& scenario);

private:
    bool LiveOnce_(const FaultScenario& scenario, const std::vector<Fault>& faults);
    void LiveHealthy_(const FaultScenario& scenario);
    void Inject_(const std::vector<Fault>& faults);
    bool FailNoMore_();
    void Start_(const FaultScenario& scenario);
    void ExpectUsable_();
    void ExpectNoSheet_(const FaultScenario& scenario) const;
    void ExpectKnownLines_() const;
    void ExpectGraphicsBalanced_() const;
    void BeHealthyAgain_();
    void RaiseTheFirstExceptions_();
    void WithoutDevices_(const std::function<void()>& work);
    LeftObjects Count_();
    void Try_(const std::function<void()>& call);

    Hooks calls{library.Module()};
    std::optional<MemoryStandIn> memory;
    std::optional<CompositionStandIn> graphics;
    std::optional<EveryImport> imports;
    std::optional<LeftObjects> healthy;
    std::set<std::string> healthyLines;
};

} // namespace zq::LM::test
