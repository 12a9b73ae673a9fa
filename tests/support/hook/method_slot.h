// Stands between a module and the methods of the system's objects.
#pragma once

#include "support/hook/import_table.h"

#include <windows.h>

#include <array>
#include <bit>
#include <cstddef>
#include <utility>

namespace zq::LM::test {

namespace slots {

// Keeps what was at the slot before.
void Patch(void* object, std::size_t slot, void* hook);
void* Original(const void* object, std::size_t slot);

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

// A method by its place among an interface's: MethodSlot<&IUnknown::AddRef>.
template <auto Method> struct MethodSlot;

template <typename Interface, typename Result, typename... Arguments,
          Result (Interface::*Method)(Arguments...)>
struct MethodSlot<Method> {
    using Function = Result(STDMETHODCALLTYPE*)(Interface*, Arguments...);

    // From now on the object, and every other of its class, is called here.
    static void Hook(void* object, Function hook) { slots::Patch(object, Number_(), AsAddress(hook)); }

    // What the object would have done.
    static Result Real(Interface* self, Arguments... arguments)
    {
        return reinterpret_cast<Function>(slots::Original(self, Number_()))(self, arguments...);
    }

private:
    // It is called on an object whose functions return their own numbers.
    static std::size_t Number_()
    {
        static const std::size_t number = slots::Find(Method);
        return number;
    }
};

} // namespace zq::LM::test
