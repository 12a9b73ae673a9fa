// When the settings' file is read and written.
#include "program/settings_store.h"
#include "settings/settings_text.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace lumora_pen {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Optional;

class Store : public testing::Test {
protected:
    std::filesystem::path File() const { return folder.Path() / "pen.json"; }

    Settings OnDisk() const { return LoadSettings(File()).settings; }

    // Each time later than before, however coarse the clock of the disk is.
    void Edit(const std::string& text)
    {
        std::ofstream(File(), std::ios::binary) << text;
        editedAt += std::chrono::seconds(2);
        std::filesystem::last_write_time(File(), editedAt);
    }

    static Settings OfWidth(int width)
    {
        Settings settings;
        settings.width = width;
        return settings;
    }

    zq::LM::test::TemporaryFolder folder;
    std::filesystem::file_time_type editedAt = std::filesystem::file_time_type::clock::now();
};

TEST_F(Store, WithoutAFileIsNewAndWritesNoneByItself)
{
    SettingsStore store(File());
    EXPECT_THAT(store.Load(), IsEmpty());
    EXPECT_TRUE(store.IsNew());
    EXPECT_EQ(store.KeepWhenDue(5000), std::nullopt);
    EXPECT_EQ(store.Keep(), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(Store, ChangeIsWrittenOnceItHasRested)
{
    SettingsStore store(File());
    store.Load();
    store.Set(OfWidth(20));
    store.KeepWhenDue(1000);
    store.Set(OfWidth(21));
    store.KeepWhenDue(1400);
    store.KeepWhenDue(1899);
    EXPECT_FALSE(std::filesystem::exists(File()));
    store.KeepWhenDue(1900);
    EXPECT_EQ(OnDisk().width, 21);
}

TEST_F(Store, EndDoesNotWait)
{
    SettingsStore store(File());
    store.Load();
    store.Set(OfWidth(20));
    EXPECT_EQ(store.Keep(), std::nullopt);
    EXPECT_EQ(OnDisk().width, 20);
}

TEST_F(Store, FailureIsToldOnceForEachChange)
{
    std::filesystem::create_directories(File() / "a folder in its place");
    SettingsStore store(File() / "file" / "pen.json");
    std::ofstream(File() / "file") << "no folder";
    store.Load();
    store.Set(OfWidth(20));
    EXPECT_NE(store.Keep(), std::nullopt);
    EXPECT_EQ(store.Keep(), std::nullopt);
    store.Set(OfWidth(21));
    EXPECT_NE(store.Keep(), std::nullopt);
}

TEST_F(Store, FileThatCannotBeReadIsNotWrittenOver)
{
    std::filesystem::create_directories(File());
    SettingsStore store(File());
    EXPECT_THAT(store.Load(), Not(IsEmpty()));
    EXPECT_FALSE(store.IsNew());
    store.Set(OfWidth(20));
    EXPECT_EQ(store.Keep(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_directory(File()));
}

TEST_F(Store, KnowsWhatItHasWrittenItselfFromWhatOthersWrite)
{
    SettingsStore store(File());
    store.Load();
    EXPECT_FALSE(store.WasEdited());
    store.Set(OfWidth(20));
    store.Keep();
    EXPECT_FALSE(store.WasEdited());
    std::filesystem::last_write_time(File(),
                                     std::filesystem::last_write_time(File()) + std::chrono::seconds(2));
    EXPECT_FALSE(store.WasEdited()) << "it may be half written";
    EXPECT_TRUE(store.WasEdited());
    EXPECT_THAT(store.LoadEdited(), Optional(IsEmpty()));
    EXPECT_FALSE(store.WasEdited());
    EXPECT_EQ(store.Get().width, 20);
}

TEST_F(Store, WaitsUntilAnEditorIsDone)
{
    SettingsStore store(File());
    store.Load();
    EXPECT_EQ(store.KeepAnyway(), std::nullopt);
    for (int part = 0; part < 3; ++part) {
        Edit(WriteSettings(OfWidth(20), "").substr(0, 40));
        EXPECT_FALSE(store.WasEdited());
    }
    EXPECT_TRUE(store.WasEdited());
}

TEST_F(Store, EditedFileIsTaken)
{
    SettingsStore store(File());
    store.Load();
    Edit(WriteSettings(OfWidth(20), ""));
    EXPECT_THAT(store.LoadEdited(), Optional(IsEmpty()));
    EXPECT_EQ(store.Get().width, 20);
}

TEST_F(Store, EditedFileIsNotWrittenOverBeforeItIsRead)
{
    SettingsStore store(File());
    store.Load();
    EXPECT_EQ(store.KeepAnyway(), std::nullopt);
    Edit(WriteSettings(OfWidth(20), ""));
    store.Set(OfWidth(30));
    EXPECT_EQ(store.KeepWhenDue(1000), std::nullopt);
    EXPECT_EQ(store.KeepWhenDue(5000), std::nullopt);
    EXPECT_EQ(OnDisk().width, 20);
}

TEST_F(Store, EditThatIsNoTextOfSettingsChangesNothing)
{
    SettingsStore store(File());
    store.Load();
    store.Set(OfWidth(20));
    EXPECT_EQ(store.Keep(), std::nullopt);
    Edit("{\"width\": 30,,");
    EXPECT_THAT(store.LoadEdited(),
                Optional(ElementsAre(HasSubstr("is no JSON"), HasSubstr("pen.broken.json"),
                                     "The settings stay as they were.")));
    EXPECT_EQ(store.Get().width, 20);
    EXPECT_FALSE(store.WasEdited());
    EXPECT_EQ(store.Keep(), std::nullopt);
    EXPECT_EQ(OnDisk().width, 20);
}

TEST_F(Store, EditThatCannotBeReadYetIsLeftForLater)
{
    SettingsStore store(File());
    store.Load();
    store.Set(OfWidth(20));
    EXPECT_EQ(store.Keep(), std::nullopt);
    std::filesystem::remove(File());
    std::filesystem::create_directories(File());
    EXPECT_EQ(store.LoadEdited(), std::nullopt);
    EXPECT_EQ(store.Get().width, 20);
    std::filesystem::remove(File());
    EXPECT_EQ(store.LoadEdited(), std::nullopt) << "an editor is about to rename its own to it";
    Edit(WriteSettings(OfWidth(30), ""));
    EXPECT_THAT(store.LoadEdited(), Optional(IsEmpty()));
    EXPECT_EQ(store.Get().width, 30);
}

TEST_F(Store, StartWithABrokenFileSaysWhatHolds)
{
    Edit("broken");
    SettingsStore store(File());
    EXPECT_THAT(store.Load(), testing::Contains("The usual settings hold."));
}

TEST_F(Store, WhatThisVersionDoesNotKnowOutlivesSeveralChanges)
{
    std::ofstream(File()) << R"({"version": 1, "from-later": [1, 2]})";
    SettingsStore store(File());
    store.Load();
    for (const int width : {20, 21}) {
        store.Set(OfWidth(width));
        store.Keep();
    }
    std::ifstream file(File());
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    EXPECT_THAT(text, testing::HasSubstr("from-later"));
}

} // namespace

} // namespace lumora_pen
