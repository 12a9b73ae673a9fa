// Records what a module asks of the system.
#include "support/system_calls.h"

#include <cstdio>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

namespace zq::LM::test {

namespace {

struct State {
    std::vector<std::string> lines;
    std::map<HWND, std::string> windows;
    std::map<const void*, std::string> objects; // device contexts and what is selected into them
    int newWindows = 0;
};

State g_state;

bool IsCallOf(const std::string& line, const std::string& function)
{
    return line.starts_with(function + "(");
}

std::string Narrow(const wchar_t* text)
{
    std::string narrow;
    for (const wchar_t character : std::wstring_view(text)) {
        narrow += static_cast<char>(character);
    }
    return narrow;
}

void WINAPI RecordWideLine(const wchar_t* text) { AddLine("log: " + Narrow(text)); }
void WINAPI RecordNarrowLine(const char* text) { AddLine("log: " + std::string(text)); }

} // namespace

std::string ShowNumber(std::int64_t number)
{
    constexpr std::int64_t FirstHexadecimal = 0x10000;
    char text[32];
    std::snprintf(text, sizeof(text), number < FirstHexadecimal ? "%lld" : "0x%llX",
                  static_cast<long long>(number));
    return text;
}

std::string ShowText(const wchar_t* text)
{
    if (text == nullptr) {
        return "null";
    }
    std::string shown;
    if (IS_INTRESOURCE(text)) {
        shown += '#';
        shown += ShowNumber(static_cast<std::int64_t>(reinterpret_cast<ULONG_PTR>(text)));
    } else {
        shown += '"';
        shown += Narrow(text);
        shown += '"';
    }
    return shown;
}

std::string ShowWindowHandle(HWND window)
{
    if (window == nullptr) {
        return "null";
    }
    if (window == HWND_TOPMOST) {
        return "topmost";
    }
    std::string& name = g_state.windows[window];
    if (name.empty()) {
        name = "window " + std::to_string(++g_state.newWindows);
    }
    return name;
}

std::string ShowClass(const WNDCLASSEXW& description) { return ShowText(description.lpszClassName); }

std::string ShowPointer(const void* pointer)
{
    if (pointer == nullptr) {
        return "null";
    }
    const auto found = g_state.objects.find(pointer);
    return found != g_state.objects.end() ? found->second : "*";
}

void AddLine(std::string line) { g_state.lines.push_back(std::move(line)); }

void AddCall(const char* function, const std::vector<std::string>& arguments)
{
    std::string line = function;
    line += '(';
    const char* separator = "";
    for (const std::string& argument : arguments) {
        line += separator;
        line += argument;
        separator = ", ";
    }
    line += ')';
    AddLine(std::move(line));
}

// Handles are given again by the system, so a name holds until the next maker of the same handle.
void NameResult(const char* function, const void* result, const std::vector<std::string>& arguments)
{
    const std::string_view maker = function;
    if (result == nullptr) {
        return;
    }
    if (maker == "GetDC") {
        g_state.objects[result] = "dc of " + arguments[0];
    } else if (maker == "CreateSolidBrush") {
        g_state.objects[result] = "brush " + arguments[0];
    } else if (maker == "CreateCompatibleDC") {
        g_state.objects[result] = "memory dc";
    } else if (maker == "CreateCompatibleBitmap") {
        g_state.objects[result] = "bitmap";
    } else if (maker == "LoadImageW" && arguments[2] == ShowNumber(IMAGE_ICON)) {
        g_state.objects[result] = "icon";
    } else if (maker == "LoadMenuW") {
        g_state.objects[result] = "menu";
    } else if (maker == "GetSubMenu") {
        g_state.objects[result] = "popup " + arguments[1];
    }
}

SystemCalls::SystemCalls(HMODULE module) : module(module)
{
    g_state = {};
    g_state.objects[module] = "module";
}

SystemCalls::~SystemCalls()
{
    // A function that was patched before must get its first entry back last.
    while (!hooks.empty()) {
        hooks.pop_back();
    }
    g_state = {};
}

void SystemCalls::RecordLog()
{
    struct LogPatches {
        explicit LogPatches(HMODULE module)
            : wide(module, "KERNEL32.dll", "OutputDebugStringW", AsAddress(RecordWideLine)),
              narrow(module, "KERNEL32.dll", "OutputDebugStringA", AsAddress(RecordNarrowLine))
        {
        }
        ImportPatch wide;
        ImportPatch narrow;
    };
    hooks.push_back(std::make_shared<LogPatches>(module));
}

void SystemCalls::Name(HWND window, const std::string& name) { g_state.windows[window] = name; }

std::vector<std::string> SystemCalls::Take() { return std::exchange(g_state.lines, {}); }

std::size_t SystemCalls::Count(const std::string& function) const { return Of(function).size(); }

std::vector<std::string> SystemCalls::Of(const std::string& function) const
{
    std::vector<std::string> found;
    std::copy_if(g_state.lines.begin(), g_state.lines.end(), std::back_inserter(found),
                 [&](const std::string& line) { return IsCallOf(line, function); });
    return found;
}

} // namespace zq::LM::test
