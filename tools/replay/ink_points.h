// The values in the text of an InkML trace.
#pragma once

#include "ink_format.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::replay {

// A trace's text, put together from the pieces between comments, entities and the like.
class InkText {
public:
    void Append(std::string_view piece, std::size_t line);

    std::string_view Text() const { return text; }
    std::size_t LineAt(std::size_t offset) const;

private:
    struct Piece {
        std::size_t offset = 0;
        std::size_t line = 0;
    };

    std::string text;
    std::vector<Piece> pieces;
};

// A value for each channel; none where the file says that it is not known. Truth is 1 or 0.
using InkPoint = std::vector<std::optional<double>>;

// Returns what is wrong with the point, if anything.
using TakeInkPoint = std::function<std::optional<std::string>(const InkPoint& point)>;

// Gives every point of a trace to `take`. Throws RecordingFault at the line of what cannot be read.
void ReadInkPoints(const InkText& text, const InkFormat& format, const TakeInkPoint& take);

} // namespace lumora::replay
