// Any bytes as a brush-data message, on both roads: they agree, change only what the kind may change, and
// touch no byte but their own, which the sanitizers watch.
#include "settings/brush_data.h"

#include "fuzz/fuzz_target.h"
#include "support/distinct_params.h"

#include <algorithm>
#include <vector>

namespace zq::LM {

using test::Distinct;
using test::Same;

namespace {

using Bytes = std::vector<std::uint8_t>;

// What no message of the kind may change is put back; then nothing may differ.
void RequireOnlyTheKindsChanges(BrushDataKind kind, Params params)
{
    const Params before = Distinct();
    if (kind == BrushDataKind::InkColor || kind == BrushDataKind::BrushParams) {
        params.inkColor = before.inkColor;
    }
    if (kind == BrushDataKind::BrushSize || kind == BrushDataKind::BrushParams) {
        params.minBrushSize = before.minBrushSize;
        params.brushSize = before.brushSize;
    }
    if (kind == BrushDataKind::InkDecayTime) {
        params.inkDecayTime = before.inkDecayTime;
    }
    if (kind != BrushDataKind::Nothing) {
        Require(params.colorPicker == 0, "an applied message leaves colour picking on");
        params.colorPicker = before.colorPicker;
    }
    Require(Same(params, before), "a field changes that is not of the kind");
}

std::uint32_t PayloadSize(const Bytes& message, BrushDataKind kind)
{
    const std::size_t offset = 2U * (BrushDataNameLength(static_cast<unsigned>(kind)) + 1U);
    std::uint32_t size = 0;
    for (unsigned i = 0; i < sizeof(size); ++i) {
        size |= static_cast<std::uint32_t>(message[offset + i]) << (8 * i);
    }
    return size;
}

// The host answers for its buffer: it is exactly as large as what is read and wiped, and begins at an address
// of any kind.
void TryHostsRoad(const Bytes& padded, BrushDataKind kind, const Params& expected)
{
    constexpr std::uint64_t LargestBuffer = 1 << 16;
    const std::uint64_t wiped =
        kind == BrushDataKind::Nothing ? 0 : BrushDataWipeLength(kind, PayloadSize(padded, kind));
    if (wiped > LargestBuffer) {
        return; // no host has it
    }
    Bytes message = padded;
    message.resize(std::max(padded.size(), static_cast<std::size_t>(wiped)), 0xEE);
    Bytes left = message;
    std::fill_n(left.begin(), wiped, std::uint8_t{0});
    const std::size_t offset = padded.size() % 2;
    Bytes buffer(offset + message.size(), 0xEE);
    std::uint8_t* const begin = buffer.data() + offset;
    std::copy(message.begin(), message.end(), begin);

    Params params = Distinct();
    Require(DecodeBrushData(params, begin) == kind, "the roads find different kinds");
    Require(Same(params, expected), "the roads give different records");
    Require(std::equal(left.begin(), left.end(), begin), "another part of the message is wiped");
    if (kind != BrushDataKind::Nothing) {
        Require(FindBrushDataKind(begin) == BrushDataKind::Nothing, "a message is consumed twice");
    }
}

} // namespace
} // namespace zq::LM

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zq::LM;
    Bytes received(data, data + size);
    Bytes padded = received;
    padded.resize(std::max(size, BrushDataReach), 0);

    Params params = Distinct();
    const BrushDataKind kind = DecodeReceivedBrushData(params, received);
    Require(std::equal(received.begin(), received.end(), data), "what was received is changed");
    RequireOnlyTheKindsChanges(kind, params);
    TryHostsRoad(padded, kind, params);
    return 0;
}
