// The menu commands that set the log level, and which of them stands for a level.
#include "ui/log_commands.h"

#include "log/debug_log.h"
#include "resources/resource_ids.h"

namespace zq::LM {

namespace {

struct LogCommand {
    unsigned command;
    std::uint32_t level;
};

constexpr LogCommand LogCommands[] = {{CommandLogNone, NONE},
                                      {CommandLogBasic, BASIC},
                                      {CommandLogNormal, NORMAL},
                                      {CommandLogDetailed, DETAILED},
                                      {CommandLogAll, ALL}};

} // namespace

std::optional<std::uint32_t> LogLevelOfCommand(unsigned command)
{
    for (const LogCommand& entry : LogCommands) {
        if (entry.command == command) {
            return entry.level;
        }
    }
    return std::nullopt;
}

unsigned CommandOfLogLevel(std::uint32_t level)
{
    for (const LogCommand& entry : LogCommands) {
        if (entry.level == level) {
            return entry.command;
        }
    }
    return CommandLogNone;
}

} // namespace zq::LM
