// The overlay's place in the shell's notification area.
#include "ui/tray.h"

#include "platform/make_or_null.h"
#include "resources/resource_ids.h"
#include "ui/menu_commands.h"

namespace zq::LM {

Tray::Tray() : icon(MakeOrNull<sc::WinGui::Tasktray>().release()) {}

void Tray::ShowIcon(HWND window, HMODULE module)
{
    if (icon != nullptr) {
        icon->SetUp(window, module, TrayMessage, IconLumora);
        icon->SetTip(L"Lumora Core");
        icon->Show();
    }
}

void Tray::MakeMenu(HMODULE module) { menu.reset(LoadMenuW(module, L"IDR_MENU_LUMORA_CORE_TASKTRAY")); }

void Tray::ShowIconAgain()
{
    if (icon != nullptr) {
        icon->Show();
    }
}

void Tray::PopUp()
{
    const HMENU opens = menu != nullptr ? GetSubMenu(menu.get(), 0) : nullptr;
    if (icon != nullptr && opens != nullptr) {
        icon->PopUp(opens);
    }
}

void Tray::Mark(std::uint32_t logLevel, RenderingType type) const
{
    if (menu == nullptr) {
        return;
    }
    // Marks are for the eye; without one the commands work all the same.
    CheckMenuRadioItem(menu.get(), CommandLogNone, CommandLogAll, CommandOfLogLevel(logLevel), MF_BYCOMMAND);
    CheckMenuRadioItem(menu.get(), CommandDirectComposition, CommandGDI, CommandOfRenderingType(type),
                       MF_BYCOMMAND);
}

void Tray::End()
{
    icon.reset();
    menu.reset();
}

} // namespace zq::LM
