// Reads the command line, and writes one for the instance that runs already.
#include "settings/options.h"

#include "settings/help.h"
#include "settings/words.h"
#include "text/file_name.h"
#include "text/one_line.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace lumora_pen {

namespace {

constexpr unsigned MostLogLevel = 255;

constexpr char HelpOption[] = "--help";
constexpr char VersionOption[] = "--version";
constexpr char SettingsOption[] = "--settings";
constexpr char BoardOption[] = "--board";
constexpr char ColourOption[] = "--colour";
constexpr char BackEndOption[] = "--back-end";
constexpr char RecordOption[] = "--record";
constexpr char QuitOption[] = "--quit";
constexpr char LogLevelOption[] = "--log-level";

// A mistake on the command line: one line for a person.
struct Mistake {
    std::string text;
};

[[noreturn]] void Refuse(std::string_view option, std::string_view wanted, std::string_view value)
{
    throw Mistake{std::string(option) + " takes " + std::string(wanted) + ", not " + Quoted(value) + "."};
}

class CommandLine {
public:
    CommandLine()
    {
        app.set_help_flag(); // the library's own would need every other option to be right
        app.allow_extras();
        app.allow_windows_style_options(false); // the same on every system
        app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        app.add_flag(std::string("-h,") + HelpOption, helpIsGiven);
        app.add_flag(VersionOption, versionIsGiven);
        app.add_flag(BoardOption, boardIsGiven);
        app.add_flag(QuitOption, quitIsGiven);
        settingsOption = app.add_option(SettingsOption, settingsFile)->type_name("FILE");
        colourOption = app.add_option(ColourOption, colourText)->type_name("COLOUR");
        backEndOption = app.add_option(BackEndOption, backEndText)->type_name("NAME");
        recordOption = app.add_option(RecordOption, recordFile)->type_name("FILE");
        logLevelOption = app.add_option(LogLevelOption, logLevelText)->type_name("N");
    }

    // Throws a Mistake, or the library's.
    void Parse(const std::vector<std::string>& arguments)
    {
        for (const std::string& argument : arguments) {
            RequireNoValue_(argument);
        }
        app.parse(
            std::vector<std::string>(arguments.rbegin(), arguments.rend())); // it takes them from the back
    }

    bool AsksForHelp() const { return helpIsGiven; }
    bool AsksForVersion() const { return versionIsGiven; }

    // Throws a Mistake.
    Options Read() const
    {
        const std::vector<std::string> unknown = app.remaining();
        if (!unknown.empty()) {
            throw Mistake{Quoted(unknown.front()) + " is no option."};
        }
        if (quitIsGiven) {
            RequireQuitAlone_();
        }
        Options options;
        options.board = boardIsGiven;
        options.quit = quitIsGiven;
        options.settingsFile = FileOf_(*settingsOption, SettingsOption, settingsFile);
        options.recordFile = FileOf_(*recordOption, RecordOption, recordFile);
        if (colourOption->count() != 0) {
            options.colour = ColourOf_();
        }
        if (backEndOption->count() != 0) {
            options.backEnd = ParseBackEnd(backEndText);
            if (!options.backEnd) {
                Refuse(BackEndOption, "composition, direct2d or gdi", backEndText);
            }
        }
        if (logLevelOption->count() != 0) {
            options.logLevel = LogLevelOf_();
        }
        return options;
    }

private:
    // The library would take "--board=no" for its opposite.
    static void RequireNoValue_(const std::string& argument)
    {
        const std::size_t sign = argument.find('=');
        const std::string option = argument.substr(0, sign);
        for (const char* const flag : {HelpOption, VersionOption, BoardOption, QuitOption}) {
            if (sign != std::string::npos && option == flag) {
                Refuse(option, "no value", std::string_view(argument).substr(sign + 1));
            }
        }
    }

    void RequireQuitAlone_() const
    {
        for (const CLI::Option* const option :
             {settingsOption, colourOption, backEndOption, recordOption, logLevelOption}) {
            if (option->count() != 0) {
                throw Mistake{std::string(QuitOption) + " goes with no other option, and " +
                              option->get_name() + " is given too."};
            }
        }
        if (boardIsGiven) {
            throw Mistake{std::string(QuitOption) + " goes with no other option, and " + BoardOption +
                          " is given too."};
        }
    }

