// What pointers and handles are called in recorded calls.
#include "support/hook/names.h"

#include <map>
#include <mutex>

namespace zq::LM::test {

namespace {

std::mutex g_mutex;
std::map<const void*, std::string> g_names;
int g_windows = 0;

// Those of which there is only one kind, whatever they are made of.
const std::map<std::string, std::string> NamesByMaker = {
    {"CreateCompatibleDC", "memory dc"},
    {"CreateCompatibleBitmap", "bitmap"},
    {"CreatePen", "pen"},
    {"GdipCreateFromHDC", "graphics"},
    {"GdipCreatePen1", "pen"},
    {"LoadMenuW", "menu"},
};

std::string NameByMaker(const std::string& maker, const std::vector<std::string>& arguments)
{
    constexpr const char* IconType = "1";
    const auto found = NamesByMaker.find(maker);
    if (found != NamesByMaker.end()) {
        return found->second;
    }
    if (maker == "GetDC") {
        return "dc of " + arguments[0];
    }
    if (maker == "CreateSolidBrush") {
        return "brush " + arguments[0];
    }
    if (maker == "LoadImageW" && arguments[2] == IconType) {
        return "icon";
    }
    return maker == "GetSubMenu" ? "popup " + arguments[1] : std::string();
}

} // namespace

void GiveName(const void* handle, const std::string& name)
{
    const std::lock_guard lock(g_mutex);
    g_names[handle] = name;
}

std::string NameOf(const void* handle)
{
    if (handle == nullptr) {
        return "null";
    }
    const std::lock_guard lock(g_mutex);
    const auto found = g_names.find(handle);
    return found != g_names.end() ? found->second : "*";
}

std::string NameOf(HWND window)
{
    if (window == nullptr) {
        return "null";
    }
    if (window == HWND_TOPMOST) {
        return "topmost";
    }
    const std::lock_guard lock(g_mutex);
    std::string& name = g_names[window];
    if (name.empty()) {
        name = "window " + std::to_string(++g_windows);
    }
    return name;
}

void ForgetNames()
{
    const std::lock_guard lock(g_mutex);
    g_names.clear();
    g_windows = 0;
}

void NameResult(const std::string& function, const void* result, const std::vector<std::string>& arguments)
{
    const std::string name = NameByMaker(function, arguments);
    if (result != nullptr && !name.empty()) {
        GiveName(result, name);
    } else if (result != nullptr && function == "SelectObject" && NameOf(result) == "*") {
        GiveName(result, "previous");
    }
}

} // namespace zq::LM::test
