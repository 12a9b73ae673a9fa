// Messages in, ink out.
#include "pen_window.h"
#include "stroke.h"

#include <exception>
#include <optional>

#include <tpcshrd.h>
#include <windowsx.h>

namespace pen_host {

namespace {

constexpr wchar_t Title[] = L"Lumora pen host: C clears, S settings, Esc ends";
constexpr wchar_t PenServiceProperty[] = L"MicrosoftTabletPenServiceProperty";
constexpr UINT32 Mouse = 0xFFFFFFFF; // a pointer's own number has 16 bits
constexpr UINT_PTR DryTimer = 1;
constexpr UINT DryTimerMs = 50;

// While the system waits whether a touch becomes a press-and-hold or a flick, it holds the stroke's beginning
// back.
constexpr ULONG_PTR NoGestures = TABLET_DISABLE_PRESSANDHOLD | TABLET_DISABLE_PENTAPFEEDBACK |
                                 TABLET_DISABLE_PENBARRELFEEDBACK | TABLET_DISABLE_FLICKS |
                                 TABLET_DISABLE_FLICKFALLBACKKEYS | TABLET_DISABLE_SMOOTHSCROLLING;

// A busy program gets one message for several reports of the pen; without all of them curves become polygons.
std::vector<POINTER_PEN_INFO> ReadHistory(UINT32 pointer)
{
    POINTER_PEN_INFO newest = {};
    if (!GetPointerPenInfo(pointer, &newest)) {
        return {};
    }
    UINT32 count = BoundedHistory(newest.pointerInfo.historyCount);
    std::vector<POINTER_PEN_INFO> history(count);
    if (!GetPointerPenInfoHistory(pointer, &count, history.data())) {
        return {newest};
    }
    return OldestFirst(std::move(history), count);
}

// Raw positions are where the pen was. The others are where the system expects it to be, which is wrong at
// turns.
PenSample ToSample(const POINTER_PEN_INFO& pen)
{
    const POINTER_INFO& info = pen.pointerInfo;
    RECT surface = {};
    RECT display = {};
    GetPointerDeviceRects(info.sourceDevice, &surface, &display);
    PenSample sample;
    PutOnScreen(sample, info.ptHimetricLocationRaw, surface, display, info.ptPixelLocationRaw);
    if ((info.pointerFlags & POINTER_FLAG_INCONTACT) != 0) {
        sample.pressure = ScalePressure(pen.pressure, (pen.penMask & PEN_MASK_PRESSURE) != 0);
    }
    sample.time = info.dwTime;
    return sample;
}

// Each segment is as wide as its newer end, like Lumora's, and has round ends, like every geometric pen that
// is not told otherwise.
void DrawDry(HDC dc, const Stroke& stroke, std::size_t first)
{
    const LOGBRUSH brush = {BS_SOLID, RGB(stroke.colour.red, stroke.colour.green, stroke.colour.blue), 0};
    for (std::size_t i = (std::max)(first, std::size_t{1}); i < stroke.dryCount; ++i) {
        const InkPoint& from = stroke.points[i - 1];
        const InkPoint& to = stroke.points[i];
        const bool isDot = from.x == to.x && from.y == to.y; // a line needs some length to be drawn
        HPEN pen = ExtCreatePen(PS_GEOMETRIC | PS_SOLID, static_cast<DWORD>(to.width), &brush, 0, nullptr);
        const HGDIOBJ previous = SelectObject(dc, pen);
        MoveToEx(dc, from.x, from.y, nullptr);
        LineTo(dc, to.x + (isDot ? 1 : 0), to.y);
        SelectObject(dc, previous);
        DeleteObject(pen);
    }
}

class PenWindow {
public:
    PenWindow(lumora::Overlay& overlay, std::vector<PenSample>& recording) : ink(overlay), recorded(recording)
    {
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = Procedure_;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hCursor = LoadCursorW(nullptr, IDC_CROSS);
        windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        windowClass.lpszClassName = L"Lumora pen host";
        RegisterClassW(&windowClass);
        if (CreateWindowExW(0, windowClass.lpszClassName, Title, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0,
                            CW_USEDEFAULT, 0, nullptr, nullptr, windowClass.hInstance, this) == nullptr) {
            throw lumora::Error("the window could not be made");
        }
        SetPropW(window, PenServiceProperty, reinterpret_cast<HANDLE>(NoGestures));
        ShowWindow(window, SW_SHOW);
        SetForegroundWindow(window); // the overlay may have taken the activation when it was made
    }
    ~PenWindow() { DestroyWindow(window); } // fails, and is meant to, when a person has closed it
    PenWindow(const PenWindow&) = delete;
    PenWindow& operator=(const PenWindow&) = delete;

