// Any texts as command lines, each ended by a zero byte and the first byte naming the program: a program ends
// with a mistake that it names, or has options that it documents.
#include "latency/options.h"
#include "options.h"
#include "pen-host/options.h"
#include "program/argument_message.h"
#include "save_recording.h"
#include "settings/options.h"
#include "settings/words.h"

#include "fuzz/fuzz_target.h"

#include <algorithm>

namespace {

using Arguments = std::vector<std::string>;

bool IsOneLine(std::string_view text) { return !text.empty() && text.find('\n') == std::string_view::npos; }

template <typename Moments> bool AreInOrder(const Moments& moments)
{
    return std::is_sorted(moments.begin(), moments.end(),
                          [](const auto& a, const auto& b) { return a.atMs < b.atMs; });
}

void TryReplay(const Arguments& arguments)
{
    using namespace lumora::replay;
    const auto parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<OptionsError>(&parsed)) {
        Require(IsOneLine(error->reason), "replay: a mistake is not one line");
        return;
    }
    const auto& options = std::get<Options>(parsed);
    if (options.help) {
        return; // nothing else counts
    }
    Require(options.recording.empty() != options.selftest.empty(),
            "replay: neither recording nor self-test, or both");
    Require(options.save.empty() || FormatOf(options.save), "replay: saved in no format");
    Require(!options.overwrite || !options.save.empty(),
            "replay: something is overwritten, nothing is saved");
    Require(options.speed >= 0.001 && options.speed <= 1000, "replay: the speed is out of range");
    Require(options.ink.colour.value_or(0) <= 0xFFFFFF, "replay: the colour is out of range");
    Require(AreInOrder(options.screenshots) && AreInOrder(options.switches), "replay: not in order of time");
    for (const ScreenshotRequest& request : options.screenshots) {
        Require(!request.file.empty(), "replay: a screenshot has no file");
    }
}

bool Same(const lumora_pen::Options& a, const lumora_pen::Options& b)
{
    return a.settingsFile == b.settingsFile && a.board == b.board && a.colour == b.colour &&
           a.backEnd == b.backEnd && a.recordFile == b.recordFile && a.quit == b.quit &&
           a.logLevel == b.logLevel;
}

bool IsColour(const std::string& text)
{
    return (text.size() == 1 && text >= "1" && text <= "6") ||
           (text.size() == 6 && lumora_pen::ParseColour(text).has_value());
}

void TryPen(const Arguments& arguments)
{
    using namespace lumora_pen;
    const OptionsReading reading = ReadOptions(arguments);
    if (reading.isDone) {
        const bool isMistake = reading.text.starts_with("lumora-pen: ") &&
                               reading.text.ends_with("\nlumora-pen --help tells all options.\n");
        Require(!isMistake || std::count(reading.text.begin(), reading.text.end(), '\n') == 2,
                "pen: a mistake is not one line");
        Require(reading.isMistake == isMistake && !reading.text.empty(), "pen: a mistake is not named");
        return;
    }
    const Options& options = reading.options;
    Require(!options.colour || IsColour(*options.colour), "pen: no colour");
    Require(options.logLevel.value_or(0) <= 255, "pen: the log level is out of range");
    Require(!options.quit ||
                arguments.size() == std::size_t(std::count(arguments.begin(), arguments.end(), "--quit")),
            "pen: the end goes with something else");

    // What goes to the instance that runs already. Names become absolute once, and stay.
    const Arguments handed = ArgumentsOf(options);
    Require(UnpackArguments(PackArguments(handed)) == handed, "pen: other arguments after their way");
    const OptionsReading there = ReadOptions(handed);
    Require(!there.isDone, "pen: what is handed over is not taken");
    Require(ArgumentsOf(there.options) == handed, "pen: other options after their way");
    Options expected = options;
    expected.settingsFile = there.options.settingsFile;
    expected.recordFile = there.options.recordFile;
    Require(Same(there.options, expected), "pen: other options there");
}

// However a file is called, it is called so, or refused.
void TryPenFile(const std::string& name)
{
    for (const char* const option : {"--settings", "--record"}) {
        for (const Arguments& arguments :
             {Arguments{option, name}, Arguments{std::string(option) + '=' + name}}) {
            const lumora_pen::OptionsReading reading = lumora_pen::ReadOptions(arguments);
            const lumora_pen::Options& options = reading.options;
            const bool isSettings = std::string_view(option) == "--settings";
            Require(reading.isMistake || (isSettings ? options.settingsFile : options.recordFile) == name,
                    "pen: another name");
            Require(reading.isMistake == (name.empty() || name.starts_with("--")),
                    "pen: the wrong names are refused");
        }
    }
}

void TryPenHost(const Arguments& arguments)
{
    std::vector<std::wstring> wide;
    for (const std::string& argument : arguments) {
        wide.emplace_back(argument.begin(), argument.end());
    }
    const pen_host::Options options = pen_host::ReadOptions(wide);
    const bool isKnown =
        options.backEnd == L"composition" || options.backEnd == L"direct2d" || options.backEnd == L"gdi";
    Require(isKnown || !options.mistake.empty(), "pen host: no such back-end");
    Require(!options.help || options.mistake.empty(), "pen host: help and a mistake");
}

void TryLatency(const Arguments& arguments)
{
    const lumora::latency::OptionsReading reading = lumora::latency::ReadOptions(arguments);
    if (reading.status) {
        Require(!reading.text.empty(), "latency: ends without a word");
        return;
    }
    Require(reading.text.empty(), "latency: goes on and says something");
    Require(reading.options.samples >= 1 && reading.options.samples <= 1024,
            "latency: samples are out of range");
    Require(reading.options.runs >= 1 && reading.options.runs <= 99, "latency: runs are out of range");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const char program = text.empty() ? 'r' : text.front();
    text.remove_prefix(text.empty() ? 0 : 1);
    if (program == 'f') {
        TryPenFile(std::string(text.substr(0, text.find('\0'))));
        return 0;
    }
    const auto arguments = lumora_pen::UnpackArguments(text);
    if (!arguments) {
        return 0;
    }
    Require(lumora_pen::PackArguments(*arguments) == text, "pen: another message");
    switch (program) {
    case 'p':
        TryPen(*arguments);
        break;
    case 'h':
        TryPenHost(*arguments);
        break;
    case 'l':
        TryLatency(*arguments);
        break;
    default:
        TryReplay(*arguments);
    }
    return 0;
}
