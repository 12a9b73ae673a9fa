/* Lumora for hosts in C++17 on Windows: one class over the functions of lumora/lumora.h, header only. It
 * takes care of what every host meets: quit messages that are not the host's, the settings dialog's keyboard
 * and its changes, a desktop that does not begin at (0, 0), and exceptions of another compiler's library.
 *
 *     lumora::Overlay ink;                                    // linked with the import library, or
 *     lumora::Overlay ink({}, lumora::Library::Load());       // LumoraDLL.dll from beside the program
 *     ink.ChangeParams([](lumora::Params& params) { params.inkColor = {200, 0, 0}; });
 *     ink.Input({ink.SampleAt({400, 300}, 32767), ink.SampleAt({500, 320}, 32767)});
 *
 * and a message loop, in which the overlay paints. Everything is called from the one thread that made the
 * Overlay. Make the process aware of the DPI of each monitor, or its positions are not the screen's pixels.
 */
#ifndef LUMORA_LUMORA_HPP
#define LUMORA_LUMORA_HPP

#include "lumora/brush_data.h"
#include "lumora/library.hpp"
#include "lumora/params.hpp"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <utility>

namespace lumora {

/* By the numbers of the commands that choose them. */
enum class BackEnd : std::uint32_t { DirectComposition = 40020, Direct2D = 40021, GDI = 40022 };

struct OverlayOptions {
    /* Without one, the back-end that the process used last; at first that is DirectComposition. */
    std::optional<BackEnd> backEnd = std::nullopt;
    /* See LM_SetDebugLevel; anything but 0 also brings the tray icon, its menu and the hotkey. */
    std::optional<std::uint32_t> debugLevel = std::nullopt;
};

namespace detail {

inline constexpr WPARAM CommandSettings = 40001;

/* The end of an overlay's window posts WM_QUIT to the host's thread. What the library has posted in this
 * object's life goes with it; a request to quit that was there before stays, with its exit code. */
class QuitMessages {
public:
    QuitMessages() : requested(PeekMessageW(&request, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {}
    ~QuitMessages()
    {
        MSG posted;
        PeekMessageW(&posted, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        if (requested) {
            PostQuitMessage(static_cast<int>(request.wParam));
        }
    }
    QuitMessages(const QuitMessages&) = delete;
    QuitMessages& operator=(const QuitMessages&) = delete;

private:
    MSG request = {};
    bool requested;
};

/* The library has one instance in a process. */
struct Process {
    bool hasOverlay = false;
    BackEnd backEnd = BackEnd::DirectComposition; /* which outlives the instance */
};
inline Process g_process;

} /* namespace detail */

/* The overlay: made by the constructor, gone with the object. It can be moved; there is one at a time. */
class Overlay {
public:
    /* Throws Error when an Overlay exists already, when the library's records are not those of these headers,
     * when it makes no window, or when memory runs out. Then there is no instance. An instance that the host
     * made by LM_Create is replaced. */
    explicit Overlay(const OverlayOptions& options = {}, const Library& functions = Library::Linked())
        : library(functions)
    {
        if (detail::g_process.hasOverlay) {
            throw Error("Lumora: there is an overlay already");
        }
        library.CheckRecords();
        if (options.debugLevel) {
            library.setDebugLevel(*options.debugLevel);
        }
        Create_();
        if (options.backEnd) {
            StartWith_(*options.backEnd);
        }
    }

    ~Overlay() { Destroy_(); }

    Overlay(Overlay&& other) noexcept : library(other.library), owns(std::exchange(other.owns, false)) {}
    Overlay& operator=(Overlay&& other) noexcept
    {
        if (this != &other) {
            Destroy_();
            library = other.library;
            owns = std::exchange(other.owns, false);
        }
        return *this;
    }
    Overlay(const Overlay&) = delete;
    Overlay& operator=(const Overlay&) = delete;

    /* The overlay's window, or null while it has none. A change of the back-end makes another one, so ask
     * again rather than keep it. */
    HWND Window() const { return library.getWindowHandle(); }

    /* Hands over samples, oldest first, and asks for a repaint. They are copied. End each stroke with a
     * sample of pressure 0, or the next one is joined to it. Throws Error when memory runs out. */
    void Input(const LM_PenData* samples, std::size_t count)
    {
        detail::Fence([&] { library.inputPenDataArray(samples, count); });
    }
    void Input(std::initializer_list<LM_PenData> samples) { Input(samples.begin(), samples.size()); }
    /* Any row of samples that lie side by side: std::vector, std::array, std::span. */
    template <typename Samples>
    auto Input(const Samples& samples) -> decltype(Input(samples.data(), samples.size()))
    {
        Input(samples.data(), samples.size());
    }

    /* A sample whose ink meets the pen: its position is moved from the screen's pixels to those that the
     * back-end in use draws at, which differ where the desktop does not begin at (0, 0). Pressure is 1 and
     * more for a touch, up to Params::maxPressure, and 0 for a pen that hovers or leaves. Asks the window for
     * its place: hosts with thousands of samples a second keep Origin() until the screen changes. */
    LM_PenData SampleAt(POINT screen, std::int32_t pressure) const
    {
        return SampleAt(screen, pressure, Origin());
    }

    static LM_PenData SampleAt(POINT screen, std::int32_t pressure, POINT origin)
    {
        LM_PenData sample = {};
        sample.time = 1;
        /* A sample with a 0 in it is a command to drop others, and no position. */
        sample.x = screen.x != origin.x ? static_cast<std::int32_t>(screen.x - origin.x) : 1;
        sample.y = screen.y != origin.y ? static_cast<std::int32_t>(screen.y - origin.y) : 1;
        sample.pressure = pressure;
        return sample;
    }

    /* What SampleAt takes from positions on the screen. Right for the back-end that this class has chosen:
     * one that a person has chosen in the tray menu is not known to it. */
    POINT Origin() const
    {
        RECT place = {};
        GetWindowRect(Window(), &place);
        const LONG times =
            UsedBackEnd() == BackEnd::Direct2D ? 2 : 1; /* which moves ink by its corner once more */
        return {times * place.left, times * place.top};
    }

    /* The parameters in force, with what a person has changed in the settings dialog. That takes an input
     * without samples, which repaints. */
    Params ReadParams()
    {
        BringInChanges_();
        LM_Params record = {};
        library.getCopiedParams(&record);
        return FromRecord(record);
    }

    /* Replaces all of them. Throws Error when one is out of range. */
    void WriteParams(const Params& params)
    {
        const LM_Params record = ToRecord(params);
        detail::Fence([&] { library.setParams(&record); });
    }

    /* Reads, calls `change` with a Params&, and writes: nothing of the settings dialog is lost. */
    template <typename Change> void ChangeParams(Change change)
    {
        Params params = ReadParams();
        change(params);
        WriteParams(params);
    }

    /* A message that lumora/brush_data.h makes. */
    void Send(BrushDataMessage message)
    {
        detail::Fence([&] { library.setDataFromApp(message.data(), message.size()); });
    }

    /* Changes the back-end at once. The window of the old one stays, unseen, until the process ends, and the
     * library with it. Ink on the screen goes. Throws Error when memory runs out. */
    void Use(BackEnd backEnd)
    {
        Choose_(backEnd);
        BringInChanges_();
    }
    static BackEnd UsedBackEnd() { return detail::g_process.backEnd; }

    /* Opens the settings dialog, beside which the host goes on. Give it its keyboard by HandleDialogMessage.
     */
    void OpenSettings() { Command_(detail::CommandSettings); }

    /* For the message loop, before TranslateMessage: true when the message was for the settings dialog and
     * has been served. */
    bool HandleDialogMessage(MSG& message) const
    {
        const HWND overlay = Window();
        const HWND root = GetAncestor(message.hwnd, GA_ROOT);
        return overlay != nullptr && root != nullptr && GetWindow(root, GW_OWNER) == overlay &&
               IsDialogMessageW(root, &message) != 0;
    }

private:
    void Create_()
    {
        const detail::QuitMessages noneOfTheLibrary;
        LM_WindowHandle window = nullptr;
        detail::Fence([this, &window] { window = library.create(); });
        if (window == nullptr) {
            library.destroy();
            throw Error("Lumora: the overlay's window could not be made");
        }
        owns = true;
        detail::g_process.hasOverlay = true;
    }

    /* A choice takes effect when an overlay is made, or by a rebuild, which leaves a window behind. */
    void StartWith_(BackEnd backEnd)
    {
        const bool isOther = backEnd != UsedBackEnd();
        Choose_(backEnd);
        if (isOther) {
            Destroy_();
            Create_();
        }
    }

    void Destroy_() noexcept
    {
        if (std::exchange(owns, false)) {
            const detail::QuitMessages noneOfTheLibrary;
            library.destroy();
            detail::g_process.hasOverlay = false;
        }
    }

    void Choose_(BackEnd backEnd)
    {
        Command_(static_cast<WPARAM>(backEnd));
        detail::g_process.backEnd = backEnd;
    }

    void Command_(WPARAM command) { SendMessageW(Window(), WM_COMMAND, command, 0); }

    void BringInChanges_()
    {
        const LM_PenData none = {};
        Input(&none, 0);
    }

    Library library;
    bool owns = false;
};

} /* namespace lumora */

#endif
