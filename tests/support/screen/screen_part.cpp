// Prints a number for what is on a part of the screen, the same for the same picture: screen_part LEFT TOP
// RIGHT BOTTOM.
#include "support/screen/screen.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

int main(int count, char** arguments)
{
    if (count != 5) {
        std::fputs("usage: screen_part LEFT TOP RIGHT BOTTOM\n", stderr);
        return 2;
    }
    const RECT place = {std::atol(arguments[1]), std::atol(arguments[2]), std::atol(arguments[3]),
                        std::atol(arguments[4])};
    const zq::LM::test::Picture picture = zq::LM::test::TakePicture(place);
    std::uint64_t number = 0xCBF29CE484222325; // FNV-1a
    for (LONG y = place.top; y < place.bottom; ++y) {
        for (LONG x = place.left; x < place.right; ++x) {
            number = (number ^ picture.At(x, y)) * 0x100000001B3;
        }
    }
    std::printf("%016llx\n", static_cast<unsigned long long>(number));
    return 0;
}
