/* A window that says in its title what has reached it: "Counted D downs M moves U ups K keys". It ends with
 * its input stream, or after ten minutes. */
#include <windows.h>

#include <stdio.h>

enum { Left = 200, Top = 200, Width = 600, Height = 400, LongestMs = 600000 };

static int downs;
static int moves;
static int ups;
static int keys;

static void Tell(HWND window)
{
    char title[100];

    snprintf(title, sizeof title, "Counted %d downs %d moves %d ups %d keys", downs, moves, ups, keys);
    SetWindowTextA(window, title);
}

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_LBUTTONDOWN:
        ++downs;
        break;
    case WM_MOUSEMOVE:
        if ((wParam & MK_LBUTTON) != 0) {
            ++moves;
        }
        break;
    case WM_LBUTTONUP:
        ++ups;
        break;
    case WM_CHAR:
        ++keys;
        break;
    case WM_TIMER:
        PostQuitMessage(0);
        return 0;
    case WM_WINDOWPOSCHANGING: /* without a window manager a raised window comes to lie above topmost ones */
        ((WINDOWPOS*)lParam)->flags |= SWP_NOZORDER;
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
    Tell(window);
    return 0;
}

int main(void)
{
    WNDCLASSA windowClass = {0};
    MSG message;
    HWND window;

    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleA(NULL);
    windowClass.hCursor = LoadCursorA(NULL, (LPCSTR)IDC_ARROW);
    windowClass.hbrBackground = CreateSolidBrush(RGB(0, 160, 0));
    windowClass.lpszClassName = "Counting window";
    RegisterClassA(&windowClass);
    window = CreateWindowA("Counting window", "", WS_POPUP | WS_VISIBLE, Left, Top, Width, Height, NULL, NULL,
                           windowClass.hInstance, NULL);
    Tell(window);
    SetForegroundWindow(window);
    SetTimer(window, 1, LongestMs, NULL);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
