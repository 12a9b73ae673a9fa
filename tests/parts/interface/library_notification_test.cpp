// What the library says and does at process and thread notifications. Its code is linked into this program,
// so that it can be told of any notification in any state.
#include "interface/instance.h"
#include "interface/library_notification.h"
#include "log/debug_log.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zq::LM {
namespace {

using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using Lines = std::vector<LogLine>;

constexpr const char* ProcessAttach = "ul_reason_for_call = DLL_PROCESS_ATTACH\n";
constexpr const char* ProcessDetach = "ul_reason_for_call = DLL_PROCESS_DETACH\n";
constexpr const char* ThreadAttach = "ul_reason_for_call = DLL_THREAD_ATTACH\n";
constexpr const char* ThreadDetach = "ul_reason_for_call = DLL_THREAD_DETACH\n";

HMODULE ThisModule() { return GetModuleHandleW(nullptr); }

Lines Notify(DWORD reason)
{
    const RecordedLog log;
    HandleNotification(ThisModule(), reason);
    return log.Lines();
}

class LibraryNotification : public ::testing::TestWithParam<std::uint32_t> {
protected:
    static Lines FromNormalOn(const char* text) { return GetParam() >= 2 ? Lines{{true, text}} : Lines{}; }

    LogLevel level{GetParam()};
};

TEST_P(LibraryNotification, OfProcessAttachHasItsLineFromNormalOn)
{
    EXPECT_EQ(Notify(DLL_PROCESS_ATTACH), FromNormalOn(ProcessAttach));
}

TEST_P(LibraryNotification, OfProcessDetachHasItsLineFromNormalOn)
{
    EXPECT_EQ(Notify(DLL_PROCESS_DETACH), FromNormalOn(ProcessDetach));
}

TEST_P(LibraryNotification, OfThreadsHasLinesUntilTheProcessAttachAsksThemOff)
{
    EXPECT_EQ(Notify(DLL_THREAD_ATTACH), FromNormalOn(ThreadAttach));
    EXPECT_EQ(Notify(DLL_THREAD_DETACH), FromNormalOn(ThreadDetach));
    Notify(DLL_PROCESS_ATTACH);
    EXPECT_EQ(Notify(DLL_THREAD_ATTACH), Lines{});
    EXPECT_EQ(Notify(DLL_THREAD_DETACH), Lines{});
    EXPECT_EQ(Notify(DLL_PROCESS_DETACH), FromNormalOn(ProcessDetach));
}

TEST_P(LibraryNotification, OfAnUnknownReasonIsIgnored)
{
    HMODULE before = g_module;
    for (const DWORD reason : {4UL, 5UL, 255UL, 0x80000000UL, 0xFFFFFFFFUL}) {
        EXPECT_EQ(Notify(reason), Lines{});
    }
    EXPECT_EQ(g_module, before);
    EXPECT_EQ(GetDebugLevel(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Levels, LibraryNotification, ::testing::Values(0U, 1U, 2U, 3U, 254U, 255U),
                         ::testing::PrintToStringParamName());

TEST(LibraryNotificationState, HasNoModuleAndNoInstanceAtFirst)
{
    EXPECT_EQ(g_module, nullptr);
    EXPECT_EQ(g_coreHolder, nullptr);
    EXPECT_EQ(CurrentCore(), nullptr);
}

TEST(LibraryNotificationState, KeepsTheModuleOfTheProcessAttach)
{
    HandleNotification(ThisModule(), DLL_PROCESS_ATTACH);
    EXPECT_EQ(g_module, ThisModule());
    HandleNotification(nullptr, DLL_THREAD_ATTACH);
    HandleNotification(nullptr, DLL_THREAD_DETACH);
    HandleNotification(nullptr, DLL_PROCESS_DETACH);
    EXPECT_EQ(g_module, ThisModule());
}

TEST(LibraryNotificationState, ProcessAttachLeavesTheLevelAtZero)
{
    HandleNotification(ThisModule(), DLL_PROCESS_ATTACH);
    EXPECT_EQ(GetDebugLevel(), 0U);
}

TEST(LibraryNotificationState, ProcessDetachReleasesNothing)
{
    HandleNotification(ThisModule(), DLL_PROCESS_ATTACH);
    const HWND window = CreateInstance();
    ASSERT_NE(window, nullptr);
    HandleNotification(ThisModule(), DLL_PROCESS_DETACH);
    EXPECT_NE(g_coreHolder, nullptr);
    EXPECT_TRUE(IsWindow(window));
    DestroyInstance();
}

} // namespace
} // namespace zq::LM
