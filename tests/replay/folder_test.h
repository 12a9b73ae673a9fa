// The common set-up of tests with files.
#pragma once

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace lumora::replay {

class FolderTest : public testing::Test {
protected:
    void Write(const std::filesystem::path& name, const std::string& text) const { place.Write(name, text); }
    std::string Content(const std::filesystem::path& name) const { return place.Content(name); }

    const zq::LM::test::TemporaryFolder place;
    const std::filesystem::path& folder = place.Path();
};

} // namespace lumora::replay
