// Owned objects that may be missing.
#pragma once

#include <memory>
#include <new>
#include <system_error>
#include <utility>

namespace zq::LM {

// Null when memory runs out, or what a mutex or a thread is made of: its owner works on without the part that
// it could not make.
template <typename Type, typename... Arguments> std::unique_ptr<Type> MakeOrNull(Arguments&&... arguments)
{
    try {
        return std::make_unique<Type>(std::forward<Arguments>(arguments)...);
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (const std::system_error&) {
        return nullptr;
    }
}

} // namespace zq::LM
