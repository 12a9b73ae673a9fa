// Narrow texts made wide for the back-ends.
#include "render/text_conversion.h"

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

} // namespace zq::LM