    std::exception_ptr failure; // what closed the window, if it was no person

private:
    // The system calls this, and no exception may pass through it.
    static LRESULT CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE) {
            void* made = reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams;
            static_cast<PenWindow*>(made)->window = window;
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
        }
        auto* self = reinterpret_cast<PenWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        try {
            if (self != nullptr &&
                (self->TakesPointer_(message, wParam) || self->TakesMouse_(message, lParam) ||
                 self->TakesOther_(message, wParam))) {
                return 0;
            }
        } catch (...) {
            self->failure = std::current_exception();
            DestroyWindow(window);
            return 0;
        }
        // Asked by services that do not look for the property.
        return message == WM_TABLET_QUERYSYSTEMGESTURESTATUS
                   ? static_cast<LRESULT>(NoGestures)
                   : DefWindowProcW(window, message, wParam, lParam);
    }

    // Pens only. What is taken here does not come again as mouse; fingers, which are left to the system, do.
    bool TakesPointer_(UINT message, WPARAM wParam)
    {
        const UINT32 pointer = GET_POINTERID_WPARAM(wParam);
        POINTER_INPUT_TYPE type = PT_POINTER;
        if (message == WM_POINTERCAPTURECHANGED) {
            Lift_(pointer);
            return true;
        }
        if ((message != WM_POINTERDOWN && message != WM_POINTERUPDATE && message != WM_POINTERUP) ||
            !GetPointerType(pointer, &type) || type != PT_PEN) {
            return false;
        }
        for (const POINTER_PEN_INFO& pen : ReadHistory(pointer)) {
            Take_(pointer, ToSample(pen), (pen.pointerInfo.pointerFlags & POINTER_FLAG_CANCELED) != 0);
        }
        HandOver_();
        return true;
    }

    bool TakesMouse_(UINT message, LPARAM lParam)
    {
        if (message == WM_LBUTTONDOWN) {
            SetCapture(window); // the button may come up outside
        } else if (message == WM_LBUTTONUP) {
            ReleaseCapture(); // whose loss ends the stroke, however it comes
        } else if (message == WM_CAPTURECHANGED) {
            Lift_(Mouse);
        }
        if (message == WM_LBUTTONDOWN || (message == WM_MOUSEMOVE && writer == Mouse)) {
            POINT place = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            ClientToScreen(window, &place);
            Take_(Mouse,
                  {static_cast<double>(place.x), static_cast<double>(place.y), FullPressure,
                   static_cast<std::uint32_t>(GetMessageTime())},
                  false);
            HandOver_();
            return true;
        }
        return false;
    }

    bool TakesOther_(UINT message, WPARAM wParam)
    {
        if (message == WM_TIMER) {
            Rest_();
        } else if (message == WM_PAINT) {
            Paint_();
        } else if (message == WM_KEYDOWN && wParam == 'C') {
            Lift_(writer.value_or(Mouse));
            strokes.clear();
            InvalidateRect(window, nullptr, TRUE);
        } else if (message == WM_KEYDOWN && wParam == 'S') {
            ink.OpenSettings();
        } else if (message == WM_KEYDOWN && wParam == VK_ESCAPE) {
            DestroyWindow(window);
        } else if (message == WM_DESTROY) {
            RemovePropW(window, PenServiceProperty);
            window = nullptr;
            PostQuitMessage(0);
        } else {
            return false;
        }
        return true;
    }

