// Brings together input, overlay, Board, icon and settings.
#pragma once

#include "ink/needs.h"
#include "ink/stroke_feed.h"
#include "input/raw_input.h"
#include "program/board_ink.h"
#include "program/global_keys.h"
#include "program/ink_overlay.h"
#include "program/menu_model.h"
#include "program/notification_icon.h"
#include "program/pen_window.h"
#include "program/sample_record.h"
#include "program/settings_store.h"
#include "settings/options.h"

#include <cstdint>
#include <fstream>

namespace lumora_pen {

class Conductor final : PenWindowEvents {
public:
    // Throws lumora::Error when nothing can be written on.
    Conductor(const Options& options, SettingsStore& store);
    ~Conductor();
    Conductor(const Conductor&) = delete;
    Conductor& operator=(const Conductor&) = delete;

    // Says what a person has to know at the start, in one go.
    void Greet(const std::vector<std::string>& complaints);

    // Until a person ends it. Throws lumora::Error when something could not be kept.
    void Run();

private:
    // What the window hears. None of them throws.
    void OnRawInput(HRAWINPUT input) override;
    void OnRawDevice(WPARAM change, HANDLE device) override;
    void OnKey(KeyCommand command) override;
    void OnIcon(UINT mouseMessage) override;
    void OnShellRestarted() override;
    void OnDisplayChanged() override;
    void OnInterrupted() override;
    void OnSessionEnds() override;
    bool OnHandedArguments(std::string_view bytes) override;
    void OnClose() override;
    void OnTimer() override;
    template <typename Action> void Guard_(Action action) noexcept;
    void TellFailure_(const std::exception& failure) noexcept;

    // Strokes.
    void TakeBatch_(const InputBatch& batch);
    void TakeSteps_(const StrokeSteps& steps);
    void EndStroke_();
    void Wipe_();
    void TakeWaitingInput_(); // the system hands keys out before what was written before them

    // What time brings: the hold key, resting pens, an edited file, a dialog.
    void Tick_();
    void LookAtHoldKey_();
    void LookAtDialog_();
    void LookAtFile_();
    void LookAfterOverlay_();

    // Changes.
    Settings CurrentSettings_(); // with what the library's dialog says by now
    void Apply_();
    void ApplyStyle_();
    void ChangeSettings_(const Settings& changed);
    void ChangeMode_(Mode mode);
    void EnterMode_(Mode mode);
    void UseOverlay_(BackEndName backEnd, unsigned logLevel);
    void TakeOptions_(const Options& options);
    void StartRecord_(const std::string& file);
    std::optional<std::string> WriteRecord_(); // a reason when that fails

    // What a person sees.
    void ShowMenu_();
    unsigned AskMenu_(); // the id of what was chosen, or 0
    void Choose_(const MenuChoice& choice);
    void ShowAbout_();
    void OpenSettingsFile_();
    void TellTakenKeys_();
    void TellReplacement_(BackEndName wanted);
    void Say_(const std::string& text);
    void CloseMenusAndBoxes_();

    SettingsStore& store;
    PenWindow window;
    NotificationIcon icon;
    InkOverlay ink;
    GlobalKeys keys;
    RawInput raw;
    BoardInk board;
    StrokeFeed feed;
    SampleRecord record;
    std::ofstream recordFile;
    Doing doing;
    lumora::Params style;                               // as it was set last
    int dpi = UnscaledDpi;                              // of the monitor on which the last stroke began
    std::optional<std::string> greeting{std::in_place}; // what is said before Greet
    bool isAsking = false;                              // a menu or a box is open
    bool hasDialog = false;                             // the library's is open
    bool hasToldNoOverlay = false;
    bool isDone = false;
    std::uint32_t lastTick = 0;
    std::uint32_t lastSample = 0;
    std::uint32_t lastLook = 0; // at what changes seldom
};

// Nothing may be thrown through the system. What fails is told, and the program goes on.
template <typename Action> void Conductor::Guard_(Action action) noexcept
{
    try {
        action();
    } catch (const std::exception& failure) {
        TellFailure_(failure);
    }
}

} // namespace lumora_pen
