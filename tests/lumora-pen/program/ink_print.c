/* What ink an area of the screen shows: ink_print X Y WIDTH HEIGHT RRGGBB prints how many pixels have another
 * colour than RRGGBB, and a sum over their places and colours. */
#include <windows.h>

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

int main(int count, char** arguments)
{
    if (count != 6) {
        fputs("usage: ink_print X Y WIDTH HEIGHT RRGGBB\n", stderr);
        return 2;
    }
    const int left = atoi(arguments[1]);
    const int top = atoi(arguments[2]);
    const int width = atoi(arguments[3]);
    const int height = atoi(arguments[4]);
    const uint32_t ground = strtoul(arguments[5], NULL, 16);

    BITMAPINFO info = {{sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                       {{0, 0, 0, 0}}};
    void* bits = NULL;
    HDC screen = GetDC(NULL);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, NULL, 0);
    SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, left, top, SRCCOPY);
    GdiFlush();

    const uint32_t* const pixels = bits;
    unsigned inked = 0;
    uint64_t sum = 14695981039346656037U; /* FNV-1a */
    for (int i = 0; i < width * height; ++i) {
        const uint32_t pixel = pixels[i] & 0xFFFFFF;
        if (pixel != ground) {
            ++inked;
            sum = (sum ^ (uint64_t)i) * 1099511628211U;
            sum = (sum ^ pixel) * 1099511628211U;
        }
    }
    printf("%u %016llx\n", inked, (unsigned long long)sum);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(NULL, screen);
    return 0;
}
