// What libFuzzer and the corpus's replay call with each input. The name is libFuzzer's.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
