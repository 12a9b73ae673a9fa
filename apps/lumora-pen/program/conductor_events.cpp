// What the conductor hears, and what it says to a person.
#include "program/about_text.h"
#include "program/argument_message.h"
#include "program/conductor.h"
#include "program/file_version.h"
#include "program/pen_menu.h"
#include "program/scope_flag.h"
#include "text/file_name.h"
#include "text/wide_text.h"

#include <shellapi.h>

namespace lumora_pen {

void Conductor::TellFailure_(const std::exception& failure) noexcept
{
    try {
        Say_(failure.what());
    } catch (const std::exception&) {
        MessageBeep(MB_ICONERROR); // not even memory for words
    }
}

void Conductor::OnRawInput(HRAWINPUT input)
{
    Guard_([&] {
        LookAtHoldKey_(); // a report may come before the next tick
        raw.OnInput(input);
    });
}

void Conductor::OnRawDevice(WPARAM change, HANDLE device)
{
    Guard_([&] { raw.OnDeviceChange(change, device); });
}

void Conductor::OnTimer()
{
    Guard_([&] { Tick_(); });
}

void Conductor::OnKey(KeyCommand command)
{
    Guard_([&] {
        TakeWaitingInput_();
        Settings settings = CurrentSettings_();
        switch (command) {
        case KeyCommand::Board:
            return ChangeMode_(doing.mode == Mode::Board ? Mode::Trail : Mode::Board);
        case KeyCommand::EndBoard:
            return ChangeMode_(Mode::Trail);
        case KeyCommand::Wipe:
        case KeyCommand::WipeBoard:
            return Wipe_();
        case KeyCommand::Wider:
            settings.width = WiderThan(settings.width);
            break;
        case KeyCommand::Narrower:
            settings.width = NarrowerThan(settings.width);
            break;
        default:
            settings.colour =
                static_cast<std::size_t>(command) - static_cast<std::size_t>(KeyCommand::Colour1);
        }
        ChangeSettings_(settings);
    });
}

void Conductor::OnIcon(UINT mouseMessage)
{
    if (mouseMessage == WM_LBUTTONUP || mouseMessage == WM_RBUTTONUP) {
        Guard_([&] { ShowMenu_(); });
    }
}

void Conductor::OnShellRestarted() { icon.Add(); }

void Conductor::OnDisplayChanged()
{
    EndStroke_();
    Guard_([&] { raw.OnDisplayChange(); });
}

void Conductor::OnInterrupted() { EndStroke_(); }

void Conductor::OnSessionEnds()
{
    EndStroke_();
    Guard_([&] { // what fails now nobody would read
        WriteRecord_();
        LookAtDialog_();
        store.Keep();
    });
}

void Conductor::OnClose()
{
    isDone = true;
    CloseMenusAndBoxes_();
}

bool Conductor::OnHandedArguments(std::string_view bytes)
{
    bool isTaken = false;
    Guard_([&] {
        const auto arguments = UnpackArguments(bytes);
        const OptionsReading reading =
            arguments ? ReadOptions(*arguments) : OptionsReading{{}, true, true, {}};
        if (reading.isDone) {
            return;
        }
        if (!reading.options.settingsFile.empty() &&
            lumora::text::PathOf(reading.options.settingsFile) != store.File()) {
            return; // one person has one set of them
        }
        if (reading.options.quit) {
            OnClose();
        } else {
            UseOverlay_(reading.options.backEnd.value_or(ink.BackEnd()),
                        reading.options.logLevel.value_or(ink.LogLevel()));
            TakeOptions_(reading.options);
        }
        isTaken = true;
    });
    return isTaken;
}

void Conductor::TakeOptions_(const Options& options)
{
    if (options.colour) {
        ChangeSettings_(WithColour(CurrentSettings_(), *options.colour));
    }
    if (!options.recordFile.empty()) {
        StartRecord_(options.recordFile);
    }
    if (options.board) {
        ChangeMode_(Mode::Board);
    }
}

// Any program of the desktop may name the file, so none is replaced.
void Conductor::StartRecord_(const std::string& file)
{
    const std::filesystem::path path = lumora::text::PathOf(file);
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored)) {
        throw lumora::Error("there is such a file already, and a recording replaces none: " + file);
    }
    std::ofstream next(path, std::ios::binary); // now: nobody wants to hear it at the end
    if (!next.is_open()) {
        throw lumora::Error("the recording cannot be written to " + file);
    }
    if (const auto failure = WriteRecord_()) {
        Say_(*failure);
    }
    recordFile = std::move(next);
    record = {};
}

std::optional<std::string> Conductor::WriteRecord_()
{
    if (!recordFile.is_open()) {
        return std::nullopt;
    }
    record.Write(recordFile);
    recordFile.close();
    if (recordFile) {
        return std::nullopt;
    }
    recordFile.clear();
    return "The recording could not be written.";
}

void Conductor::LookAtDialog_()
{
    const bool isOpen = ink.IsDialogOpen();
    if (isOpen || hasDialog) {
        const Settings changed = WithChoicesOf(ink.Style(), doing.mode, dpi, store.Get());
        if (!(changed == store.Get())) {
            store.Set(changed);
            Apply_();
        }
    }
    if (hasDialog && !isOpen) {
        ApplyStyle_(); // the dialog has lowered what its sliders cannot show
    }
    hasDialog = isOpen;
}

