// What frames are drawn on and shown by: the back-ends, of which one is active, and the memory bitmap that
// two of them share.
#pragma once

#include "render/drawing_lib.h"
#include "render/memory_surface.h"
#include "render/paint_area.h"
#include "render/rendering_type.h"

#include <array>
#include <memory>
#include <vector>

namespace zq::LM {

// For whom a canvas draws.
class CanvasOwner {
public:
    // Null once the window or its instance has ended: to be asked after every call that can run host code.
    virtual HWND Window() const = 0;

    virtual const RECT& Screen() const = 0; // where the window lies; may be empty
    virtual void DrawFrame() = 0;           // one frame, between BeginFrame and EndFrame

    // What is told for diagnosis, into a frame that is open.
    virtual void DrawInformation(DrawingLib& backEnd) = 0;

protected:
    ~CanvasOwner() = default;
};

// For the window's thread. Each consultation of the active type writes its line to the log.
class Canvas {
public:
    using BackEndMaker = std::unique_ptr<DrawingLib> (*)(PaintRecord& record); // which outlives what is made
    using BackEndMakers = std::array<BackEndMaker, 3>;                         // by RenderingType

    Canvas(CanvasOwner& owner, const BackEndMakers& makers);
    ~Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // As long as one lives, ink engine, back-ends and memory bitmap are in use and must not end.
    class Use {
    public:
        explicit Use(Canvas& canvas) : depth(canvas.depth) { ++depth; }
        ~Use() { --depth; }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        unsigned& depth;
    };
    bool IsInUse() const { return depth != 0; }

    // Null where the back-end does not exist.
    DrawingLib* ActiveBackEnd() const;

    double Scale() const { return renderScale; }

    // Steps of a window's set-up: the active back-end is bound to it, false when the window would hide what
    // lies below; it is cleared to the key, if it is one
    // that the memory bitmap is copied to; the bitmap is made anew, if the active back-end draws into one.
    bool Bind();
    void ClearWindowIfMemoryDrawn() const;
    void SetUpSurface();

    // What a frame draws: a line, before it is drawn, and what has no bounds.
    void AddLine(int x1, int y1, int x2, int y2, unsigned width) { record.AddLine(x1, y1, x2, y2, width); }
    void AddText() { record.ForgetBitmap(); }

    // Somebody else has changed the window, its size or what it shows, or wants a part of it anew. A clear
    // reaches as far as the window, so after another size the bitmap is not known either.
    void ForgetFrame() { record.Forget(); }
    void AddWanted(const RECT& part);

    // The owner's screen has another place or size, and the window follows it already.
    void FollowScreen();

    // Serves WM_PAINT: asks the owner for a frame and shows it. One that the owner has not asked for itself
    // wants the part of the window that the system tells.
    void Paint(bool isOwn);

    // The ends of a frame. Nothing happens without a window: nobody would see it.
    void BeginFrame();
    void EndFrame();

    // The two ends of giving back; between them the owner gives back what draws. Each may be called again.
    void ReleaseSurface();
    void EndBackEnds();

private:
    bool HasWindow_() const { return owner.Window() != nullptr; }
    DrawingLib* WindowedBackEnd_() const;
    void SetMemoryDCEverywhere_(HDC dc);
    void PaintComposed_();
    void PaintFromMemory_(bool isOwn);
    void ShowMemory_(HDC target);
    bool KnowsFrames_() const;
    bool CopyMemory_(HDC target);

    CanvasOwner& owner;
    PaintRecord record;                                // of the bitmap and the window
    std::vector<std::unique_ptr<DrawingLib>> backEnds; // the index is the RenderingType
    MemorySurface surface;
    double renderScale = 1.0;    // pixels of the bitmap for one of the window's; nothing changes it
    unsigned depth = 0;          // of uses
    bool surfaceIsStale = false; // the screen has changed since the bitmap was made
    RenderingType boundType = RenderingType::DirectComposition; // whose back-end the window is set up for
    bool isBoundWithoutSize = false; // to a window of no size, on which a back-end may have failed
};

} // namespace zq::LM
