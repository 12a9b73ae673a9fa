// Gives a fuzz target every file of a folder, in place of a fuzzer: replay_corpus FOLDER.
#include "fuzz/fuzz_target.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fprintf(stderr, "Usage: %s FOLDER\n", arguments[0]);
        return 2;
    }
    int replayed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++replayed;
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
