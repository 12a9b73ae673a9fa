// Any bytes as what a host does to the ink engine: its plain reference does the same.
#include "engine/engine_pair.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/step_bytes.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zq::LM::test;
    const Steps steps = StepBytes(data, size).Read();
    if (!Difference(steps).empty()) {
        std::fprintf(stderr, "engine and reference differ in\n%s\n", DifferenceAndTest(steps).c_str());
        std::abort();
    }
    return 0;
}
