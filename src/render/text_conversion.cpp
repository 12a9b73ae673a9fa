// Narrow texts made wide for the back-ends.
#include "render/text_conversion.h"

#include "ink/truncation.h"
#include "platform/win32/windows_header.h"

namespace zq::LM {

WideText ConvertToWide(const char* text)
{
    const ConvertedText cut = CutText(text);
    WideText wide{};
    MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED, cut.data(), static_cast<int>(cut.size()), wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

void DrawNarrowText(DrawingLib& backEnd, double scale, int x, int y, unsigned colour, const char* text)
{
    const WideText wide = ConvertToWide(text);
    backEnd.DrawText(wide.data(), TruncateToSigned(x * scale), TruncateToSigned(y * scale), colour);
}

} // namespace zq::LM