    // An option in the place of the name means that the name was forgotten.
    static std::string FileOf_(const CLI::Option& option, std::string_view name, const std::string& file)
    {
        if (option.count() != 0 && (file.empty() || file.starts_with("--"))) {
            Refuse(name, "the name of a file", file);
        }
        return file;
    }

    std::string ColourOf_() const
    {
        if (colourText.size() == 1 && colourText[0] >= '1' && colourText[0] <= '0' + int{ColourCount}) {
            return colourText;
        }
        const auto colour = ParseColour(colourText);
        if (!colour) {
            Refuse(ColourOption, "1 to 6, or RRGGBB in hexadecimal", colourText);
        }
        return TextOf(*colour).substr(1);
    }

    unsigned LogLevelOf_() const
    {
        const char* const end = logLevelText.data() + logLevelText.size();
        unsigned level = 0;
        const auto [read, error] = std::from_chars(logLevelText.data(), end, level);
        if (error != std::errc() || read != end || level > MostLogLevel) {
            Refuse(LogLevelOption, "a whole number from 0 to 255", logLevelText);
        }
        return level;
    }

    bool helpIsGiven = false;
    bool versionIsGiven = false;
    bool boardIsGiven = false;
    bool quitIsGiven = false;
    std::string settingsFile;
    std::string colourText;
    std::string backEndText;
    std::string recordFile;
    std::string logLevelText;
    CLI::App app;
    CLI::Option* settingsOption = nullptr;
    CLI::Option* colourOption = nullptr;
    CLI::Option* backEndOption = nullptr;
    CLI::Option* recordOption = nullptr;
    CLI::Option* logLevelOption = nullptr;
};

OptionsReading Done(std::string text)
{
    OptionsReading reading;
    reading.isDone = true;
    reading.text = std::move(text);
    return reading;
}

OptionsReading Wrong(const std::string& mistake)
{
    OptionsReading reading =
        Done("lumora-pen: " + lumora::text::OnOneLine(mistake) + "\nlumora-pen --help tells all options.\n");
    reading.isMistake = true;
    return reading;
}

std::string AbsoluteName(const std::string& file)
{
    std::error_code error;
    const std::string name =
        lumora::text::Utf8Of(std::filesystem::absolute(lumora::text::PathOf(file), error));
    return error || name.empty() ? file : name;
}

} // namespace

OptionsReading ReadOptions(const std::vector<std::string>& arguments)
{
    try {
        CommandLine commandLine;
        commandLine.Parse(arguments);
        if (commandLine.AsksForHelp()) {
            return Done(HelpText());
        }
        if (commandLine.AsksForVersion()) {
            return Done(VersionText());
        }
        OptionsReading reading;
        reading.options = commandLine.Read();
        return reading;
    } catch (const Mistake& mistake) {
        return Wrong(mistake.text);
    } catch (const CLI::Error& error) {
        return Wrong(error.what());
    }
}

std::vector<std::string> ArgumentsOf(const Options& options)
{
    std::vector<std::string> arguments;
    const auto add = [&arguments](const char* option, const std::string& value) {
        arguments.emplace_back(option);
        arguments.push_back(value);
    };
    if (!options.settingsFile.empty()) {
        add(SettingsOption, AbsoluteName(options.settingsFile));
    }
    if (options.board) {
        arguments.emplace_back(BoardOption);
    }
    if (options.colour) {
        add(ColourOption, *options.colour);
    }
    if (options.backEnd) {
        add(BackEndOption, TextOf(*options.backEnd));
    }
    if (!options.recordFile.empty()) {
        add(RecordOption, AbsoluteName(options.recordFile));
    }
    if (options.quit) {
        arguments.emplace_back(QuitOption);
    }
    if (options.logLevel) {
        add(LogLevelOption, std::to_string(*options.logLevel));
    }
    return arguments;
}

} // namespace lumora_pen
