// Names of tests that run once for each recorded step.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace zq::LM::test {

// A test's name takes no dot: "SwapChain.GetBuffer" becomes "SwapChainGetBuffer".
inline std::string StepName(const testing::TestParamInfo<const char*>& info)
{
    std::string name = info.param;
    std::erase(name, '.');
    return name;
}

} // namespace zq::LM::test
