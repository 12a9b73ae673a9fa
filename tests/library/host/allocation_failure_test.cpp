// The library when memory runs out: what the host hears of it, and that nothing is broken or lost afterwards.
#include "library/host/working_overlay.h"
#include "lumora/brush_data.h"
#include "support/fakes/memory.h"
#include "support/library/object_counts.h"

#include <exception>
#include <new>

namespace zq::LM {
namespace {

using test::MemoryStandIn;
using test::Sample;

constexpr std::size_t ReservedBytes = std::size_t{1'048'576} * sizeof(LM_PenData);

class AllocationFailure : public WorkingOverlayTest {
protected:
    static MemoryStandIn::Rule OfNumber(unsigned refused)
    {
        return [refused](std::size_t, unsigned number) { return number == refused; };
    }

    static MemoryStandIn::Rule FromNumberOn(unsigned first)
    {
        return [first](std::size_t, unsigned number) { return number >= first; };
    }

    static MemoryStandIn::Rule OfAtLeast(std::size_t refused)
    {
        return [refused](std::size_t size, unsigned) { return size >= refused; };
    }

    // False when it raises something else than what says that memory has run out.
    template <typename Work> static bool MayRaise(Work work)
    {
        try {
            work();
        } catch (const std::bad_alloc&) {
            return true;
        } catch (const std::exception&) {
            return false;
        }
        return true;
    }

    // Every export once, where there is no Core.
    void ExpectNoCore()
    {
        LM_Params params = RedInk();
        const LM_PenData sample = Sample(100, 100);
        EXPECT_EQ(library.GetWindowHandle(), nullptr);
        library.GetCopiedParams(&params);
        EXPECT_EQ(params.inkColor, Red); // not written
        library.SetParams(&params);
        library.InputPenDataArray(&sample, 1);
        library.InputPenDataArray(nullptr, 0);
        library.SetData_from_App(&params, sizeof(params));
    }

    void CreateWithoutTheReservation()
    {
        memory.RefuseWhen(OfAtLeast(ReservedBytes));
        EXPECT_THROW(library.Create(), std::bad_alloc);
        EXPECT_EQ(memory.Refused(), 1U);
        memory.RefuseNothing();
    }

    void CreateWithoutACore()
    {
        LiveOnce();
        memory.RefuseWhen(OfNumber(CoreOfACreation()));
        EXPECT_EQ(library.Create(), nullptr);
        EXPECT_EQ(memory.Refused(), 1U);
        memory.RefuseNothing();
    }

    // With GDI; what is made once for the process is made here.
    void LiveOnce()
    {
        CreateWithGDI();
        DestroyAndForget();
    }

    // The runtime's own state for exceptions, of the thread and of its emergency store, is made at the first
    // ones; a process in which even that finds no memory ends there, whatever the library does.
    void RaiseTheFirstExceptions()
    {
        LiveOnce();
        const unsigned core = CoreOfACreation();
        CreateWithoutTheReservation();
        // The exception itself is refused too; the Core is not, since that would raise none.
        memory.RefuseWhen([core](std::size_t size, unsigned number) { return size >= 100 && number > core; });
        EXPECT_THROW(library.Create(), std::bad_alloc);
        memory.RefuseNothing();
    }

    // An allocation is known by what comes of it: the first one whose refusal while `work` runs raises
    // nothing and leaves this. Everything is put back between the tries, and the instance is gone afterwards.
    template <typename Prepare, typename Work, typename Outcome>
    unsigned NumberOf(Prepare prepare, Work work, Outcome outcome)
    {
        constexpr unsigned MostAllocations = 500;
        for (unsigned number = 1; number < MostAllocations; ++number) {
            prepare();
            memory.RefuseWhen(OfNumber(number));
            bool raised = false;
            try {
                work();
            } catch (const std::exception&) {
                raised = true;
            }
            memory.RefuseNothing();
            const bool found = !raised && memory.Refused() == 1 && outcome();
            DestroyAndForget();
            if (found) {
                return number;
            }
        }
        ADD_FAILURE() << "no allocation has this outcome";
        return 0;
    }

    template <typename Outcome> unsigned NumberOfACreations(Outcome outcome)
    {
        return NumberOf([] {}, [this] { library.Create(); }, outcome);
    }

    unsigned CoreOfACreation()
    {
        return NumberOfACreations([this] { return library.GetWindowHandle() == nullptr; });
    }

    bool ReadsNoRecord() const
    {
        LM_Params params = RedInk();
        library.GetCopiedParams(&params);
        return params.inkColor == Red;
    }

    bool KeepsNoRecord() const
    {
        SetParams(RedInk());
        return !ReadsNoRecord() && Params().inkColor != Red;
    }

    void WantARebuild()
    {
        CreateWithGDI();
        Choose(test::ChooseDirect2D);
        Choose(test::ChooseGDI); // still rebuilds
    }

