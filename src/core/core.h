// The one instance: conducts the ink, the canvas, the overlay window and the tray.
#pragma once

#include "core/heritage.h"
#include "core/ink_record.h"
#include "core/library_version.h"
#include "core/makers.h"
#include "platform/endable.h"
#include "render/canvas.h"
#include "settings/brush_data_server.h"
#include "ui/overlay_window.h"
#include "ui/tray.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace zq::LM {

// For one thread, the window's. Whoever calls what can run host code holds the Core.
class Core final : public Endable, private WindowEvents, private CanvasOwner {
public:
    // Raises std::bad_alloc. The makers outlive the Core.
    explicit Core(const Heritage& heritage, const Makers& makers = LibraryMakers);
    ~Core() override;
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;

    // Creates the overlay window and binds the active back-end to it. Null on failure, and when the host has
    // ended this Core meanwhile.
    HWND CreateOverlayWindow();

    // Null unless this Core and its window live: the question after every call that can run host code.
    HWND Window() const override { return Lives() ? overlay.Handle() : nullptr; }

    // Null is ignored. A count of 0 applies the parameters and repaints.
    void InputPenData(const PenData* samples, std::size_t count);

    // After a change of the back-end, the next pen input makes a new Core in this one's place. What is handed
    // on to it has the changes made in the settings dialog since the last input.
    bool IsRebuildDue() const { return renderingTypeChanged; }
    Heritage Bequeath();

    // What the callbacks and the window procedure reach.
    InkRecord& Ink() { return ink; }
    Canvas& TheCanvas() { return canvas; }
    OverlayWindow& Overlay() { return overlay; }

private:
    void OnEnd() override;
    void OnCreated() override;
    void OnPaint(bool isOwn) override;
    void OnWanted(const RECT& part) override { canvas.AddWanted(part); }
    void OnContentLost() override { canvas.ForgetFrame(); }
    void OnTick() override;
    void OnCommand(unsigned id) override;
    void OnMenuWanted() override { tray.PopUp(); }
    void OnShellRestarted() override { tray.ShowIconAgain(); }
    const RECT& Screen() const override { return overlay.Screen(); }
    void DrawFrame() override;
    void DrawInformation(DrawingLib& backEnd) override;

    void GiveBack_();
    void GiveBackUserInterface_();
    void SetUpWindow_();
    void RefuseWindow_();
    void FollowScreen_();
    void RunCommand_(unsigned id);

    // In the order of their creation.
    bool renderingTypeChanged = false;
    unsigned creationValue;
    HMODULE module;
    const Makers& makers;
    FileVersion fileVersion;
    OverlayWindow overlay;
    std::vector<PenData> sampleReserve; // memory kept at hand; holds nothing
    InkRecord ink;
    Canvas canvas;
    Tray tray;
    std::unique_ptr<BrushDataServer> brushDataServer; // null unless the makers want it
    PenData lastPenData{};                            // the last sample of the most recent input
};

} // namespace zq::LM
