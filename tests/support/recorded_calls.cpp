// A set of callbacks for the ink engine that keeps every call, in order, as a value that compares and prints.
#include "support/recorded_calls.h"

#include <ostream>
#include <utility>

namespace zq::LM::test {

namespace {

Call Line(const char* name, Point from, Point to, std::uint32_t width, std::uint32_t colour)
{
    return {name, {from.x, from.y, width, colour, to.x, to.y, width, colour}};
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Call& call)
{
    out << call.name << '(';
    const char* separator = "";
    for (const std::int64_t argument : call.arguments) {
        out << separator << argument;
        separator = ", ";
    }
    return out << ')';
}

Call Clear() { return {"Clear", {}}; }

Call Present() { return {"Present", {}}; }

Call PickColor(bool clearFlag) { return {"PickColor", {clearFlag}}; }

Call DrawLine(Point from, Point to, std::uint32_t width, std::uint32_t colour)
{
    return Line("DrawLine", from, to, width, colour);
}

Call EraseLine(Point from, Point to, std::uint32_t width, std::uint32_t colour)
{
    return Line("EraseLine", from, to, width, colour);
}

Call DrawPenData(std::size_t samples, std::uint32_t brushSize, std::uint32_t colour)
{
    return {"DrawPenData", {static_cast<std::int64_t>(samples), brushSize, colour}};
}

void RecordedCalls::BindTo(Drawing& drawing)
{
    const auto line = [this](const char* name) {
        return [this, name](int x1, int y1, int w1, unsigned c1, int x2, int y2, int w2, unsigned c2) {
            Add_({name, {x1, y1, static_cast<unsigned>(w1), c1, x2, y2, static_cast<unsigned>(w2), c2}});
        };
    };
    drawing.SetCallbacks([this] { Add_(Clear()); }, [this] { Add_(Present()); },
                         [this](bool clearFlag) {
                             Add_(PickColor(clearFlag));
                             if (whenPicked) {
                                 whenPicked(clearFlag);
                             }
                             return screenColour;
                         },
                         line("DrawLine"), line("EraseLine"),
                         [this](std::vector<PenData>* samples, unsigned brushSize, unsigned colour) {
                             Add_(DrawPenData(samples->size(), brushSize, colour));
                             penData = *samples;
                         });
    drawing.SetDrawTextCallback([this](int x, int y, unsigned size, unsigned colour, const char*) {
        Add_({"DrawText", {x, y, size, colour}});
    });
}

Calls RecordedCalls::Take() { return std::exchange(calls, {}); }

Calls RecordedCalls::TakeBetweenClearAndPresent()
{
    Calls between;
    bool inside = false;
    for (Call& call : Take()) {
        if (call == Clear()) {
            inside = true;
        } else if (call == Present()) {
            inside = false;
        } else if (inside) {
            between.push_back(std::move(call));
        }
    }
    return between;
}

void RecordedCalls::Add_(Call call) { calls.push_back(std::move(call)); }

} // namespace zq::LM::test
