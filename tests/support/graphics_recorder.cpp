// Records what the test program itself asks of GDI and GDI+.
#include "support/graphics_recorder.h"

#include "platform/win32/gdiplus_flat.h"

#include <cstddef>
#include <map>
#include <set>
#include <sstream>
#include <type_traits>
#include <utility>

namespace zq::LM::test {

namespace {

namespace flat = Gdiplus::DllExports;

struct State {
    std::vector<std::string> calls;
    std::map<const void*, std::string> names;
    std::set<std::string> failing;
};

State g_state;

// A text as a template argument: each recorded function is a function of its own.
template <std::size_t Size> struct FixedText {
    constexpr FixedText(const char (&source)[Size])
    {
        for (std::size_t i = 0; i < Size; ++i) {
            text[i] = source[i];
        }
    }
    char text[Size]{};
};

std::string NameOf(const void* handle)
{
    if (handle == nullptr) {
        return "null";
    }
    const auto found = g_state.names.find(handle);
    return found != g_state.names.end() ? found->second : "other";
}

template <typename Value> std::string Print(Value value)
{
    std::ostringstream out;
    if constexpr (std::is_same_v<Value, const wchar_t*>) {
        for (; *value != L'\0'; ++value) {
            out << static_cast<char>(*value);
        }
    } else if constexpr (std::is_pointer_v<Value>) {
        out << NameOf(value);
    } else if constexpr (std::is_enum_v<Value>) {
        out << static_cast<int>(value);
    } else if constexpr (std::is_unsigned_v<Value>) {
        out << "0x" << std::hex << value;
    } else {
        out << value;
    }
    return out.str();
}

// Only handles that the call gives back through a pointer become known; the pointer itself says nothing.
template <typename Value> std::string PrintArgument(Value value) { return Print(value); }
template <typename Handle> std::string PrintArgument(Handle** place)
{
    static_cast<void>(place);
    return "out";
}

template <typename Value> const void* HandleIn(Value) { return nullptr; }
template <typename Handle> const void* HandleIn(Handle** place) { return *place; }

template <typename Value> const void* AsHandle(Value value)
{
    if constexpr (std::is_pointer_v<Value>) {
        return value;
    } else {
        static_cast<void>(value);
        return nullptr;
    }
}

// `Made` is what to call a handle that the function gives; empty for none.
template <FixedText Function, FixedText Made, typename Signature> struct Hook;

template <FixedText Function, FixedText Made, typename Result, typename... Arguments>
struct Hook<Function, Made, Result(Arguments...)> {
    static inline Result(WINAPI* original)(Arguments...) = nullptr;

