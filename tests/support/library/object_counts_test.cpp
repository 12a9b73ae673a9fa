// The counts by which leaks are found, held against objects made and ended here.
#include "support/library/object_counts.h"

#include <gtest/gtest.h>

#include <vector>

using namespace zq::LM::test;

TEST(KernelHandleCount, CountsEachOnceAlsoBehindThoseThatAreClosed)
{
    constexpr std::size_t Events = 100;
    const std::size_t before = KernelHandles();
    std::vector<HANDLE> events;
    for (std::size_t i = 0; i < Events; ++i) {
        events.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        ASSERT_NE(events.back(), nullptr);
    }
    EXPECT_EQ(KernelHandles(), before + Events);

    for (std::size_t i = 0; i + 1 < Events; ++i) {
        CloseHandle(events[i]);
    }
    EXPECT_EQ(KernelHandles(), before + 1);

    CloseHandle(events.back());
    EXPECT_EQ(KernelHandles(), before);
}

TEST(OverlayClassCount, CountsThoseOfOneModuleUntilTheyAreGivenBack)
{
    HMODULE module = GetModuleHandleW(nullptr);
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = module;
    for (const wchar_t* name : {L"Lumora Window Class_00000", L"Lumora Window Class_00001"}) {
        description.lpszClassName = name;
        ASSERT_NE(RegisterClassExW(&description), 0);
    }
    EXPECT_EQ(OverlayClasses(module), 2U);
    EXPECT_EQ(OverlayClasses(GetModuleHandleW(L"user32.dll")), 0U);

    GiveBackOverlayClasses(module);
    EXPECT_EQ(OverlayClasses(module), 0U);
}
