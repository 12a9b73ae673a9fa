// Names of tests that run once for each row of a table.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace zq::LM::test {

// The row's name, or the row itself where it is a text. A test's name takes no dot: "SwapChain.GetBuffer"
// becomes "SwapChainGetBuffer".
struct RowName {
    template <typename Row> std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        std::string name;
        if constexpr (std::is_convertible_v<Row, std::string>) {
            name = row.param;
        } else {
            name = row.param.name;
        }
        std::erase(name, '.');
        return name;
    }
};

} // namespace zq::LM::test
