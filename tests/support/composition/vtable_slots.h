// Entries of the tables of virtual functions through which the system's objects are called.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <utility>

namespace zq::LM::test {

// From now on the object, and every other of its class, is called at this slot. Keeps what was there before.
void PatchSlot(void* object, std::size_t slot, void* hook);

// What was at the slot of this object before.
void* OriginalOfSlot(const void* object, std::size_t slot);

namespace slots {

inline constexpr std::size_t MostSlots = 128;

template <std::size_t Index> std::size_t Number() { return Index; }

using Table = std::array<std::size_t (*)(), MostSlots>;

template <std::size_t... Indices> constexpr Table NumberedTable(std::index_sequence<Indices...>)
{
    return {Number<Indices>...};
}

inline constexpr Table Numbered = NumberedTable(std::make_index_sequence<MostSlots>());

struct NumberedObject {
    const Table::value_type* table = Numbered.data();
};

template <typename Interface, typename Result, typename... Arguments>
std::size_t Call(Interface* object, Result (Interface::*method)(Arguments...))
{
    return (object->*std::bit_cast<std::size_t (Interface::*)()>(method))();
}

template <typename Interface, typename Result, typename... Arguments>
std::size_t Find(Result (Interface::*method)(Arguments...))
{
    static NumberedObject object;
    void* volatile hidden = &object; // the compiler must not know that this is no Interface
    return Call(static_cast<Interface*>(hidden), method);
}

} // namespace slots

// The slot of a virtual function: it is called on an object whose functions return their own numbers.
template <auto Method> std::size_t SlotOf()
{
    static const std::size_t slot = slots::Find(Method);
    return slot;
}

} // namespace zq::LM::test
