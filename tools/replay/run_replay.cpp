// From the command line to the exit status.
#include "run_replay.h"
#include "console.h"
#include "latency.h"
#include "library_file.h"
#include "player.h"
#include "read_recording.h"
#include "save_recording.h"
#include "selftest.h"
#include "text/file_name.h"

namespace lumora::replay {

namespace {

constexpr int ExitDone = 0;
constexpr int ExitFailed = 1;
constexpr int ExitWrongInput = 2;
constexpr int ExitStopped = 130;

std::filesystem::path LibraryOf(const Options& options)
{
    return options.library.empty() ? LibraryBesideProgram() : text::PathOf(options.library);
}

int Play(const Options& options, const Recording& recording, const MakeUnderlay& makeUnderlay)
{
    const Library library = LoadLibraryFile(LibraryOf(options));
    const std::shared_ptr<void> underlay = makeUnderlay ? makeUnderlay(library.module) : nullptr;
    const StopSignal stop;
    PlayResult result;
    {
        InkSession session(library, options);
        const ScreenSize screen = session.DrawableSize();
        const Placement placement =
            options.pixels ? Placement::OfPixels(recording.yUpwards, screen) : Placement(recording, screen);
        const Timeline timeline(MakePenSamples(recording, placement), options.speed);
        result = Player(session, stop, timeline, options.screenshots, options.switches).Play();
    }
    for (const TakenScreenshot& taken : result.screenshots) {
        taken.picture.SaveAsPng(text::PathOf(taken.file));
        PrintLine(Channel::Output, "saved " + taken.file);
    }
    PrintLine(Channel::Output, Describe(Summarise(result.latenciesMs)));
    return result.stopped ? ExitStopped : ExitDone;
}

int Save(const Options& options, const Recording& recording)
{
    const RecordingFormat format = FormatOf(options.save).value_or(RecordingFormat::Svc);
    if (const auto reason = SaveRecording(recording, text::PathOf(options.save), format, options.overwrite)) {
        PrintLine(Channel::Error, "lumora-replay: " + options.save + " cannot be saved: " + *reason);
        return ExitFailed;
    }
    PrintLine(Channel::Output, "saved " + options.save);
    return ExitDone;
}

template <typename Work> int OnTheScreen(Work work)
{
    // Pixels mean pixels: without this a scaled desktop would be photographed smaller than it is.
    SetProcessDPIAware();
    try {
        return work();
    } catch (const std::exception& failure) {
        PrintLine(Channel::Error, std::string("lumora-replay: ") + failure.what());
        return ExitFailed;
    }
}

} // namespace

int RunReplay(const std::vector<std::string>& arguments, const MakeUnderlay& makeUnderlay)
{
    const auto parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<OptionsError>(&parsed)) {
        PrintLine(Channel::Error, "lumora-replay: " + error->reason + " (see lumora-replay --help)");
        return ExitWrongInput;
    }
    const auto& options = std::get<Options>(parsed);
    if (options.help) {
        PrintLine(Channel::Output, HelpText());
        return ExitDone;
    }
    if (!options.selftest.empty()) {
        return OnTheScreen([&] {
            Selftest(LibraryOf(options), text::PathOf(options.selftest), makeUnderlay);
            return ExitDone;
        });
    }
    const RecordingResult read = ReadRecording(text::PathOf(options.recording), options.timeUnit);
    if (const auto* error = std::get_if<RecordingError>(&read)) {
        PrintLine(Channel::Error, DescribeError(options.recording, *error));
        return ExitWrongInput;
    }
    if (!options.save.empty()) {
        return Save(options, std::get<Recording>(read));
    }
    return OnTheScreen([&] { return Play(options, std::get<Recording>(read), makeUnderlay); });
}

} // namespace lumora::replay
