// What the commands of the tray's menu stand for.
#include "ui/menu_commands.h"

#include "log/debug_log.h"
#include "resources/resource_ids.h"

#include <commdlg.h>

#include <array>
#include <string>

namespace zq::LM {

namespace {

template <typename Value> struct Command {
    unsigned id;
    Value value;
};

constexpr std::array<Command<std::uint32_t>, 5> LogCommands = {{{CommandLogNone, NONE},
                                                                {CommandLogBasic, BASIC},
                                                                {CommandLogNormal, NORMAL},
                                                                {CommandLogDetailed, DETAILED},
                                                                {CommandLogAll, ALL}}};

constexpr std::array<Command<RenderingType>, 3> RenderingCommands = {
    {{CommandDirectComposition, RenderingType::DirectComposition},
     {CommandDirect2D, RenderingType::Direct2D},
     {CommandGDI, RenderingType::GDI}}};

template <typename Commands> auto ValueOf(const Commands& commands, unsigned id)
{
    std::optional<decltype(commands.front().value)> value;
    for (const auto& command : commands) {
        if (command.id == id) {
            value = command.value;
        }
    }
    return value;
}

template <typename Commands, typename Value> unsigned IdOf(const Commands& commands, Value value)
{
    for (const auto& command : commands) {
        if (command.value == value) {
            return command.id;
        }
    }
    return commands.front().id;
}

// The process's current directory, which is the host's. The dialog moves it to the folder that the user looks
// into; it is put back when this ends.
class KeptDirectory {
public:
    KeptDirectory() : path(CurrentDirectory_()) {}
    ~KeptDirectory()
    {
        if (!path.empty()) {
            SetCurrentDirectoryW(path.c_str()); // fails when it has gone meanwhile: nothing better is known
        }
    }
    KeptDirectory(const KeptDirectory&) = delete;
    KeptDirectory& operator=(const KeptDirectory&) = delete;

private:
    // Empty when there is none. Another thread may change to a longer one between two questions.
    static std::wstring CurrentDirectory_()
    {
        std::wstring path(MAX_PATH, L'\0');
        for (;;) {
            const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data());
            const bool fits = length < path.size(); // else it counts the terminator too
            path.resize(length);
            if (fits) {
                return path;
            }
        }
    }

    std::wstring path;
};

} // namespace

std::optional<std::uint32_t> LogLevelOfCommand(unsigned command) { return ValueOf(LogCommands, command); }

std::optional<RenderingType> RenderingTypeOfCommand(unsigned command)
{
    return ValueOf(RenderingCommands, command);
}

unsigned CommandOfLogLevel(std::uint32_t level) { return IdOf(LogCommands, level); }

unsigned CommandOfRenderingType(RenderingType type) { return IdOf(RenderingCommands, type); }

void AskForRateFile(HWND owner)
{
    constexpr DWORD NameLength = 260;
    char name[NameLength] = "FPS.csv";
    OPENFILENAMEA request{};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner;
    request.lpstrFilter = "Text files {*.csv}\0*.csv\0";
    request.lpstrFile = name;
    request.nMaxFile = NameLength;
    request.Flags = OFN_OVERWRITEPROMPT | OFN_FILEMUSTEXIST;
    const KeptDirectory kept;
    GetSaveFileNameA(&request); // chosen or cancelled, it is the same
}

} // namespace zq::LM
