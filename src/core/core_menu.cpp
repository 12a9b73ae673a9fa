// The Core's side of the tray: icon, menu and the menu's commands.
#include "core/core.h"
#include "log/debug_log.h"
#include "render/rendering_type.h"
#include "resources/resource_ids.h"
#include "ui/log_commands.h"
#include "ui/rate_file_dialog.h"
#include "ui/tray_message.h"

namespace zq::LM {

void Core::ShowTray_()
{
    if (tasktray != nullptr) {
        tasktray->SetUp(Window(), module, TrayMessage, IconLumora);
        tasktray->SetTip(L"Lumora Core");
        tasktray->Show(); // a shell that refuses the icon leaves the hotkey
        if (!HasWindow_()) {
            return;
        }
    }
    trayMenu.Load(module);
    window.ListenForShell();
}

void Core::OnMenuWanted()
{
    const HMENU menu = trayMenu.PopUp();
    if (tasktray != nullptr && menu != nullptr) {
        tasktray->PopUp(menu);
    }
}

// The new shell knows nothing of the icon.
void Core::OnShellRestarted()
{
    if (tasktray != nullptr) {
        tasktray->Show();
    }
}

void Core::OnCommand(unsigned id)
{
    RunCommand_(id);
    if (!Lives()) {
        return;
    }
    window.Invalidate();
    MarkMenu_();
}

void Core::RunCommand_(unsigned id)
{
    if (const std::optional<std::uint32_t> level = LogLevelOfCommand(id)) {
        SetDebugLevel(*level); // the user-interface switch stays as it is
        return;
    }
    switch (id) {
    case CommandSettings:
        if (paramsView != nullptr) {
            paramsView->Open();
        }
        break;
    case CommandSaveFrameRates:
        AskForRateFile(Window());
        break;
    case CommandDirectComposition:
        ChooseBackEnd_(RenderingType::DirectComposition, L"Direct Composition is set.\n");
        break;
    case CommandDirect2D:
        ChooseBackEnd_(RenderingType::Direct2D, L"Direct2D is set.\n");
        break;
    case CommandGDI:
        ChooseBackEnd_(RenderingType::GDI, L"GDI is set.\n");
        break;
    default:
        break;
    }
}

void Core::ChooseBackEnd_(RenderingType type, const wchar_t* line)
{
    // Never back to false: choosing the old type again still rebuilds.
    renderingTypeChanged = renderingTypeChanged || g_renderingType != type;
    g_renderingType = type;
    Log(BASIC, line);
}

void Core::MarkMenu_() const { trayMenu.Mark(GetDebugLevel(), g_renderingType); }

} // namespace zq::LM
