// lumora-replay: plays a pen recording as ink on the screen.
#include "console.h"
#include "run_replay.h"

int wmain(int argc, wchar_t** argv)
{
    return lumora::replay::RunReplay(lumora::replay::Utf8Arguments(argc, argv));
}
