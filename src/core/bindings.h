// The free functions through which the system and the ink engine reach the Core.
#pragma once

#include "ink/pen_data.h"
#include "platform/win32/windows_header.h"

#include <vector>

namespace zq::LM {

class Core;
class Drawing;

// The Core whose window is about to be created becomes the one that is reached; its end is told too, so that
// nothing reaches it afterwards.
void ReachCore(Core* core);
void ForgetCore(const Core* core);

// Serves the window of the reached Core. No exception leaves it. A window that has lost its Core stays
// cleared.
LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Gives the engine its callbacks, which are the seven below.
void BindCallbacks(Drawing& engine);

// Each goes to the active back-end of the reached Core, whoever's engine calls. Without a Core they do
// nothing.
void ClearCallback();
void PresentCallback();
unsigned PickScreenColorCallback(bool clearFlag);
void DrawLineCallback(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2);
void EraseLineCallback(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2);
void DrawPenDataCallback(std::vector<PenData>* samples, unsigned width, unsigned colour);
void DrawTextCallback(int x, int y, unsigned size, unsigned colour, const char* text);

} // namespace zq::LM
