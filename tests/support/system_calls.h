// Records what a module asks of the system: every chosen call with its arguments, in order, as a text.
#pragma once

#include "support/import_patch.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace zq::LM::test {

// A function's name as a template argument: each recorded function is a hook of its own.
template <std::size_t Size> struct FunctionName {
    constexpr FunctionName(const char (&text)[Size]) { std::copy_n(text, Size, value); }
    char value[Size]{};
};

// How arguments read: small numbers decimal, larger ones hexadecimal, texts in quotes, handles by what they
// are ("window 1", "dc of window 1", "memory dc", "bitmap", "brush 0xFF00FF"), other pointers as a star.
std::string ShowNumber(std::int64_t number);
std::string ShowText(const wchar_t* text); // or a resource's number
std::string ShowWindowHandle(HWND window);
std::string ShowClass(const WNDCLASSEXW& description);
std::string ShowPointer(const void* pointer);

template <typename Value> std::string Show(Value value)
{
    if constexpr (std::is_same_v<Value, HWND>) {
        return ShowWindowHandle(value);
    } else if constexpr (std::is_same_v<Value, const wchar_t*>) {
        return ShowText(value);
    } else if constexpr (std::is_same_v<Value, const WNDCLASSEXW*>) {
        return ShowClass(*value);
    } else if constexpr (std::is_pointer_v<Value>) {
        return ShowPointer(reinterpret_cast<const void*>(value));
    } else {
        return ShowNumber(static_cast<std::int64_t>(value));
    }
}

// The one list that all hooks write to.
void AddCall(const char* function, const std::vector<std::string>& arguments);
void AddLine(std::string line);
void NameResult(const char* function, const void* result, const std::vector<std::string>& arguments);

// One at a time. Calls pass on to what the module imported before, unless a test answers them itself.
class SystemCalls {
public:
    explicit SystemCalls(HMODULE module);
    ~SystemCalls();
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    template <FunctionName name, typename Result, typename... Arguments>
    void Record(const char* dll, Result(WINAPI*)(Arguments...))
    {
        Install_<name, Result, Arguments...>(dll);
    }

    // The same, and the test's own answer instead of the system's.
    template <FunctionName name, typename Result, typename... Arguments>
    void Answer(const char* dll, Result(WINAPI*)(Arguments...),
                std::type_identity_t<std::function<Result(Arguments...)>> answer)
    {
        Install_<name, Result, Arguments...>(dll);
        Hook<name, Result, Arguments...>::answer = std::move(answer);
    }

    // Puts the lines of the log among the calls, as "log: " and the text.
    void RecordLog();

    // Windows of the test that appear in calls.
    void Name(HWND window, const std::string& name);

    std::vector<std::string> Take(); // all since the last time
    std::size_t Count(const std::string& function) const;
    std::vector<std::string> Of(const std::string& function) const;

private:
    template <FunctionName name, typename Result, typename... Arguments> struct Hook {
        Hook(HMODULE module, const char* dll) : patch(module, dll, name.value, AsAddress(&Hook::Call))
        {
            original = reinterpret_cast<Result(WINAPI*)(Arguments...)>(patch.Original());
        }
        ~Hook()
        {
            original = nullptr;
            answer = nullptr;
        }
        Hook(const Hook&) = delete;
        Hook& operator=(const Hook&) = delete;

        static Result WINAPI Call(Arguments... arguments)
        {
            const std::vector<std::string> shown = {Show(arguments)...};
            AddCall(name.value, shown);
            if constexpr (std::is_void_v<Result>) {
                answer ? answer(arguments...) : original(arguments...);
            } else {
                const Result result = answer ? answer(arguments...) : original(arguments...);
                if constexpr (std::is_pointer_v<Result>) {
                    NameResult(name.value, reinterpret_cast<const void*>(result), shown);
                }
                return result;
            }
        }

        inline static Result(WINAPI* original)(Arguments...) = nullptr;
        inline static std::function<Result(Arguments...)> answer;
        ImportPatch patch;
    };

    template <FunctionName name, typename Result, typename... Arguments> void Install_(const char* dll)
    {
        using TheHook = Hook<name, Result, Arguments...>;
        if (TheHook::original == nullptr) {
            hooks.push_back(std::make_shared<TheHook>(module, dll));
        }
    }

    HMODULE module;
    std::vector<std::shared_ptr<void>> hooks;
};

} // namespace zq::LM::test
