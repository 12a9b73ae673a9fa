// The global hotkey Ctrl+Alt+Shift+W and the atom that names it.
#include "ui/hotkey.h"

namespace zq::LM {

void Hotkey::Register(HWND newOwner)
{
    constexpr UINT Modifiers = MOD_ALT | MOD_CONTROL | MOD_SHIFT;
    constexpr UINT KeyW = 0x57;
    Unregister();
    const ATOM atom = GlobalAddAtomW(L"Lumora Hotkey");
    if (atom == 0) {
        return;
    }
    if (RegisterHotKey(newOwner, atom, Modifiers, KeyW) == 0) {
        GlobalDeleteAtom(atom);
        return;
    }
    owner = newOwner;
    id = atom;
}

void Hotkey::Unregister()
{
    if (id == 0) {
        return;
    }
    if (owner != nullptr) {
        UnregisterHotKey(owner, id);
        owner = nullptr;
    }
    GlobalDeleteAtom(id);
    id = 0;
}

} // namespace zq::LM
