// The settings' file: what is read, kept aside and left alone, and what a failed or killed write leaves.
#include "settings/settings_file.h"
#include "support/temporary_folder.h"
#include "text/file_name.h"

#include <gmock/gmock.h>

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace lumora_pen {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Settings WithWidth(int width)
{
    Settings settings;
    settings.width = width;
    return settings;
}

class SettingsFile : public testing::Test {
protected:
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path())) {
            names.push_back(lumora::text::Utf8Of(entry.path().filename()));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    zq::LM::test::TemporaryFolder folder;
    fs::path file = folder.Path() / "pen.json";
};

TEST_F(SettingsFile, ThatIsNotThereGivesTheDefaultsWithoutAWord)
{
    const SettingsLoad load = LoadSettings(file);
    EXPECT_FALSE(load.isRead);
    EXPECT_EQ(load.settings, Settings());
    EXPECT_THAT(load.complaints, IsEmpty());
    EXPECT_EQ(load.text, "");
    EXPECT_TRUE(load.maySave);
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(SettingsFile, GivesBackWhatWasSaved)
{
    EXPECT_EQ(SaveSettings(file, WithWidth(9), ""), std::nullopt);
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
    const SettingsLoad load = LoadSettings(file);
    EXPECT_EQ(load.settings, WithWidth(9));
    EXPECT_THAT(load.complaints, IsEmpty());
    EXPECT_EQ(load.text, folder.Content("pen.json"));
    EXPECT_TRUE(load.isRead);
    EXPECT_TRUE(load.maySave);
}

TEST_F(SettingsFile, IsReplacedAsAWhole)
{
    folder.Write("pen.json", R"({"width": 9, "ruler": 1})" + std::string(5000, ' '));
    const SettingsLoad load = LoadSettings(file);
    EXPECT_EQ(SaveSettings(file, WithWidth(10), load.text), std::nullopt);
    EXPECT_EQ(folder.Content("pen.json"), WriteSettings(WithWidth(10), R"({"width": 9, "ruler": 1})"));
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
}

TEST_F(SettingsFile, MakesTheFoldersThatAreMissing)
{
    const fs::path deep = folder.Path() / "one" / "two" / "pen.json";
    EXPECT_EQ(SaveSettings(deep, WithWidth(9), ""), std::nullopt);
    EXPECT_EQ(LoadSettings(deep).settings, WithWidth(9));
}

TEST_F(SettingsFile, MayHaveAnyLettersInItsName)
{
    const fs::path named =
        lumora::text::PathOf(lumora::text::Utf8Of(folder.Path()) + "/Ein Stift für Łukasz 筆.json");
    EXPECT_EQ(SaveSettings(named, WithWidth(9), ""), std::nullopt);
    EXPECT_THAT(Names(), ElementsAre("Ein Stift für Łukasz 筆.json"));
    EXPECT_EQ(LoadSettings(named).settings, WithWidth(9));
}

TEST_F(SettingsFile, WithoutAFolderLiesInTheCurrentOne)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    EXPECT_EQ(SaveSettings("pen.json", WithWidth(9), ""), std::nullopt);
    EXPECT_EQ(LoadSettings("pen.json").settings, WithWidth(9));
    folder.Write("pen.json", "broken");
    EXPECT_TRUE(LoadSettings("pen.json").maySave);
    EXPECT_THAT(Names(), ElementsAre("pen.broken.json"));
    fs::current_path(before);
}

TEST_F(SettingsFile, ThatHasAMistakeStaysAndIsSaid)
{
    folder.Write("pen.json", R"({"width": "wide", "colour": 3})");
    const SettingsLoad load = LoadSettings(file);
    EXPECT_EQ(load.settings.colour, 2U);
    EXPECT_THAT(load.complaints, ElementsAre(HasSubstr("width")));
    EXPECT_TRUE(load.maySave);
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
}

TEST_F(SettingsFile, ThatIsBrokenIsKeptAsideAndSaid)
{
    folder.Write("pen.json", "{\"width\": 9,\n");
    const SettingsLoad load = LoadSettings(file);
    EXPECT_FALSE(load.isRead);
    EXPECT_EQ(load.settings, Settings());
    EXPECT_EQ(load.text, "");
    EXPECT_TRUE(load.maySave);
    const std::string aside = lumora::text::Utf8Of(folder.Path() / "pen.broken.json");
    EXPECT_THAT(load.complaints, ElementsAre("The settings cannot be read: line 2 is no JSON.",
                                             "The file is kept as \"" + aside + "\"."));
    EXPECT_THAT(Names(), ElementsAre("pen.broken.json"));
    EXPECT_EQ(folder.Content("pen.broken.json"), "{\"width\": 9,\n");
}