    // A whole life; what passes to the host is noted.
    bool LiveThroughOnce()
    {
        bool raised = false;
        const auto call = [&raised](auto&& work) {
            try {
                work();
            } catch (const std::bad_alloc&) { // and nothing else
                raised = true;
            }
        };
        const LM_Params params = RedInk();
        const LM_PenData samples[] = {Sample(300, 240), Sample(340, 240), Sample(350, 250, 0)};
        call([&] { library.Create(); });
        call([&] { library.SetParams(&params); });
        call([&] { library.InputPenDataArray(samples, 3); });
        UpdateWindow(library.GetWindowHandle());
        call([&] { library.InputPenDataArray(samples, 3); });
        UpdateWindow(library.GetWindowHandle());
        Tick();
        call([&] { library.Destroy(); });
        return raised;
    }

    MemoryStandIn memory{library.Module()};
};

TEST_F(AllocationFailure, OfTheLargeReservationReachesTheHostAsBadAllocAndLeavesNoInstance)
{
    CreateWithoutTheReservation();
    ExpectNoCore();
    library.Destroy();
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(AllocationFailure, OfTheLargeReservationLosesNothing)
{
    LiveOnce();
    CreateWithoutTheReservation();
    const std::size_t before = memory.HeldBlocks();
    CreateWithoutTheReservation();
    EXPECT_EQ(memory.HeldBlocks(), before);
}

TEST_F(AllocationFailure, OfTheLargeReservationLeavesALaterCreateWorking)
{
    LiveOnce();
    CreateWithoutTheReservation();
    EXPECT_NE(library.Create(), nullptr);
    ExpectWorking();
}

TEST_F(AllocationFailure, OfTheLargeReservationStillEndsTheInstanceBefore)
{
    const HWND first = library.Create();
    CreateWithoutTheReservation();
    EXPECT_FALSE(IsWindow(first));
    ExpectNoCore();
}

TEST_F(AllocationFailure, OfTheCoreItselfGivesANullHandle)
{
    CreateWithoutACore();
    ExpectNoCore();
    library.Destroy();
    EXPECT_FALSE(test::PumpMessages());
    ExpectNoCore();
}

TEST_F(AllocationFailure, OfTheCoreItselfLeavesALaterCreateWorking)
{
    CreateWithoutACore();
    test::PumpMessages();
    EXPECT_NE(library.Create(), nullptr);
    ExpectWorking();
}

TEST_F(AllocationFailure, OfTheInkEngineLeavesAnInstanceThatDrawsNothing)
{
    LiveOnce();
    const unsigned engine =
        NumberOfACreations([this] { return IsWindow(library.GetWindowHandle()) && ReadsNoRecord(); });
    memory.RefuseWhen(OfNumber(engine));
    const HWND window = library.Create();
    EXPECT_EQ(memory.Refused(), 1U);
    memory.RefuseNothing();
    test::PumpMessages();
    ASSERT_TRUE(IsWindow(window));
    EXPECT_TRUE(ReadsNoRecord()); // it is read from the engine, which does not exist
    SetParams(RedInk());
    InputStroke();
    Tick();
    ExpectNoInkInTheMiddle();
    EXPECT_EQ(library.GetWindowHandle(), window);
}

// The window of a back-end that could not be made would have nobody to let its key through.
TEST_F(AllocationFailure, OfAnythingLeavesNoWindowThatHidesTheDesktop)
{
    LiveOnce();
    unsigned number = 0;
    do {
        memory.RefuseWhen(OfNumber(++number));
        HWND window = nullptr;
        EXPECT_TRUE(MayRaise([&] { window = library.Create(); }));
        memory.RefuseNothing();
        DWORD flags = 0;
        if (window != nullptr) {
            EXPECT_TRUE(GetLayeredWindowAttributes(window, nullptr, nullptr, &flags)) << number;
            EXPECT_NE(flags & LWA_COLORKEY, 0U) << "after failure of allocation " << number;
        }
        DestroyAndForget();
    } while (memory.Refused() != 0);
    EXPECT_GT(number, 10U);
}

TEST_F(AllocationFailure, OfTheRecordLeavesAnInstanceThatKeepsTheDefaults)
{
    LiveOnce();
    memory.RefuseWhen(OfNumber(NumberOfACreations([this] { return KeepsNoRecord(); })));
    ASSERT_NE(library.Create(), nullptr);
    EXPECT_EQ(memory.Refused(), 1U);
    memory.RefuseNothing();
    test::PumpMessages();
    const LM_Params params = RedInk();
    SetParams(params); // has no record to go into
    lumora::BrushDataMessage message = lumora::MakeInkDecayTime(Life);
    library.SetData_from_App(message.data(), message.size());
    EXPECT_EQ(message, lumora::MakeInkDecayTime(Life));
    EXPECT_EQ(Params().inkDecayTime, 100U);
    EXPECT_EQ(Params().inkColor, 0x00202020U);
    InputAndPaint({Sample(300, 240), Sample(340, 240)});
    Tick();
    EXPECT_EQ(Params().inkDecayTime, 100U);
}

TEST_F(AllocationFailure, WhileSamplesAreStoredReachesTheHostAndKeepsTheSamplesBefore)
{
    CreateWithGDI();
    SetParams(RedInk());
    InputStroke();
    const std::vector<LM_PenData> many(10'000, Sample(400, 300));
    memory.RefuseWhen(OfAtLeast(many.size() * sizeof(many[0]) / 2));
    EXPECT_THROW(Input(many), std::bad_alloc);
    memory.RefuseNothing();
    Input({Sample(380, 240)}); // would wait for ever if a lock had been left held
    ExpectInkInTheMiddle();
    ExpectWorking();
}

TEST_F(AllocationFailure, InsideAFrameIsNotSeenByTheHostAndTheNextFrameWorks)
{
    RaiseTheFirstExceptions();
    library.Create();
    SetParams(RedInk());
    InputStroke();
    memory.RefuseWhen(OfAtLeast(1));
    UpdateWindow(library.GetWindowHandle());
    EXPECT_GT(memory.Refused(), 0U);
    memory.RefuseNothing();
    EXPECT_FALSE(IsInvalid());
    Input({Sample(380, 240)});
    ExpectInkInTheMiddle();
}

TEST_F(AllocationFailure, DuringARebuildReachesTheHostAndALaterCreateWorks)
{
    WantARebuild();
    const HWND left = library.GetWindowHandle();
    memory.RefuseWhen(OfAtLeast(ReservedBytes));
    EXPECT_THROW(Input({Sample(100, 100)}), std::bad_alloc);
    memory.RefuseNothing();
    ExpectNoCore();
    EXPECT_TRUE(IsWindow(left));
    SendMessageW(left, WM_TIMER, 12345, 0);
    SendMessageW(left, WM_COMMAND, test::ChooseGDI, 0);
    test::SettleScreen();
    EXPECT_NE(library.Create(), nullptr);
    ExpectWorking();
}

TEST_F(AllocationFailure, OfTheCoreDuringARebuildLeavesAnInstanceWithoutOne)
{
    const auto rebuild = [this] { Input({Sample(100, 100)}); };
    const unsigned core = NumberOf([this] { WantARebuild(); }, rebuild,
                                   [this] { return library.GetWindowHandle() == nullptr; });
    WantARebuild();
    memory.RefuseWhen(OfNumber(core));
    Input({Sample(100, 100)});
    EXPECT_EQ(memory.Refused(), 1U);
    memory.RefuseNothing();
    ExpectNoCore();
    EXPECT_NE(library.Create(), nullptr);
    ExpectWorking();
}

// The first allocation fails, the second, ... until a whole life passes without one that could.
class EachAllocationFailure : public AllocationFailure {
protected:
    void FailEach(MemoryStandIn::Rule (*makeRule)(unsigned failing))
    {
        constexpr unsigned MostAllocations = 500;
        RaiseTheFirstExceptions();
        LiveThroughOnce(); // what else is made once for the process is made here
        test::PumpMessages();
        const std::size_t held = memory.HeldBlocks();
        const std::size_t gdiObjects = test::GdiObjects();
        unsigned number = 0;
        unsigned heard = 0;
        do {
            ASSERT_LT(++number, MostAllocations);
            memory.RefuseWhen(makeRule(number));
            heard += LiveThroughOnce() ? 1 : 0;
            library.Destroy();
            memory.RefuseNothing();
            test::PumpMessages();
            EXPECT_EQ(memory.HeldBlocks(), held) << "after failure of allocation " << number;
            EXPECT_TRUE(test::OverlayWindows().empty()) << "after failure of allocation " << number;
            // Wine 10 keeps the bitmaps of the window destroyed last, and how many those are depends on how
            // far it came. So the last one is always that of a whole life.
            LiveThroughOnce();
            test::PumpMessages();
            EXPECT_EQ(test::GdiObjects(), gdiObjects) << "after failure of allocation " << number;
        } while (memory.Refused() != 0);
        EXPECT_GT(number, 10U); // there was something to fail
        EXPECT_GT(heard, 0U);
        EXPECT_NE(library.Create(), nullptr);
        ExpectWorking();
    }
};

TEST_F(EachAllocationFailure, OnceOnlyLosesNothingAndALaterInstanceWorks) { FailEach(OfNumber); }

TEST_F(EachAllocationFailure, AndAllLaterOnesLosesNothingAndALaterInstanceWorks) { FailEach(FromNumberOn); }

} // namespace
} // namespace zq::LM
