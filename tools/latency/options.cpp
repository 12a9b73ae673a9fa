// Reads the command line of lumora-latency.
#include "latency/options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>

namespace lumora::latency {

OptionsReading ReadOptions(std::vector<std::string> arguments)
{
    OptionsReading reading;
    Options& options = reading.options;
    CLI::App app("From a sample's call to its pixel in the memory of the X server, for two hosts in turns.",
                 "lumora-latency");
    app.add_option("--screen", options.screen, "the file in which Xvfb keeps its screen (-fbdir)");
    app.add_option("--first", options.firstName, "the name of the first host");
    app.add_option("--second", options.secondName, "the name of the second one");
    app.add_option("--first-exchange", options.firstExchange, "its file, which is made here");
    app.add_option("--second-exchange", options.secondExchange, "the second one's");
    app.add_option("--csv", options.csv, "appends each time to this file");
    app.add_option("--samples", options.samples, "of an isolated run; a stream has four times as many")
        ->check(CLI::Range(1, 1024));
    app.add_option("--runs", options.runs, "paired runs, each A B B A")->check(CLI::Range(1, 99));
    app.add_flag("--heads", options.heads, "writes the names of the columns, and measures nothing");
    app.add_flag("--mouse", options.byMouse, "measures a program that is there, by the display's mouse");
    app.add_option("--hold", options.mouse.heldKeys,
                   "keys that are held while it writes (Control_L Shift_L)");
    app.add_option("--button", options.mouse.button, "a button that is held while it writes");
    try {
        std::reverse(arguments.begin(), arguments.end()); // it takes them from the back
        app.parse(std::move(arguments));
        options.mouse.samples = options.samples;
    } catch (const CLI::ParseError& error) {
        std::ostringstream text;
        reading.status = app.exit(error, text, text);
        reading.text = text.str();
    }
    return reading;
}

} // namespace lumora::latency
