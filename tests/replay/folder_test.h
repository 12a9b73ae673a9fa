// The common set-up of tests with files: a folder of their own, which goes with them.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace lumora::replay {

class FolderTest : public testing::Test {
protected:
    FolderTest()
    {
        // The first free number: other tests may be running.
        int number = 0;
        do {
            folder = std::filesystem::temp_directory_path() / ("lumora-test-" + std::to_string(number++));
        } while (!std::filesystem::create_directory(folder));
    }

    ~FolderTest() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    void Write(const std::filesystem::path& name, const std::string& text) const
    {
        std::ofstream(folder / name, std::ios::binary) << text;
    }

    std::string Content(const std::filesystem::path& name) const
    {
        std::ostringstream text;
        text << std::ifstream(folder / name, std::ios::binary).rdbuf();
        return text.str();
    }

    std::filesystem::path folder;
};

} // namespace lumora::replay
