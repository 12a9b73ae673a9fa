// The DirectComposition back-end: its slots, all forwarded to the device chain.
#include "render/direct_composition.h"

#include "log/debug_log.h"
#include "render/direct_composition_impl.h"

#include <new>

namespace zq::LM {

DirectComposition::DirectComposition() : impl(new (std::nothrow) DirectCompositionImpl) {}

DirectComposition::~DirectComposition() = default;

bool DirectComposition::InitTransparentWindow(HWND window, unsigned)
{
    LogAtNormal(L"zq::LM::DirectComposition::InitTransparentWindow\n");
    return impl != nullptr && impl->InitTransparentWindow(window);
}

bool DirectComposition::Clear() { return impl != nullptr && impl->Clear(); }

bool DirectComposition::Present() { return impl != nullptr && impl->Present(); }

void DirectComposition::DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2,
                                 unsigned width2, unsigned colour2)
{
    if (impl != nullptr) {
        impl->DrawLine(x1, y1, width1, colour1, x2, y2, width2, colour2);
    }
}

void DirectComposition::DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour)
{
    if (impl != nullptr) {
        impl->DrawPenData(samples, width, colour);
    }
}

void DirectComposition::DrawText(const wchar_t* text, int x, int y, unsigned colour)
{
    if (impl != nullptr) {
        impl->DrawText(text, x, y, colour);
    }
}

// The bound window is the one that counts.
void DirectComposition::Resize(HWND)
{
    if (impl != nullptr) {
        impl->Resize();
    }
}

void DirectComposition::FillRect(int left, int top, int right, int bottom, unsigned colour)
{
    if (impl != nullptr) {
        impl->FillRect(left, top, right, bottom, colour);
    }
}

} // namespace zq::LM
