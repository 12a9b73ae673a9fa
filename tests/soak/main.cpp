// lumora_soak: the delivered library in use for a while: lumora_soak SECONDS SECONDS-A-ROW SEED CSV
#include "soak/soak.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <span>

int main(int count, char** arguments)
try {
    const std::span<char*> given(arguments, static_cast<std::size_t>(count));
    if (count != 5) {
        std::cerr << "Usage: lumora_soak SECONDS SECONDS-A-ROW SEED CSV\n";
        return 2;
    }
    std::ofstream csv(given[4]);
    if (!csv) {
        std::cerr << "lumora_soak: " << given[4] << " cannot be written\n";
        return 1;
    }
    zq::LM::soak::Soak soak(std::strtoull(given[3], nullptr, 10));
    soak.Run(std::strtod(given[1], nullptr), std::strtod(given[2], nullptr), csv);
    return 0;
} catch (const std::exception& error) {
    std::cerr << "lumora_soak: " << error.what() << '\n';
    return 1;
}
