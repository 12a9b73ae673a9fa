/* The library's functions for lumora/lumora.hpp, linked or loaded at run time, and the fence around calls
 * that may raise an exception. */
#ifndef LUMORA_LIBRARY_HPP
#define LUMORA_LIBRARY_HPP

#include "lumora/error.hpp"
#include "lumora/lumora.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace lumora {

namespace detail {

#ifdef _MSC_VER

/* Visual C++ has no handler for the exceptions of a library that another compiler has built, but a structured
 * one. The two codes are those of its own exceptions and of GCC's and clang's; what else is raised is none of
 * ours. */
inline bool IsRaisedByCxx(unsigned long code) { return code == 0xE06D7363UL || code == 0x20474343UL; }

template <typename Call> bool Returns(Call& call)
{
    __try {
        call();
        return true;
    } __except (IsRaisedByCxx(GetExceptionCode()) ? EXCEPTION_EXECUTE_HANDLER : EXCEPTION_CONTINUE_SEARCH) {
        return false;
    }
}

#else

template <typename Call> bool Returns(Call& call)
{
    try {
        call();
        return true;
    } catch (...) {
        return false;
    }
}

#endif

/* The library raises an exception when memory runs out, and stays usable. Here it becomes one of the host's
 * own. */
template <typename Call> void Fence(Call call)
{
    if (!Returns(call)) {
        throw Error("Lumora: out of memory");
    }
}

} /* namespace detail */

/* The functions of lumora/lumora.h under their own names without the prefix. A plain value. */
struct Library {
    decltype(&LM_Create) create = nullptr;
    decltype(&LM_Destroy) destroy = nullptr;
    decltype(&LM_GetCopiedParams) getCopiedParams = nullptr;
    decltype(&LM_GetElmSize) getElmSize = nullptr;
    decltype(&LM_GetWindowHandle) getWindowHandle = nullptr;
    decltype(&LM_InputPenDataArray) inputPenDataArray = nullptr;
    decltype(&LM_SetData_from_App) setDataFromApp = nullptr;
    decltype(&LM_SetDebugLevel) setDebugLevel = nullptr;
    decltype(&LM_SetParams) setParams = nullptr;
    HMODULE module = nullptr; /* of a library that was loaded */

    /* For a program that is linked with the import library. */
    static Library Linked()
    {
        Library library;
        library.create = &LM_Create;
        library.destroy = &LM_Destroy;
        library.getCopiedParams = &LM_GetCopiedParams;
        library.getElmSize = &LM_GetElmSize;
        library.getWindowHandle = &LM_GetWindowHandle;
        library.inputPenDataArray = &LM_InputPenDataArray;
        library.setDataFromApp = &LM_SetData_from_App;
        library.setDebugLevel = &LM_SetDebugLevel;
        library.setParams = &LM_SetParams;
        return library;
    }

    /* Loads the library: a bare name from the program's own folder, a full path from where it says, and
     * nothing from anywhere else. It stays loaded until the process ends: windows of it may outlive an
     * overlay, and its window classes do. Throws Error when there is none or one of its functions is missing.
     */
    static Library Load(const std::wstring& file = L"LumoraDLL.dll")
    {
        const bool isBareName = file.find_first_of(L"\\/") == std::wstring::npos;
        Library library;
        library.module =
            LoadLibraryExW(file.c_str(), nullptr,
                           isBareName ? LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32
                                      : LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (library.module == nullptr) {
            const DWORD reason = GetLastError();
            throw Error("Lumora: " + Utf8_(file) + " cannot be loaded, system error " +
                        std::to_string(reason));
        }
        Find_(library.module, "LM_Create", library.create);
        Find_(library.module, "LM_Destroy", library.destroy);
        Find_(library.module, "LM_GetCopiedParams", library.getCopiedParams);
        Find_(library.module, "LM_GetElmSize", library.getElmSize);
        Find_(library.module, "LM_GetWindowHandle", library.getWindowHandle);
        Find_(library.module, "LM_InputPenDataArray", library.inputPenDataArray);
        Find_(library.module, "LM_SetData_from_App", library.setDataFromApp);
        Find_(library.module, "LM_SetDebugLevel", library.setDebugLevel);
        Find_(library.module, "LM_SetParams", library.setParams);
        return library;
    }

    /* Throws Error when the library was built with other records than those of these headers. */
    void CheckRecords() const
    {
        std::uint64_t paramsSize = 0;
        std::uint64_t penDataSize = 0;
        getElmSize(&paramsSize, &penDataSize);
        if (paramsSize != sizeof(LM_Params) || penDataSize != sizeof(LM_PenData)) {
            throw Error("Lumora: the library's records have " + std::to_string(paramsSize) + " and " +
                        std::to_string(penDataSize) + " bytes, not those of these headers");
        }
    }

private:
    static std::string Utf8_(const std::wstring& text)
    {
        constexpr std::size_t MostBytesOfAUnit = 3;
        std::string utf8(MostBytesOfAUnit * text.size(), '\0');
        const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                             utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
        utf8.resize(static_cast<std::size_t>(size));
        return utf8;
    }

    template <typename Function> static void Find_(HMODULE module, const char* name, Function& function)
    {
        /* By way of void*: compilers warn about a direct cast between function types. */
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
        if (function == nullptr) {
            throw Error(std::string("Lumora: the library has no function ") + name);
        }
    }
};

} /* namespace lumora */

#endif
