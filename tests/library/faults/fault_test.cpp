// A life in which calls fail.
#include "library/faults/fault_test.h"

#include "library/faults/fault_scenarios.h"
#include "support/library/object_counts.h"

#include <cctype>
#include <cstdio>
#include <new>

namespace zq::LM::test {

namespace {

// What a crash would keep to itself.
std::string g_atWork; // NOLINT(cert-err58-cpp)

LONG WINAPI TellWhatWasAtWork(EXCEPTION_POINTERS* exception)
{
    std::fprintf(stderr, "crashed with 0x%08lX at %p: %s\n", exception->ExceptionRecord->ExceptionCode,
                 exception->ExceptionRecord->ExceptionAddress, g_atWork.c_str());
    std::fflush(stderr);
    return EXCEPTION_CONTINUE_SEARCH;
}

std::string Describe(const FaultScenario& scenario, const std::vector<Fault>& faults)
{
    std::string text = scenario.name;
    for (const Fault& fault : faults) {
        text += ", call " + std::to_string(fault.nth) + " of " + fault.name +
                (fault.times == NthCall::Always ? " and all later ones" : "");
    }
    return text;
}

// Numbers differ from run to run.
std::string WithoutNumbers(const std::string& line)
{
    std::string text;
    for (const char letter : line) {
        if (std::isdigit(static_cast<unsigned char>(letter)) == 0) {
            text += letter;
        } else if (text.empty() || text.back() != '#') {
            text += '#';
        }
    }
    return text;
}

// Lines of the log that a healthy life does not have.
const std::set<std::string> LinesOfFailures = {
    "InitTransparentWindowCore_ is failed.",
    "Exception is thrown!\n",
    "Device-Lost occured.\n",
};

constexpr unsigned LivesWithTheirClasses = 1000; // each leaves a few

} // namespace

FaultTest::FaultTest()
{
    if (FindImport(library.Module(), "malloc") != nullptr) {
        memory.emplace(library.Module());
    }
    SetUnhandledExceptionFilter(TellWhatWasAtWork);
}

FaultTest::~FaultTest() { SetUnhandledExceptionFilter(nullptr); }

// Devices are slow to make, and not needed to see that everything works again.
void FaultTest::WithoutDevices_(const std::function<void()>& work)
{
    if (graphics) {
        graphics->Answer("D3D11CreateDevice", E_FAIL, 1, CompositionStandIn::Always);
        graphics->Answer("D2D1CreateFactory", E_FAIL, 1, CompositionStandIn::Always);
    }
    work();
    if (graphics) {
        graphics->AnswerNormally();
    }
}

// Hooks of single functions are all made before the one of all.
void FaultTest::Start_(const FaultScenario& scenario)
{
    if (!imports) {
        if (scenario.NeedsDevices()) {
            graphics.emplace(ModuleWithDevices());
            graphics->Show(false);
        }
        imports.emplace(library.Module());
    }
    WithoutDevices_([&] { Select(scenario.backEnd.command); });
    scenario.prepare(*this);
    PumpMessages();
    imports->Forget();
    calls.Take();
    debugger.Clear();
}

void FaultTest::Inject_(const std::vector<Fault>& faults)
{
    for (const Fault& fault : faults) {
        if (fault.name.find('.') == std::string::npos) {
            imports->Fail(fault.name, fault.nth, fault.times);
        } else {
            graphics->Answer(fault.name, E_FAIL, fault.nth, fault.times);
        }
    }
}

bool FaultTest::HasFailed() const
{
    return imports->Failures() > 0 || (graphics && graphics->WasAnswerUsed());
}

void FaultTest::FailNoMore_()
{
    imports->FailNothing();
    if (graphics) {
        graphics->AnswerNormally();
    }
}

// The runtime's own state for exceptions is made at the first ones: one with memory for the exception and one
// without. A process in which even that finds no memory ends there, whatever the library does.
void FaultTest::RaiseTheFirstExceptions_()
{
    constexpr std::size_t LargestOfARuntime = 1 << 20;
    constexpr std::size_t AnException = 100;
    if (!memory) {
        return;
    }
    for (const bool forTheException : {true, false}) {
        bool isOver = false;
        memory->RefuseWhen([&](std::size_t size, unsigned) {
            isOver = isOver || size >= LargestOfARuntime;
            return size >= LargestOfARuntime || (isOver && !forTheException && size >= AnException);
        });
        EXPECT_THROW(library.Create(), std::bad_alloc);
        memory->RefuseNothing();
    }
}

std::vector<std::string> FaultTest::LearnHealthy(const FaultScenario& scenario)
{
    constexpr int Lives = 3; // the first makes what the process keeps
    RaiseTheFirstExceptions_();
    for (int i = 0; i < Lives; ++i) {
        LiveHealthy_(scenario);
        healthy = Count_();
        keptByHealthy = kept;
    }
    return CallsOf_(scenario);
}

std::vector<std::string> FaultTest::CallsOf_(const FaultScenario& scenario)
{
    Start_(scenario);
    if (graphics) {
        graphics->Take();
    }
    scenario.live(*this);
    std::vector<std::string> called = imports->Called();
    std::set<std::string> methods;
    for (const RecordedCall& call : graphics ? graphics->Calls() : std::vector<RecordedCall>()) {
        if (call.result && !call.object.empty() && call.method != "Release" && call.method != "AddRef") {
            methods.insert(call.Step());
        }
    }
    called.insert(called.end(), methods.begin(), methods.end());
    BeHealthyAgain_();
    return called;
}

bool FaultTest::Live(const FaultScenario& scenario, const std::vector<Fault>& faults)
{
    g_atWork = Describe(scenario, faults);
    SCOPED_TRACE(g_atWork);
    const bool hasFailed = LiveOnce_(scenario, faults);
    LeftObjects left = Count_();
    if (left != *healthy) { // the process may have kept what it makes once; a loss repeats itself
        healthy = left;
        LiveOnce_(scenario, faults);
        left = Count_();
        EXPECT_EQ(left, *healthy);
        healthy = left; // the next one answers for itself
    }
    return hasFailed;
}

bool FaultTest::LiveOnce_(const FaultScenario& scenario, const std::vector<Fault>& faults)
{
    Start_(scenario);
    Inject_(faults);
    scenario.live(*this);
    const bool hasFailed = HasFailed();
    FailNoMore_();
    ExpectKnownLines_();
    ExpectUsable_();
    ExpectNoSheet_(scenario);
    BeHealthyAgain_();
    ExpectNoMoreKept_();
    return hasFailed;
}

void FaultTest::LiveHealthy_(const FaultScenario& scenario)
{
    Start_(scenario);
    scenario.live(*this);
    for (const std::string& line : debugger.Texts()) {
        healthyLines.insert(WithoutNumbers(line));
    }
    BeHealthyAgain_();
}

// Whatever has failed, each export does what it says.
void FaultTest::ExpectUsable_()
{
    const HWND window = library.GetWindowHandle();
    EXPECT_TRUE(window == nullptr || IsWindow(window));
    LM_Params record = Params();
    EXPECT_NO_THROW(library.SetParams(&record));
    EXPECT_NO_THROW(InputNothing());
    EXPECT_NO_THROW(SendBrushData());
}

// Every window of the library lets through what is below, to the eye and to the mouse.
void FaultTest::ExpectNoSheet_(const FaultScenario& scenario) const
{
    constexpr LONG SeeThrough = WS_EX_LAYERED | WS_EX_TRANSPARENT;
    for (const HWND window : OverlayWindows()) {
        EXPECT_EQ(GetWindowLongW(window, GWL_EXSTYLE) & SeeThrough, SeeThrough);
    }
    if (scenario.IsComposed()) {
        return; // such a window has no surface of its own to hide anything with; Wine gives it one
    }
    SettleScreen();
    const Picture picture = TakePicture(Desktop);
    constexpr std::size_t Pixels = 640 * 480;
    EXPECT_GT(picture.Count(Green), Pixels * 9 / 10);
}

void FaultTest::ExpectKnownLines_() const
{
    for (const std::string& line : debugger.Texts()) {
        const std::string text = WithoutNumbers(line);
        EXPECT_TRUE(healthyLines.contains(text) || LinesOfFailures.contains(text)) << "logged: " << line;
    }
}

// Of composition only the first of each two devices stays, held once, on purpose.
void FaultTest::ExpectGraphicsBalanced_() const
{
    for (const auto& [name, references] : graphics->Held()) {
        EXPECT_TRUE(name.starts_with("CompositionDevice#")) << name << " is held";
        EXPECT_EQ(references, 1) << name;
    }
    EXPECT_THAT(graphics->ReleasedTooOften(), testing::IsEmpty());
}

void FaultTest::BeHealthyAgain_()
{
    imports->FailNothing();
    library.SetDebugLevel(0);
    shell.Move(Desktop);
    DestroyAndForget();
    CountKept_();
    DestroyLeftWindows(nullptr);
    if (graphics) {
        ExpectGraphicsBalanced_();
    }
    WithoutDevices_([this] {
        Select(ChooseGDI);
        library.Create();
        ExpectWorking();
        DestroyAndForget();
    });
    DestroyLeftWindows(nullptr);
    for (const HWND dialog : SettingsDialogs()) {
        DestroyWindow(dialog);
    }
    if (++lives % LivesWithTheirClasses == 0) {
        GiveBackOverlayClasses(library.Module());
    }
    SettleScreen();
}

LeftObjects FaultTest::Count_()
{
    calls.Take();
    if (graphics) {
        graphics->Take();
    }
    return {GdiObjects(), KernelHandles(), OverlayWindows().size(), memory ? memory->HeldBlocks() : 0};
}

void FaultTest::CountKept_()
{
    const std::size_t devices = graphics ? graphics->Held().size() : 0;
    kept = {OverlayWindows().size(), SettingsDialogs().size(), devices - devicesBefore};
    devicesBefore = devices;
}

// Where a call fails, less may come to be than in a healthy life, but nothing more stays.
void FaultTest::ExpectNoMoreKept_() const
{
    EXPECT_LE(kept.windows, keptByHealthy.windows);
    EXPECT_LE(kept.dialogs, keptByHealthy.dialogs);
    EXPECT_LE(kept.devices, keptByHealthy.devices);
}

std::ostream& operator<<(std::ostream& out, const LeftObjects& left)
{
    return out << left.gdiObjects << " GDI objects, " << left.kernelHandles << " kernel handles, "
               << left.windows << " windows, " << left.memoryBlocks << " memory blocks";
}

} // namespace zq::LM::test