    // The pen or the button is up, or another window has taken the pointer away: what was written stays.
    void Lift_(UINT32 pointer)
    {
        if (writer == pointer) {
            PenSample lift = recorded.back();
            lift.pressure = 0;
            Take_(pointer, lift, false);
            HandOver_();
        }
    }

    void Take_(UINT32 pointer, PenSample sample, bool cancelled)
    {
        const Step step = NextStep(writer.has_value(), sample.pressure > 0, cancelled);
        if (step == Step::Nothing || (writer && writer != pointer)) {
            return; // one writes at a time: samples of two would be one torn stroke
        }
        if (step == Step::Begin) {
            style = ink.ReadParams(); // a person may have changed them in the settings
            strokes.push_back({DryColour(style.inkColor), {}, 0});
            writer = pointer;
            SetTimer(window, DryTimer, DryTimerMs, nullptr);
            Add_(sample); // and again below: a tap, too, is a line from point to point
        } else if (step == Step::End || step == Step::Cancel) {
            sample.pressure = 0;
            writer.reset();
            KillTimer(window, DryTimer);
            DryInk_(0);
        }
        if (step == Step::Cancel) { // it was a palm, or the pen is gone: nobody meant to write this
            strokes.pop_back();
            InvalidateRect(window, nullptr, TRUE);
        }
        Add_(sample);
        recorded.push_back(sample);
    }

    // A mouse that rests says nothing, but its ink ages; and what comes next is to begin at wet ink, since
    // Lumora draws nothing from a point that has gone. Not recorded: nobody has reported it.
    void Rest_()
    {
        if (writer) { // a timer's message may be late
            Add_(recorded.back());
            HandOver_();
        }
    }

    void Add_(const PenSample& sample)
    {
        POINT place = {std::lround(sample.x), std::lround(sample.y)};
        batch.push_back(ink.SampleAt(place, sample.pressure));
        ScreenToClient(window, &place);
        if (writer && !style.colorPicker) { // such a touch chooses a colour, and writes nothing
            strokes.back().points.push_back(
                {place.x, place.y, StrokeWidth(style, sample.pressure), GetTickCount()});
        }
    }

    // Once a message, all at once: Lumora paints when the host gets to pump again.
    void HandOver_()
    {
        ink.Input(batch);
        batch.clear();
        DryInk_(HalfLife_()); // here too: while there is something to paint, timers wait
    }

    std::uint32_t HalfLife_() const { return static_cast<std::uint32_t>(style.inkDecayTime.count() / 2); }

    // Wet ink lives for a moment only, so it is drawn as dry ink below itself before it goes: at the end of a
    // stroke, and of a long stroke before. Drawing it at once would only delay the wet ink, which is there to
    // be quick.
    void DryInk_(std::uint32_t age)
    {
        if (strokes.empty()) {
            return;
        }
        Stroke& stroke = strokes.back();
        const std::size_t first = stroke.dryCount;
        Dry(stroke, GetTickCount(), age);
        HDC dc = GetDC(window);
        DrawDry(dc, stroke, first);
        ReleaseDC(window, dc);
    }

    void Paint_()
    {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(window, &paint);
        for (const Stroke& stroke : strokes) {
            DrawDry(dc, stroke, 0);
        }
        EndPaint(window, &paint);
    }

    lumora::Overlay& ink;
    std::vector<PenSample>& recorded; // its last one is the writer's
    HWND window = nullptr;
    std::vector<Stroke> strokes;   // while somebody writes, the last one is in the making
    std::optional<UINT32> writer;  // the pointer that writes
    lumora::Params style;          // of the stroke in the making
    std::vector<LM_PenData> batch; // of the message at hand
};

} // namespace

void RunPenWindow(lumora::Overlay& ink, std::vector<PenSample>& recorded)
{
    PenWindow window(ink, recorded);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!ink.HandleDialogMessage(message)) { // or the settings have no keyboard
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    if (window.failure) {
        std::rethrow_exception(window.failure);
    }
}

} // namespace pen_host
