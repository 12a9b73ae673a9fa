// How narrow texts are cut before they are converted.
#include "render/text_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace zq::LM {
namespace {

std::string UpToItsEnd(const ConvertedText& text)
{
    return {text.begin(), std::find(text.begin(), text.end(), '\0')};
}

std::ptrdiff_t Zeroes(const ConvertedText& text) { return std::count(text.begin(), text.end(), '\0'); }

TEST(CutText, Gives100Bytes) { EXPECT_EQ(CutText("").size(), 100U); }

TEST(CutText, EmptyTextIsAllZeroes) { EXPECT_EQ(Zeroes(CutText("")), 100); }

TEST(CutText, ShortTextKeepsItsBytesAndIsFilledWithZeroes)
{
    const ConvertedText cut = CutText("Ink");
    EXPECT_EQ(UpToItsEnd(cut), "Ink");
    EXPECT_EQ(Zeroes(cut), 97);
}

TEST(CutText, TextOf99BytesKeepsItsTerminator)
{
    const std::string text(99, 'a');
    EXPECT_EQ(UpToItsEnd(CutText(text.c_str())), text);
    EXPECT_EQ(Zeroes(CutText(text.c_str())), 1);
}

TEST(CutText, TextOf100BytesIsWholeWithoutATerminator)
{
    const std::string text(100, 'b');
    EXPECT_EQ(UpToItsEnd(CutText(text.c_str())), text);
}

TEST(CutText, LongerTextIsCutToItsFirst100Bytes)
{
    const std::string text = std::string(100, 'c') + "tail";
    EXPECT_EQ(UpToItsEnd(CutText(text.c_str())), std::string(100, 'c'));
}

TEST(CutText, ReadsNothingBehindTheTerminator)
{
    // An array that ends with its terminator: a sanitizer build sees any byte read beyond it.
    const auto text = std::make_unique<char[]>(2);
    text[0] = 'x';
    EXPECT_EQ(UpToItsEnd(CutText(text.get())), "x");
}

TEST(CutText, KeepsBytesAbove127)
{
    const ConvertedText cut = CutText("\xE9\xFF");
    EXPECT_EQ(UpToItsEnd(cut), "\xE9\xFF");
}

} // namespace
} // namespace zq::LM
