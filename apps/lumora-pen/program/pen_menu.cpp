// The menu as the system has it.
#include "program/pen_menu.h"
#include "text/wide_text.h"

#include <deque>

namespace lumora_pen {

namespace {

class Bitmap {
public:
    explicit Bitmap(HBITMAP made) : handle(made) {}
    ~Bitmap() { DeleteObject(handle); }
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    HBITMAP Get() const { return handle; }

private:
    HBITMAP handle;
};

using Bitmaps = std::deque<Bitmap>; // which stay where they are

class Menu {
public:
    Menu() : handle(CreatePopupMenu()) {}
    ~Menu() { DestroyMenu(handle); } // with its submenus
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    HMENU Get() const { return handle; }

private:
    HMENU handle;
};

// A square of the colour, as large as the menu's check marks. Nothing but the text is seen when there is
// none.
HBITMAP MakeSwatch(const lumora::Colour& colour)
{
    const int size = GetSystemMetrics(SM_CYMENUCHECK);
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 2 * size, size);
    ReleaseDC(nullptr, screen);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    HBRUSH brush = CreateSolidBrush(RGB(colour.red, colour.green, colour.blue));
    const RECT whole = {0, 0, 2 * size, size};
    FillRect(memory, &whole, brush);
    DeleteObject(brush);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return bitmap;
}

void Append(HMENU menu, const MenuItem& item, HMENU submenu, Bitmaps& bitmaps)
{
    std::wstring text = lumora::text::ToWide(item.text);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | (submenu != nullptr ? MIIM_SUBMENU : 0U);
    info.fType = text.empty() ? MFT_SEPARATOR : MFT_STRING;
    info.fState = item.isChecked ? MFS_CHECKED : MFS_UNCHECKED;
    info.wID = item.id;
    info.hSubMenu = submenu;
    if (!text.empty()) {
        info.fMask |= MIIM_STRING;
        info.dwTypeData = text.data();
    }
    if (item.swatch) {
        info.fMask |= MIIM_BITMAP;
        info.hbmpItem = bitmaps.emplace_back(MakeSwatch(*item.swatch)).Get();
    }
    InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

// Null when there is nothing to choose.
HMENU MakeSubmenu(const std::vector<MenuItem>& items, Bitmaps& bitmaps)
{
    HMENU menu = items.empty() ? nullptr : CreatePopupMenu();
    for (const MenuItem& item : items) {
        Append(menu, item, nullptr, bitmaps);
    }
    return menu;
}

} // namespace

unsigned ShowMenu(HWND owner, const std::vector<MenuEntry>& entries)
{
    Bitmaps bitmaps;
    const Menu menu;
    for (const MenuEntry& entry : entries) {
        Append(menu.Get(), entry.item, MakeSubmenu(entry.choices, bitmaps), bitmaps);
    }
    POINT place = {};
    GetCursorPos(&place);
    SetForegroundWindow(owner); // or a click beside the menu would not close it
    const BOOL chosen = TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, place.x,
                                         place.y, owner, nullptr);
    PostMessageW(owner, WM_NULL, 0, 0); // or the next menu would close at once
    return static_cast<unsigned>(chosen);
}

} // namespace lumora_pen
