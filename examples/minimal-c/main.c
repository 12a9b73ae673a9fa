/* A minimal host in C99: draws one stroke, waits until its ink has gone, and ends. */
#include "lumora/lumora.h"

#include <windows.h>

enum { CommandGdi = 40022, StepMs = 10, Steps = 80, InkLifeMs = 1500, FullPressure = 32767 };

/* Takes WM_QUIT, which the end of an overlay window posts, out of the queue. */
static void DropQuitMessage(void)
{
    MSG message;
    PeekMessageW(&message, NULL, WM_QUIT, WM_QUIT, PM_REMOVE);
}

/* The library starts with its composition back-end, which not every system can show. The command of the
 * overlay's menu chooses GDI; the choice outlives the instance, so a second instance starts with it and the
 * first leaves no window behind. */
static LM_WindowHandle CreateOverlay(void)
{
    LM_WindowHandle window = LM_Create();
    if (window == NULL) {
        return NULL;
    }
    SendMessageW(window, WM_COMMAND, CommandGdi, 0);
    LM_Destroy();
    DropQuitMessage();
    return LM_Create();
}

/* One sample of a line that rises to the right; the last one lifts the pen, which ends the stroke. */
static LM_PenData MakeSample(int step)
{
    LM_PenData sample = {0};
    sample.time = GetTickCount() | 1; /* any value but 0 */
    sample.x = 200 + 5 * step;
    sample.y = 400 - step;
    sample.pressure = step < Steps ? FullPressure * step / Steps + 1 : 0;
    return sample;
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show)
{
    LM_Params params;
    MSG message;
    int step = 0;
    (void)instance, (void)previous, (void)commandLine, (void)show;

    if (CreateOverlay() == NULL) {
        return 1;
    }
    LM_GetCopiedParams(&params);
    params.inkDecayTime = InkLifeMs;
    params.inkColor = RGB(200, 60, 20);
    LM_SetParams(&params);

    /* A real host gets its samples from a pen; the timer only takes the pen's place. */
    const UINT_PTR penTimer = SetTimer(NULL, 0, StepMs, NULL);
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < StepMs * Steps * 2 + InkLifeMs + 500 &&
           GetMessageW(&message, NULL, 0, 0) > 0) {
        if (message.message == WM_TIMER && message.wParam == penTimer && step <= Steps) {
            const LM_PenData sample = MakeSample(step++);
            LM_InputPenDataArray(&sample, 1);
        }
        DispatchMessageW(&message);
    }
    LM_Destroy();
    return 0;
}
