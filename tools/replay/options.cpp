// Parses the command line of lumora-replay.
#include "options.h"
#include "save_recording.h"
#include "text/one_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <limits>
#include <string_view>

namespace lumora::replay {

namespace {

constexpr double MinSpeed = 0.001;
constexpr double MaxSpeed = 1000;

std::optional<std::uint32_t> ParseUnsigned(std::string_view text, int base = 10)
{
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole ? std::optional<std::uint32_t>(value) : std::nullopt;
}

std::optional<double> ParseSpeed(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole && value >= MinSpeed && value <= MaxSpeed ? std::optional<double>(value) : std::nullopt;
}

// Red is written first, but lies in the low byte of the library's colours.
std::optional<std::uint32_t> ParseColour(std::string_view text)
{
    constexpr std::size_t Digits = 6;
    const std::optional<std::uint32_t> rgb = text.size() == Digits ? ParseUnsigned(text, 16) : std::nullopt;
    if (!rgb) {
        return std::nullopt;
    }
    return (*rgb & 0xFFU) << 16 | (*rgb & 0xFF00U) | *rgb >> 16;
}

// An option that is followed by a value; `read` says whether it understood the value.
struct ValueOption {
    std::string_view name;
    std::string_view wanted;
    std::function<bool(std::string_view, Options&)> read;
};

struct FlagOption {
    std::string_view name;
    bool InkChanges::*flag;
};

constexpr std::array FlagOptions = {
    FlagOption{"--outline", &InkChanges::outline},
    FlagOption{"--no-line", &InkChanges::noLine},
    FlagOption{"--no-cursor", &InkChanges::noCursor},
    FlagOption{"--no-pressure", &InkChanges::noPressure},
    FlagOption{"--offset", &InkChanges::offset},
    FlagOption{"--zebra", &InkChanges::zebra},
    FlagOption{"--pick-colour", &InkChanges::pickColour},
};

constexpr std::string_view SaveOption = "--save";
constexpr std::string_view OverwriteOption = "--overwrite";
constexpr std::string_view SelftestOption = "--selftest";
constexpr std::string_view LibraryOption = "--dll";

constexpr std::string_view WholeNumber = "a whole number from 0 to 4294967295";

ValueOption InkNumber(std::string_view name, std::optional<std::uint32_t> InkChanges::*field)
{
    const auto read = [field](std::string_view text, Options& options) {
        options.ink.*field = ParseUnsigned(text);
        return (options.ink.*field).has_value();
    };
    return {name, WholeNumber, read};
}

std::optional<BackEnd> ParseBackEnd(std::string_view text)
{
    if (text == "gdi") {
        return BackEnd::Gdi;
    }
    if (text == "d2d") {
        return BackEnd::Direct2D;
    }
    return text == "composition" ? std::optional<BackEnd>(BackEnd::Composition) : std::nullopt;
}

bool ReadBackEnd(std::string_view text, Options& options)
{
    const std::optional<BackEnd> backEnd = ParseBackEnd(text);
    options.backEnd = backEnd.value_or(BackEnd::Composition);
    return backEnd.has_value();
}

bool ReadSpeed(std::string_view text, Options& options)
{
    const std::optional<double> speed = ParseSpeed(text);
    options.speed = speed.value_or(1);
    return speed.has_value();
}

// "MILLISECONDS:what is due then".
struct Moment {
    std::uint32_t atMs = 0;
    std::string_view due;
};

std::optional<Moment> ParseMoment(std::string_view text)
{
    // Only the first colon separates: what is due may be a file on a drive.
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon + 1 == text.size()) {
        return std::nullopt;
    }
    const std::optional<std::uint32_t> atMs = ParseUnsigned(text.substr(0, colon));
    return atMs ? std::optional<Moment>({*atMs, text.substr(colon + 1)}) : std::nullopt;
}

bool ReadScreenshot(std::string_view text, Options& options)
{
    const std::optional<Moment> moment = ParseMoment(text);
    if (moment) {
        options.screenshots.push_back({moment->atMs, std::string(moment->due)});
    }
    return moment.has_value();
}

bool ReadSwitch(std::string_view text, Options& options)
{
    const std::optional<Moment> moment = ParseMoment(text);
    const std::optional<BackEnd> backEnd = moment ? ParseBackEnd(moment->due) : std::nullopt;
    if (backEnd) {
        options.switches.push_back({moment->atMs, *backEnd});
    }
    return backEnd.has_value();
}

bool ReadColour(std::string_view text, Options& options)
{
    options.ink.colour = ParseColour(text);
    return options.ink.colour.has_value();
}

bool ReadLogLevel(std::string_view text, Options& options)
{
    const std::optional<std::uint32_t> level = ParseUnsigned(text);
    options.logLevel = level.value_or(0);
    return level.has_value();
}

bool ReadLibrary(std::string_view text, Options& options)
{
    options.library = text;
    return !text.empty();
}

bool ReadSelftest(std::string_view text, Options& options)
{
    options.selftest = text;
    return !text.empty();
}

bool ReadTimeUnit(std::string_view text, Options& options)
{
    options.timeUnit = ParseTimeUnit(text);
    return options.timeUnit.has_value();
}

bool ReadSave(std::string_view text, Options& options)
{
    options.save = text;
    return FormatOf(text).has_value();
}

const std::vector<ValueOption>& ValueOptions()
{
    static const std::vector<ValueOption> Table = {
        {"--backend", "gdi, d2d or composition", ReadBackEnd},
        {"--switch", "MILLISECONDS:gdi, d2d or composition", ReadSwitch},
        {"--speed", "a number from 0.001 to 1000", ReadSpeed},
        {"--screenshot", "MILLISECONDS:FILE.png", ReadScreenshot},
        {"--colour", "six hexadecimal digits, RRGGBB", ReadColour},
        InkNumber("--brush", &InkChanges::brushSize),
        InkNumber("--min-brush", &InkChanges::minBrushSize),
        InkNumber("--max-pressure", &InkChanges::maxPressure),
        InkNumber("--life", &InkChanges::inkLifeMs),
        {"--log-level", WholeNumber, ReadLogLevel},
        {LibraryOption, "the name of a file", ReadLibrary},
        {SelftestOption, "the name of a file", ReadSelftest},
        {"--time-unit", "s, ms or us", ReadTimeUnit},
        {SaveOption, "the name of a file that ends in .svc or .inkml", ReadSave},
    };
    return Table;
}

std::optional<OptionsError> ReadValue(const ValueOption& option, const std::string* value, Options& options)
{
    const std::string needs = std::string(option.name) + " needs " + std::string(option.wanted);
    if (value == nullptr) {
        return OptionsError{needs};
    }
    if (!option.read(*value, options)) {
        return OptionsError{needs + ", not \"" + *value + "\""};
    }
    return std::nullopt;
}

std::optional<OptionsError> ReadRecordingName(const std::string& name, Options& options)
{
    if (!options.recording.empty()) {
        return OptionsError{"only one recording can be played, not \"" + options.recording + "\" and \"" +
                            name + "\""};
    }
    if (name.empty()) {
        return OptionsError{"the recording's name is empty"};
    }
    options.recording = name;
    return std::nullopt;
}

// Reads the argument at `index`, and its value, if it takes one; leaves `index` at the last argument that was
// read.
std::optional<OptionsError> ReadArgument(const std::vector<std::string>& arguments, std::size_t& index,
                                         Options& options)
{
    const std::string& argument = arguments[index];
    if (!argument.starts_with('-')) {
        return ReadRecordingName(argument, options);
    }
    if (argument == "--help" || argument == "-h") {
        options.help = true;
        return std::nullopt;
    }
    if (argument == OverwriteOption) {
        options.overwrite = true;
        return std::nullopt;
    }
    if (argument == "--pixels") {
        options.pixels = true;
        return std::nullopt;
    }
    const auto isNamed = [&argument](const auto& option) { return option.name == argument; };
    const auto flag = std::find_if(FlagOptions.begin(), FlagOptions.end(), isNamed);
    if (flag != FlagOptions.end()) {
        options.ink.*(flag->flag) = true;
        return std::nullopt;
    }
    const auto valued = std::find_if(ValueOptions().begin(), ValueOptions().end(), isNamed);
    if (valued == ValueOptions().end()) {
        return OptionsError{"unknown option \"" + argument + "\""};
    }
    ++index;
    return ReadValue(*valued, index < arguments.size() ? &arguments[index] : nullptr, options);
}

bool IsAboutPlaying(std::string_view argument)
{
    constexpr std::array<std::string_view, 3> AboutFiles = {SaveOption, OverwriteOption, "--time-unit"};
    return argument.starts_with('-') &&
           std::find(AboutFiles.begin(), AboutFiles.end(), argument) == AboutFiles.end();
}

bool StandsBesideSelftest(std::string_view argument)
{
    return argument == SelftestOption || argument == LibraryOption || !argument.starts_with('-');
}

std::optional<OptionsError> CheckSelftest(const Options& options, const std::string& other)
{
    if (!options.recording.empty()) {
        return OptionsError{"--selftest plays no recording, not \"" + options.recording + "\""};
    }
    if (!other.empty()) {
        return OptionsError{other + " cannot stand beside --selftest"};
    }
    return std::nullopt;
}

// What no single argument can tell; `playing` is one of the options about playing, and `other` one of those
// that are not for a self-test, if there are any.
std::optional<OptionsError> CheckWhole(const Options& options, const std::string& playing,
                                       const std::string& other)
{
    if (!options.selftest.empty()) {
        return CheckSelftest(options, other);
    }
    if (options.recording.empty()) {
        return OptionsError{"no recording is given"};
    }
    if (!options.save.empty() && !playing.empty()) {
        return OptionsError{"--save plays nothing, so " + playing + " cannot stand beside it"};
    }
    if (options.save.empty() && options.overwrite) {
        return OptionsError{"--overwrite needs --save"};
    }
    return std::nullopt;
}

std::variant<Options, OptionsError> ParseAll(const std::vector<std::string>& arguments)
{
    Options options;
    std::string playing;
    std::string other;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--") {
            for (++i; i < arguments.size(); ++i) {
                if (auto error = ReadRecordingName(arguments[i], options)) {
                    return *error;
                }
            }
        } else if (auto error = ReadArgument(arguments, i, options)) {
            return *error;
        } else if (options.help) {
            return options;
        } else {
            playing = IsAboutPlaying(argument) ? argument : playing;
            other = StandsBesideSelftest(argument) ? other : argument;
        }
    }
    if (auto error = CheckWhole(options, playing, other)) {
        return *error;
    }
    const auto earlier = [](const auto& a, const auto& b) { return a.atMs < b.atMs; };
    std::stable_sort(options.screenshots.begin(), options.screenshots.end(), earlier);
    std::stable_sort(options.switches.begin(), options.switches.end(), earlier);
    return options;
}

} // namespace

