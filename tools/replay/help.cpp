// The help text of lumora-replay.
#include "options.h"

namespace lumora::replay {

std::string HelpText()
{
    return R"(lumora-replay plays a pen recording as ink on the screen.

Usage: lumora-replay RECORDING [OPTION...]

RECORDING is an SVC file: comment lines that begin with '#', a line with the number of samples, then one sample a
line: x, y (upwards), time in ms, 1 = touches or 0 = hovers, azimuth, altitude, pressure (0 to 32767). The writing is
scaled to the screen and played at its own pace. The program ends when the ink of the last sample has gone and the
last screenshot is taken; Ctrl+C ends it earlier. At the end it prints the latency from the call that hands samples
over to the end of the paint that shows them.

Playing:
  --backend NAME          composition, d2d or gdi (default composition, which shows nothing without the system's
                          composition engine: Wine has none)
  --switch MS:NAME        change the back-end, MS milliseconds of real time after the play began; may be given several
                          times. The next samples rebuild the overlay and are not drawn themselves.
  --speed N               play N times as fast, 0.001 to 1000 (default 1)
  --screenshot MS:FILE    save the screen as a PNG file, MS milliseconds of real time after the play began; may be
                          given several times and may lie after the last sample. The files are written at the end.
  --log-level N           the library's log level: 0 nothing, 1 basic, 2 normal, 3 detailed, 255 all (default 0)
  --dll FILE              the library to load (default LumoraDLL.dll beside this program)

Ink:
  --colour RRGGBB         ink colour, hexadecimal (default 202020)
  --brush N               stroke width at full pressure, in pixels (default 10)
  --min-brush N           smallest stroke width, in pixels (default 1)
  --max-pressure N        the pressure that counts as full (default 32767)
  --life MS               how long ink stays, in milliseconds (default 100)
  --outline               strokes have a rim in the contrast colour
  --no-line               no strokes; with --outline hollow ones
  --no-cursor             no cross-hair while the pen hovers
  --no-pressure           every stroke has the full width
  --offset                strokes are drawn 50 pixels above the pen
  --zebra                 strokes are banded in ink and contrast colour

  -h, --help              this text
  --                      what follows is the recording's name, even if it begins with '-'

Exit status:
  0     the recording was played and every screenshot saved
  1     the library cannot be loaded or used, or a screenshot cannot be saved
  2     the command line or the recording is wrong
  130   ended by Ctrl+C, or because the overlay window was closed
)";
}

} // namespace lumora::replay
