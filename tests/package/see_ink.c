/* Starts a host by its command line and watches one pixel of the screen: see_ink COMMAND X Y. Ends well when
 * red ink comes there, and the host ends well. */
#include <windows.h>

#include <stdio.h>
#include <stdlib.h>

enum { PollMs = 20, LongestMs = 30000 };

static int IsRed(int x, int y)
{
    HDC screen = GetDC(NULL);
    const COLORREF colour = GetPixel(screen, x, y);
    ReleaseDC(NULL, screen);
    return GetRValue(colour) > 100 && GetGValue(colour) < 80 && GetBValue(colour) < 80;
}

static int Failed(const char* program, const char* what)
{
    printf("see_ink: %s: %s\n", program, what);
    return 1;
}

int main(int count, char** arguments)
{
    STARTUPINFOA start = {0};
    PROCESS_INFORMATION host;
    DWORD status = 1;
    int seen = 0;
    int waited;

    if (count != 4) {
        return Failed("usage", "see_ink PROGRAM X Y");
    }
    const int x = atoi(arguments[2]);
    const int y = atoi(arguments[3]);
    start.cb = sizeof(start);
    if (IsRed(x, y)) {
        return Failed(arguments[1], "the pixel is red before");
    }
    if (!CreateProcessA(NULL, arguments[1], NULL, NULL, FALSE, 0, NULL, NULL, &start, &host)) {
        return Failed(arguments[1], "cannot be started");
    }
    for (waited = 0; waited < LongestMs && WaitForSingleObject(host.hProcess, PollMs) != WAIT_OBJECT_0;
         waited += PollMs) {
        seen = seen || IsRed(x, y);
    }
    GetExitCodeProcess(host.hProcess, &status);
    TerminateProcess(host.hProcess, 1);
    if (status != 0) {
        return Failed(arguments[1], "ends badly, or not at all");
    }
    return seen ? 0 : Failed(arguments[1], "no ink is seen");
}
