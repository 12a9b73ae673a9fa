// The common set-up of the DirectComposition back-end's tests: the real library on a stand-in for the
// system's composition engine.
#pragma once

#include "support/composition/composition_stand_in.h"
#include "support/library/overlay_test.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

inline constexpr unsigned NormalLevel = 2; // of the log

class CompositionTest : public OverlayTest {
protected:
    // The overlay with its set-up's calls dropped; frames are not shown on the screen.
    HWND CreateQuietly();

    // One frame with these samples; gives its calls.
    Lines FrameWith(const std::vector<LM_PenData>& samples);
    Lines Frame();

    // Of the last presented frame, at the overlay's own coordinates.
    std::uint32_t PixelAt(UINT x, UINT y) const { return composition.LastFrame().At(x, y); }

    std::size_t LinesLike(const std::string& text) const;

    // Ends with the instance destroyed and everything released but one device for each set-up.
    void TearDown() override;

    int setUps = 1;
    CompositionStandIn composition{ModuleWithDevices()};
    NoDirect2DBackEnd noDirect2D{library.Module()}; // its calls are none of these tests' business
};

} // namespace zq::LM::test