    static Result WINAPI Call(Arguments... arguments)
    {
        std::string line = std::string(Function.text) + '(';
        const char* separator = "";
        ((line += separator + PrintArgument(arguments), separator = ", "), ...);
        line += ')';
        if (g_state.failing.count(Function.text) != 0) {
            g_state.calls.push_back(line + " fails");
            return Result();
        }
        if constexpr (std::is_void_v<Result>) {
            g_state.calls.push_back(line);
            original(arguments...);
        } else {
            const Result result = original(arguments...);
            const void* made = AsHandle(result);
            (static_cast<void>(made = HandleIn(arguments) != nullptr ? HandleIn(arguments) : made), ...);
            if constexpr (Made.text[0] != '\0') {
                if (made != nullptr && NameOf(made) == "other") {
                    g_state.names[made] = Made.text;
                }
                line += " = " + NameOf(made);
            }
            g_state.calls.push_back(line);
            return result;
        }
    }
};

template <FixedText Function, FixedText Made, typename Signature>
std::unique_ptr<ImportPatch> Patch(const char* dll)
{
    if (FindImport(GetModuleHandleW(nullptr), Function.text) == nullptr) {
        return nullptr; // what the program does not import it does not call
    }
    using Recorded = Hook<Function, Made, Signature>;
    auto patch = std::make_unique<ImportPatch>(GetModuleHandleW(nullptr), dll, Function.text,
                                               AsAddress(Recorded::Call));
    Recorded::original = reinterpret_cast<decltype(Recorded::original)>(patch->Original());
    return patch;
}

} // namespace

GraphicsRecorder::GraphicsRecorder()
{
    g_state = {};
    constexpr const char* Gdi = "GDI32.dll";
    patches.push_back(Patch<"CreateSolidBrush", "brush", decltype(::CreateSolidBrush)>(Gdi));
    patches.push_back(Patch<"CreatePen", "pen", decltype(::CreatePen)>(Gdi));
    patches.push_back(Patch<"CreateCompatibleDC", "memory", decltype(::CreateCompatibleDC)>(Gdi));
    patches.push_back(Patch<"CreateCompatibleBitmap", "bitmap", decltype(::CreateCompatibleBitmap)>(Gdi));
    patches.push_back(Patch<"SelectObject", "previous", decltype(::SelectObject)>(Gdi));
    patches.push_back(Patch<"DeleteObject", "", decltype(::DeleteObject)>(Gdi));
    patches.push_back(Patch<"DeleteDC", "", decltype(::DeleteDC)>(Gdi));
    patches.push_back(Patch<"SetDCBrushColor", "", decltype(::SetDCBrushColor)>(Gdi));
    patches.push_back(Patch<"PatBlt", "", decltype(::PatBlt)>(Gdi));
    patches.push_back(Patch<"BitBlt", "", decltype(::BitBlt)>(Gdi));
    patches.push_back(Patch<"StretchBlt", "", decltype(::StretchBlt)>(Gdi));
    patches.push_back(Patch<"SetStretchBltMode", "", decltype(::SetStretchBltMode)>(Gdi));
    patches.push_back(Patch<"MoveToEx", "", decltype(::MoveToEx)>(Gdi));
    patches.push_back(Patch<"LineTo", "", decltype(::LineTo)>(Gdi));
    patches.push_back(Patch<"SetBkMode", "", decltype(::SetBkMode)>(Gdi));
    patches.push_back(Patch<"SetTextColor", "", decltype(::SetTextColor)>(Gdi));
    patches.push_back(Patch<"TextOutW", "", decltype(::TextOutW)>(Gdi));

    constexpr const char* GdiPlus = "gdiplus.dll";
    patches.push_back(Patch<"GdiplusStartup", "", decltype(Gdiplus::GdiplusStartup)>(GdiPlus));
    patches.push_back(Patch<"GdiplusShutdown", "", decltype(Gdiplus::GdiplusShutdown)>(GdiPlus));
    patches.push_back(Patch<"GdipCreateFromHDC", "graphics", decltype(flat::GdipCreateFromHDC)>(GdiPlus));
    patches.push_back(Patch<"GdipDeleteGraphics", "", decltype(flat::GdipDeleteGraphics)>(GdiPlus));
    patches.push_back(Patch<"GdipCreatePen1", "pen", decltype(flat::GdipCreatePen1)>(GdiPlus));
    patches.push_back(Patch<"GdipDeletePen", "", decltype(flat::GdipDeletePen)>(GdiPlus));
    patches.push_back(Patch<"GdipSetPenStartCap", "", decltype(flat::GdipSetPenStartCap)>(GdiPlus));
    patches.push_back(Patch<"GdipSetPenEndCap", "", decltype(flat::GdipSetPenEndCap)>(GdiPlus));
    patches.push_back(Patch<"GdipDrawLine", "", decltype(flat::GdipDrawLine)>(GdiPlus));
    patches.push_back(Patch<"GdipDrawLineI", "", decltype(flat::GdipDrawLineI)>(GdiPlus));
}

GraphicsRecorder::~GraphicsRecorder() = default;

void GraphicsRecorder::Name(const void* handle, const std::string& name) { g_state.names[handle] = name; }

void GraphicsRecorder::Fail(const std::string& function) { g_state.failing.insert(function); }

std::vector<std::string> GraphicsRecorder::Take() { return std::exchange(g_state.calls, {}); }

} // namespace zq::LM::test
