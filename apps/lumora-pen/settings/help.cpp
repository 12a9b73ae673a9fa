// What --help and --version say.
#include "settings/help.h"

#include "lumora/version.h"

namespace lumora_pen {

namespace {

constexpr char About[] =
    R"(Lumora Pen lets you write on your screen, over whatever is open. The ink goes by itself.

Usage: lumora-pen [OPTION...]

Two ways to write:
  Trail   Ink follows the pen while it touches, and the mouse while the hold key is down; the mouse needs no button.
          What lies below still gets every click, drag and turn of the wheel.
  Board   A see-through sheet over all monitors takes pen, finger and mouse; what lies below gets nothing. The ink
          stays until you wipe it or leave Board.

Options:
  --settings FILE     settings from FILE instead of your own
  --board             begin in Board
  --colour COLOUR     1 to 6, one of the six in the settings, or RRGGBB or #RRGGBB, hexadecimal
  --back-end NAME     composition, direct2d or gdi
  --record FILE       record what you write as FILE, a new one, which lumora-replay plays
  --log-level N       the library's log level, 0 to 255 (default 0)
  --quit              end the Lumora Pen that runs; goes with no other option
  -h, --help          this text
  --version           the version

Of an option that is given twice the last one holds.

)";

constexpr char Keys[] =
    R"(The hold key is Ctrl+Shift unless the settings say otherwise. It may have a mouse button too, as "Ctrl+RightButton".
  Exactly the keys that are named must be down, and no further Ctrl, Alt, Shift or Windows key: AltGr is Ctrl and Alt
  together to the system, and would write with Ctrl alone otherwise.
  Some systems change the keyboard layout when Ctrl and Shift are let go. Lumora Pen keeps that from happening when
  you have written meanwhile.

Keys, unless the settings say otherwise. Each can be changed or switched off ("off"):
  Ctrl+Alt+B          into Board, and out of it
  Ctrl+Alt+Backspace  wipe all ink
  1 to 6              choose a colour    } while the hold key is down, together with it,
  Plus, Minus         wider, narrower    } or while Board is on
  Delete              wipe the ink, while Board is on
  Escape              leave Board

)";

constexpr char Files[] =
    R"(The settings are one JSON file, lumora-pen.json, among your application data. A mistake in it costs no more than the
  member it is in: that one keeps its usual value, and you are told. A file that is no JSON is kept aside under another
  name.

One Lumora Pen runs for each person and session. A second one hands its options to the first.

Exit status:
  0   ended as asked
  1   something failed; with --quit also: none is running
  2   the command line is wrong
  3   another Lumora Pen was running and has taken these options
)";

} // namespace

std::string HelpText() { return std::string(About) + Keys + Files; }

std::string VersionText()
{
    std::string text = "Lumora Pen";
    char separator = ' ';
    for (const int number :
         {LUMORA_VERSION_MAJOR, LUMORA_VERSION_MINOR, LUMORA_VERSION_BUILD, LUMORA_VERSION_REVISION}) {
        text += separator + std::to_string(number);
        separator = '.';
    }
    return text + "\n";
}

} // namespace lumora_pen
