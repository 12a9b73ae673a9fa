// lumora-replay: plays a pen recording as ink on the screen.
#include "run_replay.h"
#include "text/wide_text.h"

int wmain(int argc, wchar_t** argv)
{
    return lumora::replay::RunReplay(lumora::text::Utf8Arguments(argc, argv));
}
