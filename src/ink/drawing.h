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

// What a frame draws with. Lines give both ends: x1, y1, width 1, colour 1, x2, y2, width 2, colour 2.
using ClearFunction = std::function<void()>;
using PresentFunction = std::function<void()>;
using PickColorFunction = std::function<unsigned(bool clearFlag)>;
using LineFunction = std::function<void(int, int, unsigned, unsigned, int, int, unsigned, unsigned)>;
using DrawTextFunction = std::function<void(int x, int y, unsigned size, unsigned colour, const char* text)>;
using DrawPenDataFunction =
    std::function<void(std::vector<PenData>* samples, unsigned brushSize, unsigned colour)>;

// Line callables arrive with signed widths; the values pass through unchanged.
using SignedLineFunction = std::function<void(int, int, int, unsigned, int, int, int, unsigned)>;

// Samples go through two stages. The host's thread appends to the pending set under a mutex. Each frame, on
// the overlay's thread, moves what is pending to the end of the live set, removes what is older than the ink
// life and redraws the rest from scratch through the callbacks. Only the overlay's thread changes the live
// set, so it reads it without the lock. The three mutexes are never held two at once.
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

    // Factor for every coordinate and width; ignored unless above 0.
    void SetScale(double newScale);

    // True hands outline-only strokes whole to the pen-data callback.
    void SetVectorOutline(bool on);

    // Copies of the whole record, in and out. Null does nothing.
    void SetParams(const Params* source);
    void GetCopiedParams(Params* out);
    std::uint32_t EnabledOptions(std::uint32_t mask);

    // Any thread. Raises std::bad_alloc when the pending set cannot grow.
    void AddPenDataAry(const PenData* samples, std::size_t count);

    // The overlay's thread.
    void DeleteOldPenData();
    std::int64_t LivePointsNum();
    std::uint32_t PenReoprtRate(); // The spelling is the interface's own, in its log lines too.
    void ClearLivePenData();

    // One frame. Raises std::bad_function_call when a callback that it needs is empty.
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

    std::mutex samplesMutex; // pendingSamples, livePointsNum, and every change of liveSamples
    std::vector<PenData> liveSamples;
    std::vector<PenData> pendingSamples;
    std::int64_t livePointsNum = 0;
    std::int32_t cursorSize = 10;
    std::int32_t cursorMargin = 2;
    std::int32_t offsetX = 0;
    std::int32_t offsetY = -50; // up
    std::int32_t hollowInset = 4;
    double scale = 1.0;
    Params params = DefaultParams; // frames read it without paramsMutex: a torn read mixes one frame at worst
    std::mutex paramsMutex;        // whole copies into and out of params
    std::mutex rateMutex;
    std::uint32_t penReportRate = 0; // samples per second
    bool vectorOutline = false;
    ClearFunction clearCallback;
    PresentFunction presentCallback;
    PickColorFunction pickColorCallback;
    LineFunction drawLineCallback;
    LineFunction eraseLineCallback;
    DrawTextFunction drawTextCallback; // held for hosts of the engine; no frame calls it
    DrawPenDataFunction drawPenDataCallback;
};

} // namespace zq::LM
