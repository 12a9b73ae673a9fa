// A new file on systems with POSIX calls.
#include "settings/new_file.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace lumora_pen {

namespace {

std::error_code LastError() { return {errno, std::system_category()}; }

std::error_code WriteAll(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = write(file, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return LastError();
        }
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return fsync(file) == 0 ? std::error_code() : LastError();
}

} // namespace

std::error_code WriteNewFile(const std::filesystem::path& file, std::string_view text)
{
    const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (opened < 0) {
        return LastError();
    }
    const std::error_code error = WriteAll(opened, text);
    if (close(opened) != 0 && !error) {
        return LastError();
    }
    return error;
}

} // namespace lumora_pen