TEST_F(SettingsFile, ThatIsBrokenAgainGetsAnotherName)
{
    for (const char* const text : {"first", "second", "third"}) {
        folder.Write("pen.json", text);
        EXPECT_TRUE(LoadSettings(file).maySave);
        EXPECT_EQ(SaveSettings(file, WithWidth(9), ""), std::nullopt);
    }
    EXPECT_THAT(Names(),
                ElementsAre("pen.broken-2.json", "pen.broken-3.json", "pen.broken.json", "pen.json"));
    EXPECT_EQ(folder.Content("pen.broken.json"), "first");
    EXPECT_EQ(folder.Content("pen.broken-2.json"), "second");
    EXPECT_EQ(folder.Content("pen.broken-3.json"), "third");
    EXPECT_EQ(LoadSettings(file).settings, WithWidth(9));
}

TEST_F(SettingsFile, ThatIsEmptyIsBroken)
{
    folder.Write("pen.json", "");
    EXPECT_THAT(LoadSettings(file).complaints,
                ElementsAre(HasSubstr("it is empty"), HasSubstr("pen.broken.json")));
    EXPECT_THAT(Names(), ElementsAre("pen.broken.json"));
}

TEST_F(SettingsFile, ThatIsHugeIsKeptAsideWhole)
{
    const std::string text = "{}" + std::string(1'000'000, ' ');
    folder.Write("pen.json", text);
    EXPECT_THAT(LoadSettings(file).complaints,
                ElementsAre(HasSubstr("larger than"), HasSubstr("pen.broken.json")));
    EXPECT_EQ(folder.Content("pen.broken.json"), text);
}

TEST_F(SettingsFile, ThatIsAFolderIsSaidAndLeftAlone)
{
    fs::create_directory(file);
    folder.Write("pen.json/mine", "mine");
    const SettingsLoad load = LoadSettings(file);
    EXPECT_FALSE(load.isRead);
    EXPECT_EQ(load.settings, Settings());
    EXPECT_FALSE(load.maySave);
    EXPECT_THAT(
        load.complaints,
        ElementsAre(
            '"' + lumora::text::Utf8Of(file) +
            "\" cannot be read and is left as it is: the usual settings hold, and changes are not saved."));
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
    EXPECT_EQ(folder.Content("pen.json/mine"), "mine");
}

TEST_F(SettingsFile, ThatCannotBeReplacedIsLeftAndTheReasonIsSaid)
{
    fs::create_directory(file);
    folder.Write("pen.json/mine", "mine");
    const auto reason = SaveSettings(file, WithWidth(9), "");
    ASSERT_TRUE(reason);
    EXPECT_THAT(*reason, testing::StartsWith("The settings could not be saved to \"" +
                                             lumora::text::Utf8Of(file) + "\": "));
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
    EXPECT_EQ(folder.Content("pen.json/mine"), "mine");
}

TEST_F(SettingsFile, InAFolderThatCannotBeMadeIsNotSavedAndTheReasonIsSaid)
{
    folder.Write("taken", "no folder");
    for (const fs::path& below :
         {folder.Path() / "taken" / "pen.json", folder.Path() / "taken" / "a" / "pen.json"}) {
        const auto reason = SaveSettings(below, WithWidth(9), "");
        ASSERT_TRUE(reason);
        EXPECT_THAT(*reason, AllOf(HasSubstr(lumora::text::Utf8Of(below)), testing::EndsWith(".")));
        EXPECT_EQ(std::count(reason->begin(), reason->end(), '\n'), 0);
        EXPECT_EQ(LoadSettings(below).settings, Settings());
    }
    EXPECT_EQ(folder.Content("taken"), "no folder");
}

// As a program leaves them that is killed before, within and after the write.
class LeftTemporary : public SettingsFile, public testing::WithParamInterface<std::string> {};

