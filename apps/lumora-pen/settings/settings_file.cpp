// Reads and writes the settings' file.
#include "settings/settings_file.h"

#include "settings/new_file.h"
#include "settings/settings_text.h"
#include "text/file_name.h"

#include <fstream>
#include <system_error>

namespace lumora_pen {

namespace {

using std::filesystem::path;

std::string QuotedName(const path& file)
{
    return std::string("\"").append(lumora::text::Utf8Of(file)).append("\"");
}

// The system's own texts are in any language and code page, those of the standard's conditions are not.
std::string ReasonOf(const std::error_code& error)
{
    const std::error_condition condition = error.default_error_condition();
    return condition.category() == std::generic_category() ? condition.message()
                                                           : "error " + std::to_string(error.value());
}

// One byte more than settings may have tells those that have too many; nothing when it cannot be read.
std::optional<std::string> ReadText(const path& file)
{
    std::ifstream input(file, std::ios::binary);
    std::string text(MostSettingsBytes + 1, '\0');
    input.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (!input.is_open() || input.bad()) {
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(input.gcount()));
    return text;
}

path FreeNameBeside(const path& file)
{
    path name;
    std::error_code error;
    int number = 1;
    do {
        path ending = number == 1 ? path(".broken") : path(".broken-" + std::to_string(number));
        ending += file.extension();
        name = file.parent_path() / file.stem();
        name += ending;
        ++number;
    } while (exists(symlink_status(name, error)));
    return name;
}

void KeepAside(const path& file, SettingsLoad& load)
{
    const path aside = FreeNameBeside(file);
    std::error_code error;
    std::filesystem::rename(file, aside, error);
    if (error) {
        load.maySave = false;
        load.complaints.push_back(QuotedName(file) +
                                  " is left as it is, and changes are not saved: it could not be renamed (" +
                                  ReasonOf(error) + ").");
    } else {
        load.complaints.push_back("The file is kept as " + QuotedName(aside) + ".");
    }
}

path TemporaryOf(path file) { return file += ".new"; }

std::error_code Replace(const path& file, std::string_view text)
{
    std::error_code error;
    if (file.has_parent_path()) {
        std::filesystem::create_directories(file.parent_path(), error);
        if (error) {
            return error;
        }
    }
    // One that a killed program left is of no use. If it cannot go, the write says so.
    const path temporary = TemporaryOf(file);
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    error = WriteNewFile(temporary, text);
    if (!error) {
        std::filesystem::rename(temporary, file, error);
    }
    if (error) {
        std::filesystem::remove(temporary, ignored);
    }
    return error;
}

} // namespace

SettingsLoad LoadSettings(const path& file)
{
    SettingsLoad load;
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return load;
    }
    // Others than files may never end, or block.
    std::optional<std::string> text = is_regular_file(status) ? ReadText(file) : std::nullopt;
    if (!text) {
        load.maySave = false;
        load.complaints.push_back(
            QuotedName(file) +
            " cannot be read and is left as it is: the usual settings hold, and changes are not saved.");
        return load;
    }
    SettingsReading reading = ReadSettings(*text);
    load.settings = reading.settings;
    load.complaints = std::move(reading.complaints);
    if (reading.isBroken) {
        KeepAside(file, load);
    } else {
        load.text = std::move(*text);
        load.isRead = true;
    }
    return load;
}

std::optional<std::string> SaveSettings(const path& file, const Settings& settings,
                                        std::string_view previousText)
{
    const std::error_code error = Replace(file, WriteSettings(settings, previousText));
    if (error) {
        return "The settings could not be saved to " + QuotedName(file) + ": " + ReasonOf(error) + ".";
    }
    return std::nullopt;
}

} // namespace lumora_pen
