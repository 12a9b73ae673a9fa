// The command line of the pen host.
#include "pen-host/options.h"

#include <gtest/gtest.h>

namespace pen_host {
namespace {

TEST(PenHostOptions, HaveDefaults)
{
    const Options options = ReadOptions({});
    EXPECT_FALSE(options.help);
    EXPECT_TRUE(options.backEnd == L"composition");
    EXPECT_TRUE(options.recording.empty());
    EXPECT_TRUE(options.mistake.empty());
}

TEST(PenHostOptions, AreReadInAnyOrder)
{
    for (const Options& options : {ReadOptions({L"--record", L"--backend", L"--backend", L"gdi"}),
                                   ReadOptions({L"--backend", L"gdi", L"--record", L"--backend"})}) {
        EXPECT_TRUE(options.mistake.empty());
        EXPECT_TRUE(options.backEnd == L"gdi");
        EXPECT_TRUE(options.recording == L"--backend");
    }
}

TEST(PenHostOptions, NameEachBackEnd)
{
    for (const wchar_t* const name : {L"composition", L"direct2d", L"gdi"}) {
        const Options options = ReadOptions({L"--backend", name});
        EXPECT_TRUE(options.mistake.empty());
        EXPECT_TRUE(options.backEnd == name);
    }
}

TEST(PenHostOptions, ForHelpAreReadNoFurther)
{
    const Options options = ReadOptions({L"--help", L"--nonsense"});
    EXPECT_TRUE(options.help);
    EXPECT_TRUE(options.mistake.empty());
}

TEST(PenHostOptions, OfOtherNamesAreAMistake)
{
    EXPECT_TRUE(ReadOptions({L"--backend", L"GDI"}).mistake ==
                L"--backend needs composition, direct2d or gdi, not \"GDI\"");
    EXPECT_TRUE(ReadOptions({L"--fast"}).mistake == L"unknown argument \"--fast\"");
    EXPECT_TRUE(ReadOptions({L"gdi", L"--help"}).mistake == L"unknown argument \"gdi\"");
    EXPECT_FALSE(ReadOptions({L"gdi", L"--help"}).help);
}

TEST(PenHostOptions, WithoutTheirValueAreAMistake)
{
    EXPECT_TRUE(ReadOptions({L"--backend"}).mistake ==
                L"--backend needs composition, direct2d or gdi, not \"\"");
    EXPECT_TRUE(ReadOptions({L"--record"}).mistake == L"--record needs the name of a file");
    EXPECT_TRUE(ReadOptions({L"--record", L""}).mistake == L"--record needs the name of a file");
}

} // namespace
} // namespace pen_host