TEST_P(LeftTemporary, IsNeitherReadNorInTheWay)
{
    folder.Write("pen.json", WriteSettings(WithWidth(9), ""));
    folder.Write("pen.json.new", GetParam());
    const SettingsLoad load = LoadSettings(file);
    EXPECT_EQ(load.settings, WithWidth(9));
    EXPECT_THAT(load.complaints, IsEmpty());
    EXPECT_EQ(SaveSettings(file, WithWidth(10), load.text), std::nullopt);
    EXPECT_EQ(LoadSettings(file).settings, WithWidth(10));
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
}

INSTANTIATE_TEST_SUITE_P(Contents, LeftTemporary,
                         testing::Values("", WriteSettings(WithWidth(50), "").substr(0, 40),
                                         WriteSettings(WithWidth(50), ""), std::string(100'000, 'x')));

TEST_F(SettingsFile, StaysWhenTheNewOneCannotBeWritten)
{
    const std::string text = WriteSettings(WithWidth(9), "");
    folder.Write("pen.json", text);
    fs::create_directories(folder.Path() / "pen.json.new" / "in the way");
    const auto reason = SaveSettings(file, WithWidth(10), text);
    ASSERT_TRUE(reason);
    EXPECT_THAT(*reason, HasSubstr("pen.json"));
    EXPECT_EQ(folder.Content("pen.json"), text);
}

#ifdef _WIN32

class Locked {
public:
    Locked(const fs::path& file, DWORD access, DWORD share)
        : handle(CreateFileW(file.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr))
    {
    }
    ~Locked() { CloseHandle(handle); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    HANDLE handle;
};

TEST_F(SettingsFile, ThatAnotherProgramHasLockedIsSaidAndLeftAlone)
{
    folder.Write("pen.json", WriteSettings(WithWidth(9), ""));
    {
        const Locked locked(file, GENERIC_READ, 0);
        const SettingsLoad load = LoadSettings(file);
        EXPECT_FALSE(load.maySave);
        EXPECT_EQ(load.settings, Settings());
        EXPECT_THAT(load.complaints, ElementsAre(HasSubstr("cannot be read and is left as it is")));
        EXPECT_NE(SaveSettings(file, WithWidth(10), ""), std::nullopt);
        EXPECT_THAT(Names(), ElementsAre("pen.json"));
    }
    EXPECT_EQ(LoadSettings(file).settings, WithWidth(9));
}

TEST_F(SettingsFile, ThatIsBrokenAndCannotBeRenamedIsSaidAndLeftAlone)
{
    folder.Write("pen.json", "broken");
    const Locked locked(file, GENERIC_READ, FILE_SHARE_READ);
    const SettingsLoad load = LoadSettings(file);
    EXPECT_FALSE(load.maySave);
    EXPECT_THAT(load.complaints, ElementsAre(HasSubstr("cannot be read"), HasSubstr("could not be renamed")));
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
}

#else

TEST_F(SettingsFile, ThatCannotBeFoundOutAboutIsSaidAndLeftAlone)
{
    fs::create_symlink("pen.json", file); // leads to itself
    const SettingsLoad load = LoadSettings(file);
    EXPECT_FALSE(load.maySave);
    EXPECT_THAT(load.complaints, ElementsAre(HasSubstr("cannot be read and is left as it is")));
}

// Never opened: the call would wait for somebody who writes.
TEST_F(SettingsFile, ThatIsAPipeIsLeftAlone)
{
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(LoadSettings(file).maySave);
}

// A program that saves all the time is killed anywhere.
TEST_F(SettingsFile, SurvivesAKillAnywhere)
{
    const std::string unknown = R"({"unknown": ")" + std::string(5'000, 'x') + "\"}";
    ASSERT_EQ(SaveSettings(file, WithWidth(9), unknown), std::nullopt);
    for (int kill = 0; kill < 12; ++kill) {
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            for (int width = 10;; width = width == 10 ? 11 : 10) {
                SaveSettings(file, WithWidth(width), unknown);
            }
        }
        for (int look = 0; look <= kill; ++look) {
            folder.Content("pen.json"); // time goes by, of another length for each kill
        }
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const SettingsLoad load = LoadSettings(file);
        EXPECT_THAT(load.complaints, IsEmpty());
        EXPECT_THAT(load.settings.width, testing::AnyOf(9, 10, 11));
        EXPECT_THAT(load.text, HasSubstr(std::string(5'000, 'x')));
    }
    EXPECT_EQ(SaveSettings(file, WithWidth(12), unknown), std::nullopt);
    EXPECT_THAT(Names(), ElementsAre("pen.json"));
}

#endif

} // namespace
} // namespace lumora_pen
