// Reads the points of an InkML trace: values as they are, as differences and as differences of differences.
#include "ink_points.h"
#include "number_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace lumora::replay {

namespace {

enum class Order { Explicit, Difference, SecondDifference };

// What a channel's next value builds upon.
struct ChannelState {
    Order order = Order::Explicit;
    std::optional<double> value;
    std::optional<double> velocity;
    double acceleration = 0;
};

class PointReader {
public:
    PointReader(const InkText& inkText, const InkFormat& inkFormat)
        : source(inkText), text(inkText.Text()), format(inkFormat), regularCount(inkFormat.RegularCount()),
          states(inkFormat.channels.size()), point(inkFormat.channels.size())
    {
        for (std::size_t i = 0; i < states.size(); ++i) {
            states[i].value = format.channels[i].initial;
        }
    }

    void ReadAll(const TakeInkPoint& take)
    {
        for (SkipBlanks_(); position < text.size(); SkipBlanks_()) {
            const std::size_t start = position;
            ReadPoint_();
            if (const std::optional<std::string> reason = take(point)) {
                position = start;
                Fail_(*reason);
            }
        }
    }

private:
    [[noreturn]] void Fail_(const std::string& reason) const
    {
        throw RecordingFault(source.LineAt(position), reason);
    }

    bool AtPointEnd_() const { return position == text.size() || text[position] == ','; }

    void SkipBlanks_() { position = std::min(text.find_first_not_of(XmlBlanks, position), text.size()); }

    // Leaves the position behind the comma that ends the point.
    void ReadPoint_()
    {
        const std::size_t start = position;
        std::size_t count = 0;
        for (; !AtPointEnd_(); SkipBlanks_()) {
            if (count == states.size()) {
                Fail_("a point has more values than the trace format has channels (" + format.Names() + ")");
            }
            ReadValue_(count);
            ++count;
        }
        if (count < regularCount) {
            position = start;
            Fail_("a point has " + std::to_string(count) + " of the " + std::to_string(regularCount) +
                  " values that it must have (" + format.Names() + ")");
        }
        // A channel that the point leaves out goes on as it did.
        for (; count < states.size(); ++count) {
            point[count] = Continued_(states[count]);
        }
        position += position < text.size() ? 1U : 0U;
    }

    void ReadValue_(std::size_t channel)
    {
        ChannelState& state = states[channel];
        const char first = text[position];
        if (first == '?') {
            ++position;
            point[channel] = std::nullopt;
        } else if (first == '*') {
            point[channel] = Continued_(state);
            if (!point[channel] && !format.channels[channel].intermittent) {
                Fail_("* repeats a value of channel " + format.channels[channel].name + " that there is not");
            }
            ++position;
        } else if (first == 'T' || first == 'F') {
            if (!format.channels[channel].boolean) {
                Fail_(std::string(1, first) + " stands where channel " + format.channels[channel].name +
                      " has a number");
            }
            ++position;
            state.value = first == 'T' ? 1 : 0;
            point[channel] = state.value;
        } else {
            ReadOrder_(state);
            SkipBlanks_();
            Apply_(format.channels[channel], state, TakeNumber_());
            point[channel] = state.value;
        }
    }

    // Without a prefix the channel's last one holds.
    void ReadOrder_(ChannelState& state)
    {
        switch (text[position]) {
        case '!':
            state.order = Order::Explicit;
            break;
        case '\'':
            state.order = Order::Difference;
            break;
        case '"':
            state.order = Order::SecondDifference;
            break;
        default:
            return;
        }
        ++position;
    }

    void Apply_(const InkChannel& channel, ChannelState& state, double number) const
    {
        if (state.order == Order::Explicit) {
            state.value = number;
            state.velocity = std::nullopt;
            return;
        }
        if (!state.value) {
            Fail_("channel " + channel.name + " begins with a difference instead of a value");
        }
        if (state.order == Order::Difference) {
            state.velocity = number;
        } else {
            if (!state.velocity) {
                Fail_("channel " + channel.name + " has a second difference that follows no first one");
            }
            state.acceleration = number;
            state.velocity = *state.velocity + number;
        }
        state.value = *state.value + *state.velocity;
    }

    static std::optional<double> Continued_(ChannelState& state)
    {
        if (state.order == Order::SecondDifference) {
            state.velocity = *state.velocity + state.acceleration;
        }
        if (state.order != Order::Explicit) {
            state.value = *state.value + *state.velocity;
        }
        return state.value;
    }

    double TakeNumber_()
    {
        const std::string_view rest = text.substr(position);
        const bool negative = rest.starts_with('-');
        const std::size_t digits = rest.find_first_not_of(XmlBlanks, negative ? 1 : 0);
        const char* const begin = rest.data() + std::min(digits, rest.size());
        const char* const end = rest.data() + rest.size();
        double number = 0;
        std::from_chars_result read = {};
        if (begin != end && *begin == '#') {
            std::uint64_t bits = 0;
            read = std::from_chars(begin + 1, end, bits, 16);
            number = static_cast<double>(bits);
        } else if (begin != end && (*begin == '.' || (*begin >= '0' && *begin <= '9'))) {
            read = std::from_chars(begin, end, number);
        } else {
            read.ec = std::errc::invalid_argument;
        }
        if (read.ec == std::errc::result_out_of_range) {
            number = std::numeric_limits<double>::infinity();
        } else if (read.ec != std::errc{}) {
            const std::size_t length = rest.find_first_of(" \t\r\n,");
            Fail_("a value is expected here, not " + Quoted(rest.substr(0, length)));
        }
        position += static_cast<std::size_t>(read.ptr - rest.data());
        return negative ? -number : number;
    }

    const InkText& source;
    std::string_view text;
    const InkFormat& format;
    std::size_t regularCount;
    std::size_t position = 0;
    std::vector<ChannelState> states;
    InkPoint point;
};

} // namespace

void InkText::Append(std::string_view piece, std::size_t line)
{
    pieces.push_back({text.size(), line});
    text += piece;
}

std::size_t InkText::LineAt(std::size_t offset) const
{
    const auto next = std::find_if(pieces.begin(), pieces.end(),
                                   [offset](const Piece& piece) { return piece.offset > offset; });
    const Piece& piece = *(next - 1);
    const std::string_view before = Text().substr(piece.offset, offset - piece.offset);
    return piece.line + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

void ReadInkPoints(const InkText& text, const InkFormat& format, const TakeInkPoint& take)
{
    PointReader(text, format).ReadAll(take);
}

} // namespace lumora::replay
