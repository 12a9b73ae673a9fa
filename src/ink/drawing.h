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

// What a frame draws with. Lines take place, width and colour of one end and then of the other.
using ClearFunction = std::function<void()>;
using PresentFunction = std::function<void()>;
using PickColorFunction = std::function<unsigned(bool clearFlag)>;
using LineFunction = std::function<void(int, int, unsigned, unsigned, int, int, unsigned, unsigned)>;
using DrawTextFunction = std::function<void(int x, int y, unsigned size, unsigned colour, const char* text)>;
using DrawPenDataFunction =
    std::function<void(std::vector<PenData>* samples, unsigned brushSize, unsigned colour)>;

// What may be bound for a line: it gets the same bits for its widths.
using SignedLineFunction = std::function<void(int, int, int, unsigned, int, int, int, unsigned)>;

// A host that writes must not wait for a frame to be drawn. So input only fills a set of its own, and a frame
// takes over what has come in before it draws: the lock is held while samples come, move over or go, and the
// drawing, on the set that belongs to the overlay's thread, needs none. Samples, record and rate are locked
// apart, and whoever holds one lock asks for no other.
class Drawing {
public:
    Drawing() = default;
    ~Drawing() = default;
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    void SetCallbacks(ClearFunction clear, PresentFunction present, PickColorFunction pickColor,
                      SignedLineFunction drawLine, SignedLineFunction eraseLine,
                      DrawPenDataFunction drawPenData);
    void SetDrawTextCallback(DrawTextFunction drawText);

    // How much larger to draw than the samples say. Nothing that would turn ink into a point or upside down
    // is taken.
    void SetScale(double newScale);

    // For a back-end with hollow strokes of its own: it gets the samples themselves, not lines that draw one.
    void SetVectorOutline(bool on);

    // Null is ignored.
    void SetParams(const Params* source);
    void GetCopiedParams(Params* out);
    std::uint32_t EnabledOptions(std::uint32_t mask);

    // Any thread. Raises std::bad_alloc when the pending set cannot grow.
    void AddPenDataAry(const PenData* samples, std::size_t count);

    // The overlay's thread.
    void DeleteOldPenData();
    std::int64_t LivePointsNum();
    std::uint32_t PenReoprtRate(); // spelt as the log spells it, which viewers search
    void ClearLivePenData();

    // One frame. What it needs must be bound: it raises std::bad_function_call otherwise.
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
