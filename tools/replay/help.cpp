// The help text of lumora-replay.
#include "options.h"

namespace lumora::replay {

namespace {

constexpr char AboutRecordings[] = R"(lumora-replay plays a pen recording as ink on the screen.

Usage: lumora-replay RECORDING [OPTION...]
       lumora-replay RECORDING --save FILE [--overwrite]
       lumora-replay --selftest FILE [--dll FILE]

RECORDING is an SVC or an InkML file. The writing is scaled to the screen and played at its own pace. The program ends
when the ink of the last sample has gone and the last screenshot is taken; Ctrl+C ends it earlier. At the end it prints
the latency from the call that hands samples over to the end of the paint that shows them.

Recordings:
  SVC     Comment lines that begin with '#', a line with the number of samples, then one sample a line: x, y
          (upwards), time, 1 = touches or 0 = hovers, azimuth, altitude, pressure. All may have decimals.
          The unit of the times is guessed from the typical step between samples (the mean of all steps but the
          longest tenth): below 0.2 it is seconds, from 500 on microseconds, else milliseconds. Files of less than
          eleven samples are never taken for microseconds. A comment "# time-unit: s" (ms, us) says it.
  InkML   What the file's first character '<' tells, not its name. Traces are played in the order of the file, with
          their channels X, Y, F (pressure), T (time) and S (whether the tip touches), found by the trace format of
          their context; other channels are stepped over. T is in milliseconds unless its format's units say s, ms
          or us. Without T samples come as often as the sampleRate says, or every 8 ms, and traces 200 ms apart;
          a trace that would begin before the end of the one above it follows it by 200 ms. Traces of type penUp
          hover. Pressure is scaled from the channel's max; it is full where a touching pen has none.
          Not supported: document type declarations with declarations inside, references to other files, text
          other than UTF-8. Traces in definitions, trace views, canvas transforms, mappings, the times of timestamps
          and brushes are not looked at.
  In both, pressures from 0 to 1 with decimals are shares of the full one, where the file does not say what is full.

  --time-unit UNIT        the unit of the recording's times, s, ms or us, whatever the file says or suggests
  --save FILE             play nothing, but save the recording as FILE, which ends in .svc or .inkml. Options about
                          playing cannot stand beside it.
  --overwrite             with --save: replace FILE if it is there. Without this it is left as it is, and the status
                          is 1.

)";

constexpr char AboutPlaying[] = R"(Playing:
  --backend NAME          composition, d2d or gdi (default composition, which shows nothing without the system's
                          composition engine: Wine has none)
  --switch MS:NAME        change the back-end, MS milliseconds of real time after the play began; may be given several
                          times. The next samples rebuild the overlay and are not drawn themselves.
  --pixels                the recording's positions are the screen's pixels, as lumora-pen records them: not scaled
  --speed N               play N times as fast, 0.001 to 1000 (default 1)
  --screenshot MS:FILE    save the screen as a PNG file, MS milliseconds of real time after the play began; may be
                          given several times and may lie after the last sample. The files are written at the end.
  --log-level N           the library's log level: 0 nothing, 1 basic, 2 normal, 3 detailed, 255 all (default 0)
  --dll FILE              the library to load (default LumoraDLL.dll beside this program)
  --selftest FILE         play nothing, but draw on every back-end in the middle of the screen for some twenty seconds,
                          read the screen back, and write to FILE what was seen and how long it took, beside what is
                          known from Wine: for people with a Windows machine, to send to us. Leave mouse and windows
                          alone meanwhile.

)";

constexpr char AboutInkAndStatus[] = R"(Ink:
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
  --pick-colour           the first touch takes the colour below the mouse cursor, which a hovering pen shows beside it

  -h, --help              this text
  --                      what follows is the recording's name, even if it begins with '-'

Exit status:
  0     the recording was played and every screenshot saved, or the recording was saved, or the self-test's report was
        written, whatever it says
  1     the library cannot be loaded or used, or a screenshot, the recording or the report cannot be saved
  2     the command line or the recording is wrong
  130   ended by Ctrl+C, or because the overlay window was closed
)";

} // namespace

std::string HelpText() { return std::string(AboutRecordings) + AboutPlaying + AboutInkAndStatus; }

} // namespace lumora::replay
