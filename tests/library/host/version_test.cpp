// The library's version: in its file, and in the log when an instance is created.
#include "support/hook/hooks.h"
#include "support/library/overlay_test.h"

#include <string>

namespace zq::LM {
namespace {

using test::Hook;
using test::LogLine;
using test::OverlayTest;

class Version : public OverlayTest {
protected:
    // All lines of one creation at the level of the version line.
    std::vector<LogLine> CreationLines(std::uint32_t level = 1)
    {
        library.SetDebugLevel(level);
        debugger.Clear();
        library.Create();
        return debugger.Lines();
    }

    void ExpectVersionZero()
    {
        EXPECT_EQ(CreationLines(), (std::vector<LogLine>{{true, "zq::CallFunc::Create\n"},
                                                         {false, test::VersionLine(0, 0, 0, 0)}}));
        EXPECT_TRUE(IsWindow(library.GetWindowHandle()));
    }
};

TEST_F(Version, IsLoggedNarrowAndWithoutALineEndAfterTheExportsLine)
{
    EXPECT_EQ(CreationLines(),
              (std::vector<LogLine>{{true, "zq::CallFunc::Create\n"}, {false, test::VersionLine()}}));
}

TEST_F(Version, IsNotLoggedAtLevelZero) { EXPECT_TRUE(CreationLines(0).empty()); }

TEST_F(Version, IsLoggedByEveryNewCore)
{
    CreationLines();
    const std::vector<LogLine> first = debugger.Lines();
    EXPECT_EQ(CreationLines(), first);
    Choose(test::ChooseGDI);
    debugger.Clear();
    Input({test::Sample(100, 100)}); // rebuilds; pen input itself is logged from level 2 on
    EXPECT_EQ(debugger.Lines(), (std::vector<LogLine>{first.at(1)}));
}

TEST_F(Version, IsZeroWhenItsSizeCannotBeRead)
{
    Hook<"GetFileVersionInfoSizeW", decltype(GetFileVersionInfoSizeW)> size(library.Module());
    size.Fail(DWORD{0});
    ExpectVersionZero();
    EXPECT_EQ(size.Count(), 1U);
}

TEST_F(Version, IsZeroWhenItsBlockCannotBeRead)
{
    Hook<"GetFileVersionInfoW", decltype(GetFileVersionInfoW)> block(library.Module());
    block.Fail(FALSE);
    ExpectVersionZero();
    EXPECT_EQ(block.Count(), 1U);
}

TEST_F(Version, IsZeroWhenItsNumbersCannotBeFound)
{
    Hook<"VerQueryValueW", decltype(VerQueryValueW)> query(library.Module());
    query.Fail(FALSE);
    ExpectVersionZero();
    EXPECT_EQ(query.Count(), 1U);
}

TEST_F(Version, IsReadFromTheLibrarysOwnFile)
{
    test::Hooks calls(library.Module());
    calls.Record<"GetModuleFileNameW">(GetModuleFileNameW);
    library.Create();
    EXPECT_THAT(calls.Take(), ::testing::ElementsAre(::testing::StartsWith("GetModuleFileNameW(module, ")));
}

TEST(VersionResource, OfTheFileHasTheHeadersNumbers)
{
    const DWORD size = GetFileVersionInfoSizeW(test::LibraryPath(), nullptr);
    ASSERT_NE(size, 0U);
    std::vector<unsigned char> block(size);
    ASSERT_TRUE(GetFileVersionInfoW(test::LibraryPath(), 0, size, block.data()));
    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &length));
    ASSERT_EQ(length, sizeof(*info));
    for (const auto& [high, low] : {std::pair{info->dwFileVersionMS, info->dwFileVersionLS},
                                    std::pair{info->dwProductVersionMS, info->dwProductVersionLS}}) {
        EXPECT_EQ(HIWORD(high), LUMORA_VERSION_MAJOR);
        EXPECT_EQ(LOWORD(high), LUMORA_VERSION_MINOR);
        EXPECT_EQ(HIWORD(low), LUMORA_VERSION_BUILD);
        EXPECT_EQ(LOWORD(low), LUMORA_VERSION_REVISION);
    }
    EXPECT_EQ(info->dwFileType, DWORD{VFT_DLL});
}

} // namespace
} // namespace zq::LM
