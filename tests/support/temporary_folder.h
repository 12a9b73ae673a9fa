// The common set-up of tests with files: a folder of their own, which goes with them.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zq::LM::test {

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        // The first free number: other tests may be running.
        int number = 0;
        do {
            path = std::filesystem::temp_directory_path() / ("lumora-test-" + std::to_string(number++));
        } while (!std::filesystem::create_directory(path));
    }

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path; }

    void Write(const std::filesystem::path& name, const std::string& text) const
    {
        std::ofstream(path / name, std::ios::binary) << text;
    }

    std::string Content(const std::filesystem::path& name) const
    {
        std::ifstream file(path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

private:
    std::filesystem::path path;
};

} // namespace zq::LM::test
