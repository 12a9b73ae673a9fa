// What each back-end of the delivered library costs beside bare calls of the same kind, the two taking turns:
// lumora_back_ends gdi|direct2d|composition [FRAMES]
#include "bare_overlay.h"
#include "lumora/lumora.hpp"
#include "support/composition/composition_stand_in.h"
#include "support/library/private_memory.h"

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace {

using lumora::BackEnd;
using lumora::Library;
using namespace zq::LM::bench;
using zq::LM::test::PrivateKilobytes;

constexpr int UsualFrames = 31;
constexpr int Creations = 5;

double Microseconds()
{
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER ticks = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&ticks);
    return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

template <typename Action> double Took(Action action)
{
    const double begin = Microseconds();
    action();
    return Microseconds() - begin;
}

// What else the machine does disturbs this one least.
double Fastest(const std::vector<double>& times) { return *std::min_element(times.begin(), times.end()); }

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Print(const std::string& what, double library, double bare, const char* unit)
{
    std::cout << std::fixed << std::setprecision(1) << "| " << what << " | " << library << " | " << bare
              << " | " << unit << " | " << std::setprecision(2);
    if (bare > 0) {
        std::cout << library / bare;
    } else {
        std::cout << '-';
    }
    std::cout << " |" << std::endl;
}

// The library's instance, with ink that outlives the measurement.
class Instance {
public:
    Instance(const Library& library, const Ink& ink) : library(library), window(library.create())
    {
        LM_Params params = {};
        library.getCopiedParams(&params);
        params.inkDecayTime = 3'600'000;
        library.setParams(&params);
        std::vector<LM_PenData> samples;
        samples.reserve(ink.points.size());
        for (const POINT& point : ink.points) {
            samples.push_back(lumora::Overlay::SampleAt(point, 20'000, {0, 0})); // as wide as the bare ink
        }
        library.inputPenDataArray(samples.data(), samples.size());
        UpdateWindow(window); // takes them over: PaintOnce drops what waits
    }
    ~Instance()
    {
        library.destroy();
        MSG message = {};
        PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    RECT Place() const
    {
        RECT place = {};
        GetWindowRect(window, &place);
        return place;
    }

    // A sample that adds nothing asks for a repaint as a pen's does.
    void PaintOnce() const
    {
        const LM_PenData none = {};
        library.inputPenDataArray(&none, 1);
        UpdateWindow(window);
    }

private:
    const Library& library;
    HWND window;
};

class Comparison {
public:
    Comparison(std::string name, const Library& library, BackEnd backEnd, int frames)
        : name(std::move(name)), library(library), backEnd(backEnd), frames(frames)
    {
        const lumora::Overlay chosen({backEnd, 0}, library); // which outlives it
        if (backEnd == BackEnd::DirectComposition) {
            standIn.emplace(library.module);
            standIn->Show(false);
            standIn->KeepCalls(false);
        }
    }

    void Frames(int segments)
    {
        const Ink ink = Zigzag(segments);
        const Instance instance(library, ink);
        const BareOverlay bare(Bare_(), Beside_(instance.Place()), ink);
        std::vector<double> libraryCosts;
        std::vector<double> bareCosts;
        constexpr int SetUpFrames = 2;
        for (int frame = -SetUpFrames; frame < frames; ++frame) {
            // Each goes first in every other turn: the system may finish a frame while the next is drawn.
            for (const bool isLibrary : {frame % 2 == 0, frame % 2 != 0}) {
                const double cost = Took([&] { isLibrary ? instance.PaintOnce() : bare.PaintOnce(); });
                if (frame >= 0) {
                    (isLibrary ? libraryCosts : bareCosts).push_back(cost);
                }
            }
        }
        Print(name + " frame/" + std::to_string(segments), Fastest(libraryCosts), Fastest(bareCosts), "us");
    }

    // From nothing to a first frame, and what private memory has grown by then.
    void Beginning()
    {
        const Ink ink = Zigzag(1);
        const RECT place = Instance(library, ink).Place();
        std::vector<double> times[2];
        std::vector<double> sizes[2];
        for (int i = 0; i < std::min(frames, Creations); ++i) {
            Begin_(times[0], sizes[0], [&] { return Instance(library, ink); });
            Begin_(times[1], sizes[1], [&] { return BareOverlay(Bare_(), place, ink); });
        }
        Print(name + " first frame", Fastest(times[0]), Fastest(times[1]), "us");
        Print(name + " memory", Median(sizes[0]), Median(sizes[1]), "KiB");
    }

private:
    template <typename Make>
    static void Begin_(std::vector<double>& times, std::vector<double>& sizes, Make make)
    {
        const double before = PrivateKilobytes();
        const double begin = Microseconds();
        const auto made = make();
        made.PaintOnce();
        times.push_back(Microseconds() - begin);
        sizes.push_back(PrivateKilobytes() - before);
    }

    std::unique_ptr<BareBackEnd> Bare_() const
    {
        switch (backEnd) {
        case BackEnd::GDI:
            return BareGdi();
        case BackEnd::Direct2D:
            return BareDirect2D();
        default:
            return BareComposition(library.module);
        }
    }

    // Neither covers the other where the overlay does not fill the screen.
    static RECT Beside_(RECT place)
    {
        OffsetRect(&place, place.right - place.left, 0);
        return place;
    }

    std::string name;
    const Library& library;
    BackEnd backEnd;
    int frames;
    std::optional<zq::LM::test::CompositionStandIn> standIn;
};

std::optional<BackEnd> BackEndOf(std::string_view name)
{
    if (name == "gdi") {
        return BackEnd::GDI;
    }
    if (name == "direct2d") {
        return BackEnd::Direct2D;
    }
    return name == "composition" ? std::optional(BackEnd::DirectComposition) : std::nullopt;
}

} // namespace

int main(int count, char** arguments)
try {
    const std::span<char*> given(arguments, static_cast<std::size_t>(count));
    const std::optional<BackEnd> backEnd = count > 1 ? BackEndOf(given[1]) : std::nullopt;
    const int frames = count > 2 ? static_cast<int>(std::strtol(given[2], nullptr, 10)) : UsualFrames;
    if (!backEnd || count > 3 || frames < 1) {
        std::cerr << "Usage: lumora_back_ends gdi|direct2d|composition [FRAMES]\n";
        return 2;
    }
    const Library library = Library::Load();
    Comparison comparison(given[1], library, *backEnd, frames);
    std::cout << "| pair | library | bare | unit | ratio |\n|---|---|---|---|---|\n";
    for (const int segments : {1, 30, 300, 1000}) {
        comparison.Frames(segments);
    }
    comparison.Beginning();
    return 0;
} catch (const std::exception& error) {
    std::cerr << "lumora_back_ends: " << error.what() << '\n';
    return 1;
}
