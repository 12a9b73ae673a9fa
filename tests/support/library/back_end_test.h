// The common set-up of tests that any back-end must pass: ink of the real library over a green window on the
// real screen.
#pragma once

#include "support/composition/composition_stand_in.h"
#include "support/library/ink_on_screen.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <ostream>

namespace zq::LM::test {

// How to start a back-end and how to know it; what it does differently from the others on purpose.
struct BackEnd {
    const char* name;
    WPARAM command;
    const char* frameStep; // the recorded call that only its frames make; empty when none of them is recorded
    bool movesTwice = false; // draws at the screen's place on its bitmap, which lies there already
};

inline constexpr BackEnd DirectCompositionBackEnd = {"DirectComposition", ChooseDirectComposition,
                                                     "SwapChain.Present"};
inline constexpr BackEnd Direct2DBackEnd = {"Direct2D", ChooseDirect2D, "DCRenderTarget.EndDraw", true};
inline constexpr BackEnd GDIBackEnd = {"GDI", ChooseGDI, ""};

// Every one there is. Each passes the whole conformance test.
inline constexpr BackEnd AllBackEnds[] = {DirectCompositionBackEnd, Direct2DBackEnd, GDIBackEnd};

inline std::ostream& operator<<(std::ostream& out, const BackEnd& backEnd) { return out << backEnd.name; }

// The screen begins at the origin; a derived test may say otherwise.
class BackEndTest : public OpaqueInkOnScreen {
protected:
    static constexpr RECT AtOrigin = {0, 0, All.right, All.bottom};

    explicit BackEndTest(const BackEnd& backEnd, const RECT& place = AtOrigin)
        : OpaqueInkOnScreen(place), backEnd(backEnd)
    {
    }

    void Start() override
    {
        Select(backEnd.command);
        graphics.emplace(ModuleWithDevices());
        BeforeCreation();
        library.Create();
    }

    virtual void BeforeCreation() {}

    bool ShowsNothing() const
    {
        const LONG width = place.right - place.left;
        const LONG height = place.bottom - place.top;
        return Look({0, 0, width, height}).Count(Green) == static_cast<std::size_t>(width * height);
    }

    // Whether the recorded frames are this back-end's, and none another's.
    bool DrewAllFrames(const BackEnd& expected) const
    {
        return std::all_of(std::begin(AllBackEnds), std::end(AllBackEnds), [&](const BackEnd& each) {
            const bool isRecorded = *each.frameStep != '\0';
            return !isRecorded ||
                   (graphics->Count(each.frameStep) != 0) == (each.command == expected.command);
        });
    }

    BackEnd backEnd;
    std::optional<CompositionStandIn> graphics; // records, and composes for whoever needs it
};

} // namespace zq::LM::test
