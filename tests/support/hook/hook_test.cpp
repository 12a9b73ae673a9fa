// The hook by itself, on imports of the test program.
#include "support/hook/hooks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace zq::LM::test {

namespace {

using testing::ElementsAre;
using Metrics = Hook<"GetSystemMetrics", decltype(GetSystemMetrics)>;

HMODULE Program() { return GetModuleHandleW(nullptr); }

int Ask() { return GetSystemMetrics(SM_CXSCREEN); }

class HookTest : public testing::Test {
protected:
    const int real = Ask();
};

TEST_F(HookTest, CountsCallsAndPassesThemOn)
{
    Metrics hook(Program());
    EXPECT_EQ(Ask(), real);
    EXPECT_EQ(Ask(), real);
    EXPECT_EQ(hook.Count(), 2U);
    hook.Forget();
    EXPECT_EQ(hook.Count(), 0U);
}

TEST_F(HookTest, AnswersUntilItPassesOnAgainOrIsGone)
{
    {
        Metrics hook(Program(), [](int index) { return -index - 1; });
        EXPECT_EQ(Ask(), -SM_CXSCREEN - 1);
        hook.PassOn();
        EXPECT_EQ(Ask(), real);
        hook.Answer([&hook](int index) { return hook.Real(index) + 1; });
        EXPECT_EQ(Ask(), real + 1);
    }
    EXPECT_EQ(Ask(), real);
}

TEST_F(HookTest, FailsTheCallsThatItIsToldTo)
{
    Metrics hook(Program());
    const auto threeCalls = [] { return std::vector<int>{Ask(), Ask(), Ask()}; };
    hook.Fail(-1);
    EXPECT_THAT(threeCalls(), ElementsAre(-1, -1, -1));
    hook.Fail(-1, 2);
    EXPECT_THAT(threeCalls(), ElementsAre(real, -1, -1));
    hook.Fail(-1, 2, 1);
    EXPECT_THAT(threeCalls(), ElementsAre(real, -1, real));
    EXPECT_EQ(hook.Count(), 9U);
}

TEST_F(HookTest, RunsCodeOfTheTestAroundTheCall)
{
    std::vector<std::string> order;
    Metrics hook(Program(), [&](int) {
        order.push_back("call");
        return 7;
    });
    hook.Before([&](int index) { order.push_back("before " + std::to_string(index)); });
    hook.After([&](int) { order.push_back("after"); });
    EXPECT_EQ(Ask(), 7);
    EXPECT_THAT(order, ElementsAre("before 0", "call", "after"));
}

TEST_F(HookTest, PassesOnToTheHookBeforeItWhicheverGoesFirst)
{
    for (const bool firstGoesFirst : {false, true}) {
        auto first = std::make_unique<Metrics>(Program(), [](int) { return 1; });
        auto second = std::make_unique<Metrics>(Program());
        second->Answer([&](int index) { return 10 + second->Real(index); });
        EXPECT_EQ(Ask(), 11);
        (firstGoesFirst ? first : second).reset();
        EXPECT_EQ(Ask(), firstGoesFirst ? 10 + real : 1);
        first.reset();
        second.reset();
        EXPECT_EQ(Ask(), real);
    }
}

TEST_F(HookTest, RaisesWhenThereIsNoSuchImport)
{
    using Unknown = Hook<"NoSuchFunction", void()>;
    EXPECT_THROW(Unknown{Program()}, std::runtime_error);
}

TEST_F(HookTest, OfASetWritesToItsLogInOrderWithNamesOfHandles)
{
    Hooks calls(Program());
    calls.Record<"CreateSolidBrush">(CreateSolidBrush);
    calls.Record<"DeleteObject">(DeleteObject);
    calls.Record<"MulDiv">(MulDiv);
    DeleteObject(CreateSolidBrush(0x00FF00FF));
    EXPECT_EQ(MulDiv(6, 70'000, -3), -140'000);
    EXPECT_EQ(calls.Count("DeleteObject"), 1U);
    EXPECT_THAT(calls.Take(), ElementsAre("CreateSolidBrush(0xFF00FF)", "DeleteObject(brush 0xFF00FF)",
                                          "MulDiv(6, 0x11170, -3)"));
    EXPECT_THAT(calls.Take(), testing::IsEmpty());
}

TEST_F(HookTest, OfASetKeepsItsAnswerWhenItIsRecordedAgain)
{
    Hooks calls(Program());
    calls.Answer<"GetSystemMetrics">(GetSystemMetrics, [](int) { return 5; });
    calls.Record<"GetSystemMetrics">(GetSystemMetrics);
    EXPECT_EQ(Ask(), 5);
    EXPECT_THAT(calls.Take(), ElementsAre("GetSystemMetrics(0)"));
}

} // namespace

} // namespace zq::LM::test
