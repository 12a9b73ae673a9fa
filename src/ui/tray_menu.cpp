// The tray's menu and its radio marks.
#include "ui/tray_menu.h"

#include "resources/resource_ids.h"
#include "ui/log_commands.h"

namespace zq::LM {

namespace {

unsigned CommandOfType(RenderingType type)
{
    switch (type) {
    case RenderingType::Direct2D:
        return CommandDirect2D;
    case RenderingType::GDI:
        return CommandGDI;
    case RenderingType::DirectComposition:
        break;
    }
    return CommandDirectComposition;
}

} // namespace

void TrayMenu::Load(HMODULE module) { menu.reset(LoadMenuW(module, L"IDR_MENU_LUMORA_CORE_TASKTRAY")); }

HMENU TrayMenu::PopUp() const { return menu != nullptr ? GetSubMenu(menu.get(), 0) : nullptr; }

void TrayMenu::Mark(std::uint32_t logLevel, RenderingType type) const
{
    if (menu == nullptr) {
        return;
    }
    // Marks are for the eye; without one the commands work all the same.
    CheckMenuRadioItem(menu.get(), CommandLogNone, CommandLogAll, CommandOfLogLevel(logLevel), MF_BYCOMMAND);
    CheckMenuRadioItem(menu.get(), CommandDirectComposition, CommandGDI, CommandOfType(type), MF_BYCOMMAND);
}

} // namespace zq::LM
