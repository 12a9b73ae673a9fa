// lumora-pen: write on the screen, over whatever is there.
#include "program/conductor.h"
#include "program/instance_guard.h"
#include "program/tell.h"
#include "text/file_name.h"
#include "text/wide_text.h"

#include <shlobj.h>

#include <cstdlib>
#include <memory>

namespace {

using lumora_pen::Options;
using lumora_pen::Stream;

constexpr int ExitDone = 0;
constexpr int ExitFailed = 1;
constexpr int ExitWrongOptions = 2;
constexpr int ExitHandedOver = 3;

void TellFailure(const std::string& reason) { Tell(Stream::Error, "lumora-pen: " + reason + '\n'); }

struct TaskMemory {
    void operator()(wchar_t* text) const { CoTaskMemFree(text); }
};

// The user's own file, unless another one is named.
std::filesystem::path SettingsFile(const Options& options)
{
    if (!options.settingsFile.empty()) {
        return std::filesystem::absolute(lumora::text::PathOf(options.settingsFile));
    }
    wchar_t* folder = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &folder);
    const std::unique_ptr<wchar_t, TaskMemory> owner(folder);
    if (FAILED(result)) {
        throw lumora::Error("the system names no folder for settings; --settings FILE does");
    }
    return std::filesystem::path(folder) / L"Lumora" / L"lumora-pen.json";
}

int HandOver(const Options& options)
{
    if (!lumora_pen::HandOver(ArgumentsOf(options))) {
        TellFailure("another Lumora Pen is running and has not taken these options");
        return ExitFailed;
    }
    return options.quit ? ExitDone : ExitHandedOver;
}

int Write(const Options& options)
{
    const lumora_pen::InstanceGuard guard;
    if (!guard.IsFirst()) {
        return HandOver(options);
    }
    if (options.quit) {
        TellFailure("no Lumora Pen is running");
        return ExitFailed;
    }
    lumora_pen::SettingsStore store(SettingsFile(options));
    const std::vector<std::string> complaints = store.Load();
    lumora_pen::Conductor conductor(options, store);
    conductor.Greet(complaints);
    conductor.Run();
    return ExitDone;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    try {
        const lumora_pen::OptionsReading reading =
            lumora_pen::ReadOptions(lumora::text::Utf8Arguments(__argc, __wargv));
        if (reading.isDone) {
            Tell(reading.isMistake ? Stream::Error : Stream::Output, reading.text);
            return reading.isMistake ? ExitWrongOptions : ExitDone;
        }
        return Write(reading.options);
    } catch (const std::exception& failure) {
        TellFailure(failure.what());
        return ExitFailed;
    }
}
