// The ink engine: keeps pen samples, ages them out and turns the live ones into line calls.
#pragma once

#include "ink/params.h"
#include "ink/pen_data.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <vector>

namespace zq::LM {

// What a frame draws with. Lines take place, width and colour of one end and then of the other; both ends get
// the same width and colour. Places and widths are pixels times the scale, truncated toward zero; widths have
// all 32 bits, and a line of width 0 is drawn too, only not erased. Colours are 0x00BBGGRR; the ink's top
// byte passes as it is.
using ClearFunction = std::function<void()>;
using PresentFunction = std::function<void()>;
using PickColorFunction = std::function<unsigned(bool clearFlag)>; // true: this touch ends the picking
using LineFunction = std::function<void(int, int, unsigned, unsigned, int, int, unsigned, unsigned)>;
using DrawTextFunction = std::function<void(int x, int y, unsigned size, unsigned colour, const char* text)>;
using DrawPenDataFunction =
    std::function<void(std::vector<PenData>* samples, unsigned brushSize, unsigned colour)>;

// What may be bound for a line: it gets the same bits for its widths, so one from 2^31 on is negative.
using SignedLineFunction = std::function<void(int, int, int, unsigned, int, int, int, unsigned)>;

// A host that writes must not wait for a frame to be drawn. So input only fills a set of its own, and a frame
// takes over what has come in before it draws: the lock is held while samples come, move over or go, and the
// drawing, on the set that belongs to the overlay's thread, needs none. Samples, record and rate are locked
// apart, and whoever holds one lock asks for no other.
//
// Times are readings of the millisecond clock in 32 bits. An age or a gap is their plain difference in 64
// bits: after the clock's wrap it is negative, and thus below every ink life.
class Drawing {
public:
    Drawing(); // raises std::system_error where a mutex needs memory and there is none
    ~Drawing() = default;
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    // Before the first frame, and again at any time between two. Callables are moved in; a set replaces all
    // six.
    void SetCallbacks(ClearFunction clear, PresentFunction present, PickColorFunction pickColor,
                      SignedLineFunction drawLine, SignedLineFunction eraseLine,
                      DrawPenDataFunction drawPenData);
    void SetDrawTextCallback(DrawTextFunction drawText);

    // How much larger to draw than the samples say, 1 at first. Only what is above 0 is taken: nothing else
    // would leave ink its shape and its right way up. It counts for places and widths, after the offset and
    // the outline's rim are added; not for what a back-end with strokes of its own gets.
    void SetScale(double newScale);

    // For a back-end with hollow strokes of its own: it gets the samples themselves, not lines that draw one.
    void SetVectorOutline(bool on);

    // Any thread. The record is copied whole, and null is ignored. It counts from then on, for a frame that
    // is being drawn as well; what is to let samples in is set before they are added.
    void SetParams(const Params* source);
    void GetCopiedParams(Params* out);
    std::uint32_t EnabledOptions(std::uint32_t mask); // as in params.h

    // Any thread. Samples wait for the next frame, in the order of their arrival and with the time of receipt
    // for their own. One whose x, y or time is 0 is not kept: it drops those that still wait, also those of
    // earlier calls, never a live one. While the record shows neither line, outline, cursor nor picker,
    // nothing is read at all. Raises std::bad_alloc when the pending set cannot grow.
    void AddPenDataAry(const PenData* samples, std::size_t count);

    // All below belong to the overlay's thread, but the two numbers may be read on any.

    // Drops live samples from the oldest on, up to the first whose age is below the ink life: one exactly as
    // old as the ink life goes, and one behind a younger one stays. Pending samples do not age.
    void DeleteOldPenData();

    // Two numbers in turn. From adding on it is how many samples are pending, 0 after one that drops them
    // though ink may be live; from the next frame or ageing on it is how many are live.
    std::int64_t LivePointsNum();

    // Samples per second, as the last frame measured it before it dropped old ones; 0 for fewer than two, and
    // when no time or a negative one lies between the first and the last. Spelt as the log spells it, which
    // viewers search.
    std::uint32_t PenReoprtRate();

    // Leaves pending samples, and the count until the next frame or ageing.
    void ClearLivePenData();

    // One frame: takes over what is pending, measures the rate, drops old samples, lets the newest touch pick
    // its colour, and then clears, draws strokes and cursor from the live ones and presents. A segment is
    // drawn while its older sample's age is below the ink life, its outline while the gap between its two
    // samples is; both samples have to touch. What it needs must be bound: it raises std::bad_function_call
    // otherwise.
    void DrawLumoraLines();

private:
    struct Segment {
        std::int32_t x1, y1, x2, y2;
        std::uint32_t width; // before scaling
    };

    void AddPenDataAryCore_(const PenData* samples, std::size_t count);
    void AddPenData_(const PenData& sample);
    void MovePenData_();
    void CalcPenReportRate_();
    void DeleteOldPenDataCore_();

    // A line about a time difference that runs backwards; `operation` is the member that met it.
    static void LogTimeWarning_(const char* operation, long long timeSub);

    void PickColor_();
    void DrawStrokes_();
    void DrawLumoraLinesBody_Main_();
    void DrawLumoraLinesBody_Outline_();
    void DrawLumoraLinesBody_Hollow_();
    void DrawCursor_();
    void DrawSwatch_(const PenData& pen);
    void DrawCrossHair_(const PenData& pen);
    void DrawSegment_(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2);

    Segment MakeSegment_(const PenData& older, const PenData& newer) const;
    std::int32_t ScaledCoordinate_(std::int32_t value) const;
    std::uint32_t ScaledWidth_(std::uint32_t width) const;

    std::mutex samplesMutex; // for liveSamples only where it changes
    std::vector<PenData> liveSamples;
    std::vector<PenData> pendingSamples;
    std::int64_t livePointsNum = 0;
    std::int32_t cursorSize = 10;
    std::int32_t cursorMargin = 2;
    std::int32_t offsetX = 0;
    std::int32_t offsetY = -50; // up
    std::int32_t hollowInset = 4;
    double scale = 1.0;
    Params params = DefaultParams; // not locked while drawing: a change in the middle spoils one frame only
    std::mutex paramsMutex;        // for copies of the record
    std::mutex rateMutex;
    std::uint32_t penReportRate = 0; // samples per second
    bool vectorOutline = false;
    ClearFunction clearCallback;
    PresentFunction presentCallback;
    PickColorFunction pickColorCallback;
    LineFunction drawLineCallback;
    LineFunction eraseLineCallback;
    DrawTextFunction drawTextCallback; // no frame has text
    DrawPenDataFunction drawPenDataCallback;
};

} // namespace zq::LM
