// A host under Wine, from the side of the measuring program.
#pragma once

#include "latency/exchange.h"
#include "latency/framebuffer.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace lumora::latency {

class Participant {
public:
    // Makes the exchange file, for which a host then is to be started. Throws std::runtime_error.
    Participant(std::string name, const std::filesystem::path& exchangeFile);
    ~Participant(); // the host ends
    Participant(const Participant&) = delete;
    Participant& operator=(const Participant&) = delete;

    const std::string& Name() const { return name; }

    // Throws std::runtime_error when the host does not show its overlay in a minute.
    void WaitUntilReady() const;

    // One run: from each sample to its pixel, in milliseconds, without those whose ink did not come. Throws
    // std::runtime_error when the host does not answer, or its clock is another one.
    std::vector<double> Measure(const Framebuffer& screen, Pace pace, std::uint32_t samples);

private:
    std::string name;
    int descriptor = -1;
    Exchange* exchange = nullptr;
};

} // namespace lumora::latency