void Conductor::LookAtFile_()
{
    if (!store.WasEdited()) {
        return;
    }
    const BackEndName before = store.Get().backEnd;
    std::string text;
    const auto complaints = store.LoadEdited();
    if (!complaints) {
        return; // it cannot be read yet
    }
    for (const std::string& complaint : *complaints) {
        text += complaint + '\n';
    }
    Apply_();
    ApplyStyle_();
    if (store.Get().backEnd != before) {
        UseOverlay_(store.Get().backEnd, ink.LogLevel());
    }
    Say_(text.empty() ? "The settings were read again." : text);
}

void Conductor::ShowMenu_()
{
    if (isAsking) {
        return;
    }
    EndStroke_();
    Choose_(ChoiceOf(AskMenu_()));
}

unsigned Conductor::AskMenu_()
{
    const ScopeFlag asking(isAsking);
    return ShowMenu(window.Handle(), MenuOf({doing.mode, CurrentSettings_(), ink.BackEnd(), keys.Taken()}));
}

void Conductor::Choose_(const MenuChoice& choice)
{
    Settings settings = CurrentSettings_();
    switch (choice.command) {
    case MenuCommand::None:
        return;
    case MenuCommand::Board:
        return OnKey(KeyCommand::Board);
    case MenuCommand::Wipe:
        return Wipe_();
    case MenuCommand::Settings:
        hasDialog = true;
        return ink.OpenDialog();
    case MenuCommand::OpenSettingsFile:
        return OpenSettingsFile_();
    case MenuCommand::About:
        return ShowAbout_();
    case MenuCommand::Quit:
        return OnClose();
    case MenuCommand::TrailWithPen:
        settings.trailWithPen = !settings.trailWithPen;
        break;
    case MenuCommand::TrailWithMouse:
        settings.trailWithMouse = !settings.trailWithMouse;
        break;
    case MenuCommand::Colour:
        settings.colour = choice.choice;
        break;
    case MenuCommand::Width:
        settings.width = MenuWidths[choice.choice];
        break;
    case MenuCommand::TrailLife:
        settings.trailLifeMs = MenuTrailLives[choice.choice];
        break;
    case MenuCommand::BoardLife:
        settings.boardLifeMs = MenuBoardLives[choice.choice];
        break;
    case MenuCommand::BackEnd:
        settings.backEnd = static_cast<BackEndName>(choice.choice);
        UseOverlay_(settings.backEnd, ink.LogLevel());
        break;
    }
    ChangeSettings_(settings);
}

void Conductor::OpenSettingsFile_()
{
    if (const auto failure = store.KeepAnyway()) { // there may be none yet
        return Say_(*failure);
    }
    ShellExecuteW(nullptr, L"open", L"notepad.exe", (L'"' + store.File().wstring() + L'"').c_str(), nullptr,
                  SW_SHOWNORMAL);
}

void Conductor::ShowAbout_()
{
    const ScopeFlag asking(isAsking);
    AboutFacts facts = {ink.BackEnd(),
                        store.Get(),
                        lumora::text::Utf8Of(store.File()),
                        VersionOf(GetModuleHandleW(L"LumoraDLL.dll")),
                        {},
                        {}};
    for (const std::wstring& name : raw.UnreadablePens()) {
        facts.unreadablePens.push_back(lumora::text::ToUtf8(name));
    }
    for (const std::wstring& name : raw.UnmappedPens()) {
        facts.unmappedPens.push_back(lumora::text::ToUtf8(name));
    }
    const std::string text = AboutText(facts);
    MessageBoxW(window.Handle(), lumora::text::ToWide(text).c_str(), L"About Lumora Pen", MB_OK);
}

void Conductor::TellTakenKeys_()
{
    std::string text;
    for (const NeededKey& key : keys.Taken()) {
        text += (text.empty() ? "" : ", ") + TextOf(key.key);
    }
    if (!text.empty()) {
        Say_(text + (keys.Taken().size() == 1 ? " is" : " are") +
             " taken by another program. All else works; other keys can be chosen in the menu under Keys.");
    }
}

void Conductor::Greet(const std::vector<std::string>& complaints)
{
    if (IsAnotherOverlayShown()) {
        Say_("Another program shows Lumora ink, too. Both draw, one above the other.");
    }
    std::string text;
    for (const std::string& complaint : complaints) {
        text += complaint + '\n';
    }
    text += *greeting;
    greeting.reset();
    if (store.IsNew() && text.empty()) {
        text = "Write with a pen, or hold " + TextOf(store.Get().hold) +
               " and move the mouse: the ink goes by itself. All else is in this icon's menu.";
    }
    if (!text.empty()) {
        Say_(text);
    }
}

void Conductor::Say_(const std::string& text)
{
    if (greeting) {
        *greeting += text + '\n';
    } else {
        icon.ShowBalloon("Lumora Pen", text);
    }
}

void Conductor::CloseMenusAndBoxes_()
{
    EndMenu();
    HWND box = GetLastActivePopup(window.Handle());
    if (box != window.Handle()) {
        PostMessageW(box, WM_CLOSE, 0, 0);
    }
}

} // namespace lumora_pen
