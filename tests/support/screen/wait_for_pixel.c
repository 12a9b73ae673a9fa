/* Waits until a pixel of the screen has a colour: wait_for_pixel X Y RRGGBB. Status 1 when it does not come
 * to that. */
#include <windows.h>

#include <stdio.h>
#include <stdlib.h>

enum { PollMs = 10, LongestMs = 60000 };

static COLORREF PixelAt(int x, int y)
{
    HDC screen = GetDC(NULL);
    const COLORREF colour = GetPixel(screen, x, y);
    ReleaseDC(NULL, screen);
    return RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour)); /* as it is written: RRGGBB */
}

int main(int count, char** arguments)
{
    int waited;

    if (count != 4) {
        fputs("usage: wait_for_pixel X Y RRGGBB\n", stderr);
        return 2;
    }
    const int x = atoi(arguments[1]);
    const int y = atoi(arguments[2]);
    const COLORREF wanted = strtoul(arguments[3], NULL, 16);
    for (waited = 0; waited < LongestMs; waited += PollMs) {
        if (PixelAt(x, y) == wanted) {
            return 0;
        }
        Sleep(PollMs);
    }
    printf("wait_for_pixel: %d, %d is %06lX, never %06lX\n", x, y, PixelAt(x, y), wanted);
    return 1;
}
