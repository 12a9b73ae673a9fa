// The exported functions' bodies.
#include "interface/call_func.h"

#include "interface/instance.h"
#include "log/debug_log.h"
#include "platform/debug_switch.h"
#include "ui/tray.h"

#include <cwchar>
#include <iterator>

namespace zq::CallFunc {

namespace {

wchar_t g_sizeLine[4096];

} // namespace

LM_WindowHandle Create()
{
    LM::Log(LM::BASIC, L"zq::CallFunc::Create\n");
    return LM::CreateInstance();
}

void Destroy()
{
    LM::Log(LM::BASIC, L"zq::CallFunc::Destroy\n");
    LM::DestroyInstance();
}

void GetCopiedParams(LM_Params* params)
{
    LM::Log(LM::BASIC, L"zq::CallFunc::GetCopiedParams\n");
    const int length =
        std::swprintf(g_sizeLine, std::size(g_sizeLine), L"sizeof (zq::LM::Params) is %d in the DLL.\n",
                      static_cast<int>(sizeof(LM_Params)));
    if (length >= 0) {
        LM::Log(LM::BASIC, g_sizeLine);
    }
    if (LM::Core* core = LM::CurrentCore()) {
        if (LM::Drawing* engine = core->Ink().Engine()) {
            engine->GetCopiedParams(params);
        }
    }
}

void GetElmSize(std::uint64_t* paramsSize, std::uint64_t* penDataSize)
{
    LM::Log(LM::BASIC, L"zq::CallFunc::GetElmSize\n");
    if (paramsSize != nullptr) {
        *paramsSize = sizeof(LM_Params);
    }
    if (penDataSize != nullptr) {
        *penDataSize = sizeof(LM_PenData);
    }
}

LM_WindowHandle GetWindowHandle()
{
    LM::Log(LM::BASIC, L"zq::CallFunc::GetWindowHandle\n");
    return LM::CurrentWindow();
}

void InputPenDataArray(const LM_PenData* samples, std::uint64_t count)
{
    LM::Log(LM::NORMAL,
            L"zq::CallFunc::InputPenDataArray\n"); // higher than the rest: it comes with every batch
    LM::InputPenData(samples, static_cast<std::size_t>(count));
}

// The size is not looked at: the message tells its own.
void SetData_from_App(void* message, std::uint64_t)
{
    LM::Log(LM::BASIC, L"zq::CallFunc::SetData_from_App\n");
    if (LM::Core* core = LM::CurrentCore()) {
        const LM::Hold hold(*core);
        core->Ink().Apply(static_cast<std::uint8_t*>(message));
    }
}

void SetDebugLevel(std::uint32_t level)
{
    LM::Log(LM::BASIC, L"zq::CallFunc::SetDebugLevel\n");
    LM::SetDebugLevel(level);
    if (!LM::DebugSwitch) {
        LM::g_userInterfaceSwitch = level != 0;
    }
    LM::Log(LM::BASIC, L"Debug level set\n");
}

void SetParams(const LM_Params* params)
{
    LM::Log(LM::BASIC, L"zq::CallFunc::SetParams\n");
    if (LM::Core* core = LM::CurrentCore()) {
        const LM::Hold hold(*core);
        core->Ink().Replace(*params);
    }
}

} // namespace zq::CallFunc
