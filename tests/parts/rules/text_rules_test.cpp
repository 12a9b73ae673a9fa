// How narrow texts are cut before they are converted.
#include "render/text_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

namespace zq::LM {
namespace {

TEST(CutText, KeepsTheFirst100BytesAndFillsUpWithZeroes)
{
    for (const std::string& text :
         {std::string(), std::string("Ink"), std::string("\xE9\xFF"), std::string(99, 'a'),
          std::string(100, 'b'), std::string(100, 'c') + "tail"}) {
        // A copy that ends with its terminator: a sanitizer build sees any byte read beyond it.
        const auto exact = std::make_unique<char[]>(text.size() + 1);
        std::memcpy(exact.get(), text.c_str(), text.size() + 1);
        const ConvertedText cut = CutText(exact.get());
        std::string expected = text.substr(0, 100);
        expected.resize(100);
        EXPECT_EQ(std::string(cut.begin(), cut.end()), expected);
    }
}

} // namespace
} // namespace zq::LM
