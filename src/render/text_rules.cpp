// How narrow texts are cut before they are converted for a back-end.
#include "render/text_rules.h"

namespace zq::LM {

ConvertedText CutText(const char* text)
{
    ConvertedText cut{};
    for (std::size_t i = 0; i < cut.size() && text[i] != '\0'; ++i) {
        cut[i] = text[i];
    }
    return cut;
}

} // namespace zq::LM