std::variant<Options, OptionsError> ParseOptions(const std::vector<std::string>& arguments)
{
    auto parsed = ParseAll(arguments);
    if (auto* error = std::get_if<OptionsError>(&parsed)) { // quotes what it was given
        error->reason = text::OnOneLine(std::move(error->reason));
    }
    return parsed;
}

void ApplyInk(const InkChanges& changes, LM_Params& params)
{
    params.inkColor = changes.colour.value_or(params.inkColor);
    params.brushSize = changes.brushSize.value_or(params.brushSize);
    params.minBrushSize = changes.minBrushSize.value_or(params.minBrushSize);
    params.maxPressure = changes.maxPressure.value_or(params.maxPressure);
    params.inkDecayTime = changes.inkLifeMs.value_or(params.inkDecayTime);
    params.outline = changes.outline ? 1 : params.outline;
    params.line = changes.noLine ? 0 : params.line;
    params.cursor = changes.noCursor ? 0 : params.cursor;
    params.usePressure = changes.noPressure ? 0 : params.usePressure;
    params.useOffset = changes.offset ? 1 : params.useOffset;
    params.zebraMode = changes.zebra ? 1 : params.zebraMode;
    params.colorPicker = changes.pickColour ? 1 : params.colorPicker;
}

} // namespace lumora::replay
