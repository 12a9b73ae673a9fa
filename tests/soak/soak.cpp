// The long run.
#include "soak/soak.h"

#include "soak/clock.h"
#include "soak/pen.h"

#include <algorithm>
#include <iomanip>
#include <stdexcept>

namespace zq::LM::soak {

namespace {

std::size_t IndexOf(BackEnd backEnd) { return backEnd == BackEnd::GDI ? 0 : 1; }

// Empty where there was no frame.
void WriteTimes(std::ostream& csv, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    for (const double part : {0.5, 0.99}) {
        csv << ',';
        if (!times.empty()) {
            csv << times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))];
        }
    }
}

} // namespace

void Soak::Run(double seconds, double secondsARow, std::ostream& csv)
{
    csv << "seconds,gdi_objects,user_objects,kernel_handles,windows,dialogs,memory_blocks,classes,windows_"
           "made,"
           "left_windows,rebuilds,private_kb,gdi_frames,direct2d_frames,inputs,settings_opened,restarts,"
           "looks,ghosts,"
           "unseen,"
           "gdi_seen,direct2d_seen,gdi_p50_us,gdi_p99_us,direct2d_p50_us,direct2d_p99_us\n";
    for (const Scene& scene : Tour(random)) {
        Play_(scene);
    }
    const double begin = Seconds();
    WriteRow_(0, csv);
    bool mayUseDirect2D = false;
    for (double due = secondsARow; due <= seconds; due += secondsARow) {
        while (Seconds() - begin < due) {
            Play_(RandomScene(random, mayUseDirect2D));
        }
        WriteRow_(Seconds() - begin, csv);
        mayUseDirect2D = !mayUseDirect2D && due < seconds / 2;
    }
}

void Soak::Play_(const Scene& scene)
{
    host.SetLogLevel(scene.logLevel);
    if (scene.restarts || scene.looksForInk) {
        host.CloseSettings();
    }
    if (scene.restarts) {
        host.Restart();
        ++interval.restarts;
    }
    host.SetRecord(scene.record);
    if (scene.rebuilds) {
        host.Choose(host.Chosen() == BackEnd::GDI ? BackEnd::Direct2D : BackEnd::GDI);
    }
    host.Choose(scene.backEnd);
    Pen pen(Host::PenArea, random);
    const double length = scene.milliseconds / 1000.0;
    bool isHalfOver = false;
    const double begin = Seconds();
    for (double now = 0; now < length; now = Seconds() - begin) {
        if (const std::vector<LM_PenData> samples = pen.Due(now); !samples.empty()) {
            WriteSamples_(scene, samples);
        }
        if (!isHalfOver && now > length / 2) {
            isHalfOver = true;
            PlayMiddle_(scene, pen);
        }
        host.PumpFor(1);
    }
    if (!isHalfOver) { // frames may take long
        PlayMiddle_(scene, pen);
    }
    if (scene.closesSettings) {
        host.CloseSettings();
    }
    if (scene.looksForInk) {
        LookForGhosts_(pen);
    } else {
        host.Write({pen.Lifted()});
    }
}

void Soak::WriteSamples_(const Scene& scene, const std::vector<LM_PenData>& samples)
{
    const std::optional<double> took = host.Write(samples);
    ++interval.inputs;
    if (!took) {
        return;
    }
    ++interval.frames[IndexOf(host.Chosen())];
    if (scene.logLevel == 0) { // else the debugger's output is measured
        interval.frameMicroseconds[IndexOf(host.Chosen())].push_back(*took);
    }
}

void Soak::PlayMiddle_(const Scene& scene, const Pen& pen)
{
    if (scene.looksForInk && scene.logLevel == 0) { // then nothing but ink is above the ground
        WriteSamples_(scene, pen.Line());
        interval.inkSeen[IndexOf(host.Chosen())] += host.ShowsAnything() ? 1 : 0;
    }
    if (scene.opensSettings) {
        host.OpenSettings();
        ++interval.dialogs;
    }
}

void Soak::LookForGhosts_(const Pen& pen)
{
    host.CloseSettings();
    host.SetLogLevel(0); // at another one frames carry labels
    host.Write({pen.Lifted()});
    if (!host.WaitForInkToGo()) {
        ++interval.unseen;
        return;
    }
    ++interval.looks;
    interval.ghosts += host.ShowsAnything() ? 1 : 0;
}

void Soak::WriteRow_(double seconds, std::ostream& csv)
{
    const std::size_t leftWindows = host.LeftWindows();
    const std::size_t rebuilds = host.Rebuilds();
    const Holdings held = host.Rest();
    csv << std::fixed << std::setprecision(1) << seconds << ',' << held.gdiObjects << ',' << held.userObjects
        << ',' << held.kernelHandles << ',' << held.windows << ',' << held.dialogs << ',' << held.memoryBlocks
        << ',' << host.Classes() << ',' << host.WindowsMade() << ',' << leftWindows << ',' << rebuilds << ','
        << held.privateKilobytes << ',' << interval.frames[0] << ',' << interval.frames[1] << ','
        << interval.inputs << ',' << interval.dialogs << ',' << interval.restarts << ',' << interval.looks
        << ',' << interval.ghosts << ',' << interval.unseen << ',' << interval.inkSeen[0] << ','
        << interval.inkSeen[1];
    for (const std::vector<double>& times : interval.frameMicroseconds) {
        WriteTimes(csv, times);
    }
    csv << std::endl;
    interval = {};
}

} // namespace zq::LM::soak
