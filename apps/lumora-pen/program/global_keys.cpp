// RegisterHotKey.
#include "program/global_keys.h"

#include <algorithm>

namespace lumora_pen {

namespace {

bool Contains(const std::vector<NeededKey>& keys, const NeededKey& key)
{
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

// Only widths go on changing while their key is down.
bool Repeats(KeyCommand command) { return command == KeyCommand::Wider || command == KeyCommand::Narrower; }

} // namespace

bool GlobalKeys::Has(KeyCommand command) const
{
    return std::any_of(registered.begin(), registered.end(),
                       [command](const NeededKey& key) { return key.command == command; });
}

GlobalKeys::~GlobalKeys() { Set({}); }

bool GlobalKeys::Set(const std::vector<NeededKey>& needed)
{
    const auto isLeft = [&](const NeededKey& key) {
        if (Contains(needed, key)) {
            return false;
        }
        UnregisterHotKey(receiver, static_cast<int>(key.command));
        return true;
    };
    registered.erase(std::remove_if(registered.begin(), registered.end(), isLeft), registered.end());

    std::vector<NeededKey> refused;
    for (const NeededKey& key : needed) {
        if (Contains(registered, key)) {
            continue;
        }
        const UINT modifiers = key.key.modifiers | (Repeats(key.command) ? 0U : MOD_NOREPEAT);
        const bool isOurs =
            RegisterHotKey(receiver, static_cast<int>(key.command), modifiers, key.key.key) != 0;
        (isOurs ? registered : refused).push_back(key);
    }
    const bool hasChanged = refused != taken;
    taken = std::move(refused);
    return hasChanged;
}

} // namespace lumora_pen
