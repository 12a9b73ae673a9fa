// The library with one of its back-ends, set to draw plain lines of one width.
#include "latency/ink_sink.h"

#include "library_file.h"

#include <vector>

namespace lumora::latency {

namespace {

class LibrarySink final : public InkSink {
public:
    LibrarySink(const std::filesystem::path& library, BackEnd backEnd)
        : overlay({backEnd, 0}, replay::LoadLibraryFile(library))
    {
        overlay.ChangeParams([](Params& params) {
            params.inkDecayTime = std::chrono::milliseconds(InkLifeMs);
            params.brushSize = InkWidth;
            params.minBrushSize = InkWidth;
            params.usePressure = false;
            params.cursor = false;
        });
    }

    void Input(std::span<const LM_PenData> samples) override
    {
        overlay.Input(samples.data(), samples.size());
    }

private:
    Overlay overlay;
};

} // namespace

std::unique_ptr<InkSink> MakeLibrarySink(const std::filesystem::path& library, BackEnd backEnd)
{
    return std::make_unique<LibrarySink>(library, backEnd);
}

} // namespace lumora::latency
