// Reads the real screen and puts windows below the overlay.
#include "support/screen/screen.h"

#include "support/screen/memory_bitmap.h"

#include <algorithm>
#include <stdexcept>

namespace zq::LM::test {

namespace {

int Width(const RECT& rectangle) { return rectangle.right - rectangle.left; }
int Height(const RECT& rectangle) { return rectangle.bottom - rectangle.top; }

COLORREF FromBgr(std::uint32_t pixel) { return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF); }

struct BackdropState {
    HBRUSH brush;
    int clicks = 0;
};

LRESULT CALLBACK BackdropProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* state = reinterpret_cast<BackdropState*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_ERASEBKGND && state != nullptr) {
        RECT client{};
        GetClientRect(window, &client);
        FillRect(reinterpret_cast<HDC>(wParam), &client, state->brush);
        return 1;
    }
    if (message == WM_LBUTTONDOWN && state != nullptr) {
        ++state->clicks;
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

ATOM BackdropClass()
{
    WNDCLASSW description{};
    description.lpfnWndProc = BackdropProcedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"Lumora Test Backdrop";
    static const ATOM atom = RegisterClassW(&description);
    return atom;
}

} // namespace

Picture::Picture(const RECT& place, std::vector<COLORREF> pixels) : place(place), pixels(std::move(pixels)) {}

COLORREF Picture::At(int x, int y) const
{
    if (x < place.left || x >= place.right || y < place.top || y >= place.bottom) {
        throw std::out_of_range("a pixel outside the picture");
    }
    return pixels[static_cast<std::size_t>(y - place.top) * static_cast<std::size_t>(Width(place)) +
                  static_cast<std::size_t>(x - place.left)];
}

std::size_t Picture::Count(COLORREF colour) const
{
    return static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), colour));
}

std::size_t Picture::Differences(const Picture& other) const
{
    if (pixels.size() != other.pixels.size()) {
        throw std::invalid_argument("pictures of different sizes");
    }
    std::size_t count = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        count += pixels[i] != other.pixels[i] ? 1 : 0;
    }
    return count;
}

RECT Picture::BoundsOfOther(COLORREF background) const
{
    RECT bounds = {place.right, place.bottom, place.left, place.top};
    for (LONG y = place.top; y < place.bottom; ++y) {
        for (LONG x = place.left; x < place.right; ++x) {
            if (At(x, y) != background) {
                bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                          std::max(bounds.bottom, y + 1)};
            }
        }
    }
    return bounds.left < bounds.right ? bounds : RECT{};
}

std::string Picture::Print(COLORREF background, const RECT& part) const
{
    std::string text = "\n";
    for (LONG y = part.top; y < part.bottom; ++y) {
        for (LONG x = part.left; x < part.right; ++x) {
            text += At(x, y) == background ? '.' : '#';
        }
        text += '\n';
    }
    return text;
}

Picture TakePicture(HDC dc, const RECT& place)
{
    const MemoryBitmap copy(Width(place), Height(place));
    BitBlt(copy.DC(), 0, 0, Width(place), Height(place), dc, place.left, place.top, SRCCOPY);
    std::vector<COLORREF> pixels(static_cast<std::size_t>(Width(place)) *
                                 static_cast<std::size_t>(Height(place)));
    std::transform(copy.Pixels(), copy.Pixels() + pixels.size(), pixels.begin(), FromBgr);
    return Picture(place, std::move(pixels));
}

Picture TakePicture(const RECT& place)
{
    HDC screen = GetDC(nullptr);
    Picture picture = TakePicture(screen, place);
    ReleaseDC(nullptr, screen);
    return picture;
}

RECT PlaceOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

bool IsAt(HWND window, const RECT& place)
{
    const RECT actual = PlaceOf(window);
    return EqualRect(&actual, &place) != FALSE;
}

Backdrop::Backdrop(const RECT& place, COLORREF colour, HWND parent)
    : window(CreateWindowExW(WS_EX_TOOLWINDOW, MAKEINTATOM(BackdropClass()), L"Backdrop",
                             (parent == nullptr ? WS_POPUP : WS_CHILD) | WS_CLIPCHILDREN, place.left,
                             place.top, Width(place), Height(place), parent, nullptr,
                             GetModuleHandleW(nullptr), nullptr))
{
    auto* state = new BackdropState{CreateSolidBrush(colour)};
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(state));
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
}

Backdrop::~Backdrop()
{
    auto* state = reinterpret_cast<BackdropState*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    DestroyWindow(window);
    DeleteObject(state->brush);
    delete state;
}

int Backdrop::Clicks() const
{
    return reinterpret_cast<const BackdropState*>(GetWindowLongPtrW(window, GWLP_USERDATA))->clicks;
}

bool PumpMessages()
{
    bool quit = false;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        quit = quit || message.message == WM_QUIT;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return quit;
}

void SettleScreen()
{
    constexpr int RoundTrips = 3; // ink shown, window below told, window below repainted
    for (int i = 0; i < RoundTrips; ++i) {
        PumpMessages();
        HDC screen = GetDC(nullptr);
        GetPixel(screen, 0, 0);
        ReleaseDC(nullptr, screen);
    }
    PumpMessages();
}

} // namespace zq::LM::test
