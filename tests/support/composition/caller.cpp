// Who calls: tells the system's graphics libraries from the rest.
#include "support/composition/caller.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace zq::LM::test {

namespace {

std::vector<HMODULE> g_systemModules;

} // namespace

void FindSystemModules()
{
    g_systemModules.clear();
    for (const wchar_t* name : {L"d2d1.dll", L"dwrite.dll", L"d3d11.dll", L"d3d10core.dll", L"dxgi.dll",
                                L"wined3d.dll", L"dcomp.dll"}) {
        if (HMODULE module = GetModuleHandleW(name)) {
            g_systemModules.push_back(module);
        }
    }
}

bool IsInSystem(const void* address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const wchar_t*>(address), &module);
    return std::find(g_systemModules.begin(), g_systemModules.end(), module) != g_systemModules.end();
}

} // namespace zq::LM::test
