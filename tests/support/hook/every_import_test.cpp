// The switch between a module and all its imports, on the test program itself.
#include "support/hook/every_import.h"
#include "support/hook/import_hook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace zq::LM::test {

namespace {

using testing::Contains;
using testing::Not;

HMODULE ThisProgram() { return GetModuleHandleW(nullptr); }

int AskForTheScreensWidth() { return GetSystemMetrics(SM_CXSCREEN); }

// A function of its own for each call: within one, clang reads the import once.
int (*const volatile ScreenWidth)() = AskForTheScreensWidth;

TEST(EveryImport, PassesCallsOnAndKnowsThem)
{
    const int width = ScreenWidth();
    EveryImport imports(ThisProgram());
    EXPECT_EQ(ScreenWidth(), width);
    EXPECT_THAT(imports.Called(), Contains("GetSystemMetrics"));
    imports.Forget();
    EXPECT_THAT(imports.Called(), Not(Contains("GetSystemMetrics")));
}

TEST(EveryImport, PassesOnWhateverTheArguments)
{
    EveryImport imports(ThisProgram());
    const RECT place = {10, 20, 30, 40};
    HWND window = CreateWindowExW(0, L"STATIC", L"Twelve arguments", WS_POPUP, place.left, place.top, 20, 20,
                                  nullptr, nullptr, nullptr, nullptr);
    RECT seen{};
    EXPECT_TRUE(GetWindowRect(window, &seen));
    EXPECT_TRUE(EqualRect(&seen, &place));
    wchar_t title[32]{};
    EXPECT_EQ(GetWindowTextW(window, title, 32), 16);
    EXPECT_TRUE(DestroyWindow(window));
    EXPECT_THAT(imports.Called(), Contains("CreateWindowExW"));
}

TEST(EveryImport, FailsTheCallsThatItIsToldTo)
{
    const int width = ScreenWidth();
    EveryImport imports(ThisProgram());
    imports.Fail("GetSystemMetrics", 2, 1);
    EXPECT_EQ(ScreenWidth(), width);
    EXPECT_EQ(imports.Failures(), 0U);
    EXPECT_EQ(ScreenWidth(), 0);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NOT_ENOUGH_MEMORY});
    EXPECT_EQ(ScreenWidth(), width);
    EXPECT_EQ(imports.Failures(), 1U);
    imports.Fail("GetSystemMetrics", 1);
    EXPECT_EQ(ScreenWidth(), 0);
    EXPECT_EQ(ScreenWidth(), 0);
    imports.FailNothing();
    EXPECT_EQ(ScreenWidth(), width);
}

TEST(EveryImport, WhatGivesSomethingBackHasDoneSo)
{
    EveryImport imports(ThisProgram());
    HWND window =
        CreateWindowExW(0, L"STATIC", L"Gone", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    imports.Fail("DestroyWindow", 1);
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_FALSE(IsWindow(window));
}

TEST(EveryImport, HooksBelowGoOnWorking)
{
    Hook<"GetSystemMetrics", decltype(GetSystemMetrics)> below(ThisProgram(), [](int) { return 7; });
    EveryImport imports(ThisProgram());
    EXPECT_EQ(ScreenWidth(), 7);
    imports.Fail("GetSystemMetrics", 1, 1);
    EXPECT_EQ(ScreenWidth(), 0);
    EXPECT_EQ(ScreenWidth(), 7);
    EXPECT_EQ(below.Count(), 2U);
}

TEST(EveryImport, LeavesNothingBehind)
{
    void** const entry = FindImport(ThisProgram(), "GetSystemMetrics");
    const void* const before = *entry;
    {
        const EveryImport imports(ThisProgram());
        EXPECT_NE(*entry, before);
    }
    EXPECT_EQ(*entry, before);
}

TEST(EveryImport, RaisesForAFunctionThatIsNotImportedOrCannotFail)
{
    EveryImport imports(ThisProgram());
    EXPECT_THROW(imports.Fail("NobodyHasThis", 1), std::runtime_error);
    EXPECT_FALSE(FailureOf("USER32.dll", "IsWindow"));
    EXPECT_FALSE(FailureOf("msvcrt.dll", "strcmp"));
    EXPECT_TRUE(FailureOf("msvcrt.dll", "malloc"));
}

TEST(EveryImport, KnowsHowEachLibraryTellsAFailure)
{
    EXPECT_EQ(FailureOf("d2d1.dll", "D2D1CreateFactory")->answer, E_FAIL);
    EXPECT_NE(FailureOf("gdiplus.dll", "GdipDrawLineI")->answer, 0);
    EXPECT_EQ(FailureOf("WS2_32.dll", "socket")->answer, -1);
    EXPECT_EQ(FailureOf("GDI32.dll", "GetPixel")->answer, static_cast<std::intptr_t>(CLR_INVALID));
    EXPECT_EQ(FailureOf("USER32.dll", "CreateWindowExW")->answer, 0);
}

} // namespace

} // namespace zq::LM::test
