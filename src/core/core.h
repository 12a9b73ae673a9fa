// The one instance: owns the parameter record, the ink engine, the back-ends and the overlay window, and runs
// frames.
#pragma once

#include "core/brush_data_setting.h"
#include "core/library_version.h"
#include "ink/drawing.h"
#include "platform/endable.h"
#include "render/drawing_lib.h"
#include "render/memory_surface.h"
#include "render/rendering_type.h"
#include "settings/brush_data_server.h"
#include "settings/params_view.h"
#include "ui/overlay_window.h"
#include "ui/tasktray.h"
#include "ui/tray_menu.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zq::LM {

// For one thread, the window's. A public function that can run host code holds the Core itself.
class Core final : public Endable, private WindowEvents {
public:
    using BackEnds = std::vector<std::unique_ptr<DrawingLib>>;

    // The creation value is only handed on, to the Core of a rebuild. Raises std::bad_alloc.
    Core(HMODULE module, unsigned creationValue);
    ~Core() override;
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;

    // Creates the overlay window and binds the active back-end to it. Null on failure, and when the host has
    // ended this Core meanwhile.
    HWND CreateOverlayWindow();

    // Null unless there is a living window.
    HWND Window() const { return window.Handle(); }
    bool Owns(HWND handle, UINT message) const { return window.Owns(handle, message); }
    LRESULT Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

    // The Core's record, passed on to the ink engine and shown. The engine's copy, when there is an engine.
    void SetParams(const Params& source);
    void GetEngineParams(Params* out);

    // One brush-data message, applied to the record and wiped; the record is passed on and shown in any case.
    // Null is no message.
    void SetBrushData(std::uint8_t* message);

    // Null is ignored. A count of 0 applies the parameters and repaints.
    void InputPenData(const PenData* samples, std::size_t count);

    // After a change of the back-end, the next pen input makes a new Core in this one's place. What the
    // settings dialog has changed since the last input reaches the engine's record before.
    bool IsRebuildDue() const { return renderingTypeChanged; }
    void ClearForRebuild();
    HMODULE Module() const { return module; }
    unsigned CreationValue() const { return creationValue; }

    // What the callbacks need.
    DrawingLib* ActiveBackEnd(); // null where a back-end does not exist
    unsigned PickScreenColour(bool clearFlag);
    void DrawText(int x, int y, unsigned colour, const char* text);
    void DrawInformation(DrawingLib& backEnd);

    // The index is the RenderingType.
    BackEnds& AllBackEnds() { return backEnds; }

    void SetParamsView(std::unique_ptr<ParamsView> view) { paramsView.reset(view.release()); }

    // Facts for diagnosis.
    const Params* Record() const { return params.get(); }
    const PenData& LastPenData() const { return lastPenData; }
    const FileVersion& Version() const { return fileVersion; }
    const OverlayWindow& Overlay() const { return window; }
    const BrushDataServer* Server() const { return brushDataServer.get(); } // null unless the setting is on

private:
    void OnEnd() override;
    void GiveBack_();
    void GiveBackUserInterface_();

    void OnCreated() override;
    void OnPaint() override;
    void OnTick() override;
    void OnCommand(unsigned id) override;
    void OnMenuWanted() override;
    void OnShellRestarted() override;

    void ReadVersion_();
    void CreateDrawing_();
    void BindCallbacks_();
    void CreateBackEnds_();
    void CreateBrushDataServer_();

    // As long as it lives, engine, back-ends and memory surface are in use.
    class DrawingScope {
    public:
        explicit DrawingScope(Core& core) : depth(core.drawingDepth) { ++depth; }
        ~DrawingScope() { --depth; }
        DrawingScope(const DrawingScope&) = delete;
        DrawingScope& operator=(const DrawingScope&) = delete;

    private:
        unsigned& depth;
    };

    // The question after every call that can run host code: whether to go on with the window.
    bool HasWindow_() const { return Lives() && Window() != nullptr; }

    void SetUpWindow_();
    void BindBackEnd_();
    void CreateSettingsDialog_();
    void SetUpMemorySurface_();
    void SetMemoryDCEverywhere_(HDC dc);
    void ClearWindowIfMemoryDrawn_();
    void FollowScreen_();
    void DrawFrame_();
    void PaintComposed_();
    void PaintFromMemory_();
    void ShowMemory_(HDC target);

    void ShowTray_();
    void RunCommand_(unsigned id);
    void ChooseBackEnd_(RenderingType type, const wchar_t* line);
    void MarkMenu_() const;

    void TakeReceivedBrushData_();
    void PassParams_();
    void RefreshView_();
    void ShowPickedColourOnce_();

    bool renderingTypeChanged = false;
    std::unique_ptr<Params> params;
    std::unique_ptr<Drawing> drawing;
    double renderScale = 1.0; // window pixels to memory bitmap; nothing changes it
    unsigned creationValue;
    HMODULE module;
    OverlayWindow window;
    bool useBrushDataServer = IsBrushDataServerWanted();
    std::unique_ptr<BrushDataServer> brushDataServer;
    std::vector<PenData> sampleReserve; // memory kept at hand; holds nothing
    PenData lastPenData{};              // the last sample of the most recent input
    BackEnds backEnds;
    Owned<ParamsView> paramsView; // the settings dialog; null until the window exists
    TrayMenu trayMenu;
    Owned<sc::WinGui::Tasktray> tasktray;
    FileVersion fileVersion;
    MemorySurface memorySurface;
    unsigned drawingDepth = 0;   // calls that engine, back-ends or memory surface are in use by
    bool surfaceIsStale = false; // the screen has changed since the surface was made
    RenderingType boundType = RenderingType::DirectComposition; // whose back-end the window is set up for
    bool isBoundWithoutSize = false; // to a window of no size, on which a back-end may have failed
};

} // namespace zq::LM
