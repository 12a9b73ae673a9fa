// How an imported function tells that it has failed.
#include "support/hook/import_failure.h"

#include <windows.h>

#include <algorithm>
#include <span>
#include <string_view>

namespace zq::LM::test {

namespace {

using Names = std::span<const std::string_view>;

bool Has(Names names, std::string_view name) { return std::ranges::find(names, name) != names.end(); }

bool BeginsLikeOneOf(Names beginnings, std::string_view name)
{
    return std::ranges::any_of(beginnings,
                               [&](std::string_view beginning) { return name.starts_with(beginning); });
}

// They compute, tell a state that is always there, or give no answer at all.
constexpr std::string_view CannotFail[] = {
    "DefWindowProcW",
    "EqualRect",
    "GetCurrentProcess",
    "GetCurrentProcessId",
    "GetCurrentThread",
    "GetCurrentThreadId",
    "GetLastError",
    "GetSystemTimeAsFileTime",
    "GetTickCount64",
    "InitCommonControls",
    "IsDBCSLeadByteEx",
    "IsDebuggerPresent",
    "IsRectEmpty",
    "IsWindow",
    "lstrlenW",
    "OutputDebugStringA",
    "OutputDebugStringW",
    "PostQuitMessage",
    "PtInRect",
    "SetLastError",
    "Sleep",
    "timeGetTime",
    "htonl",
    "htons",
    "WSAGetLastError",
    "GdiplusShutdown",
};

// The C++ runtime's own: exceptions, locks, storage of threads, the start of a module. It takes them for
// granted, and no code of the library's stands between.
constexpr std::string_view OfTheRuntime[] = {
    "AddVectoredExceptionHandler",
    "CloseHandle",
    "CreateEventA",
    "CreateSemaphoreA",
    "DeleteCriticalSection",
    "DuplicateHandle",
    "EnterCriticalSection",
    "FormatMessageA",
    "GetHandleInformation",
    "GetProcessAffinityMask",
    "GetThreadContext",
    "GetThreadPriority",
    "InitializeCriticalSection",
    "LeaveCriticalSection",
    "LocalFree",
    "OpenProcess",
    "RaiseException",
    "ReleaseSemaphore",
    "RemoveVectoredExceptionHandler",
    "ResetEvent",
    "ResumeThread",
    "RtlCaptureContext",
    "RtlLookupFunctionEntry",
    "RtlUnwindEx",
    "RtlVirtualUnwind",
    "SetEvent",
    "SetProcessAffinityMask",
    "SetThreadContext",
    "SetThreadPriority",
    "SuspendThread",
    "TlsAlloc",
    "TlsGetValue",
    "TlsSetValue",
    "TryEnterCriticalSection",
    "VirtualProtect",
    "VirtualQuery",
    "WaitForMultipleObjects",
    "WaitForSingleObject",
    "__C_specific_handler",
};

constexpr std::string_view GiveSomethingBack[] = {
    "Close",        "closesocket", "Delete",  "Destroy",    "End",        "GdipDelete",
    "GlobalDelete", "Kill",        "Release", "Unregister", "WSACleanup",
};

constexpr std::string_view AnswerHresults[] = {"d2d1.dll", "d3d11.dll", "dcomp.dll", "dwrite.dll",
                                               "dxgi.dll"};
constexpr std::string_view AnswerColours[] = {"GetPixel", "SetBkColor", "SetDCBrushColor", "SetTextColor"};

std::string Lower(std::string text)
{
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return text;
}

std::intptr_t FailureAnswer(const std::string& dll, const std::string& function)
{
    constexpr std::intptr_t GdiplusOutOfMemory = 3;
    if (Has(AnswerHresults, dll)) {
        return E_FAIL;
    }
    if (dll == "gdiplus.dll") {
        return GdiplusOutOfMemory;
    }
    if (dll == "ws2_32.dll") {
        return -1;
    }
    return Has(AnswerColours, function) ? static_cast<std::intptr_t>(CLR_INVALID) : 0;
}

} // namespace

std::optional<ImportFailure> FailureOf(const std::string& dll, const std::string& function)
{
    constexpr std::string_view Allocate[] = {"malloc", "calloc", "realloc"};
    const std::string name = Lower(dll);
    const bool isCRuntime =
        name == "msvcrt.dll" || name == "ucrtbase.dll" || name.starts_with("api-ms-win-crt");
    if (Has(CannotFail, function) || Has(OfTheRuntime, function) ||
        (isCRuntime && !Has(Allocate, function))) {
        return std::nullopt;
    }
    return ImportFailure{FailureAnswer(name, function), BeginsLikeOneOf(GiveSomethingBack, function)};
}

} // namespace zq::LM::test
