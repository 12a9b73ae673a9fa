// When the settings' file is read and written.
#include "program/settings_store.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace lumora_pen {

namespace {

using testing::IsEmpty;
using testing::Not;

class Store : public testing::Test {
protected:
    std::filesystem::path File() const { return folder.Path() / "pen.json"; }

    Settings OnDisk() const { return LoadSettings(File()).settings; }

    static Settings OfWidth(int width)
    {
        Settings settings;
        settings.width = width;
        return settings;
    }

    zq::LM::test::TemporaryFolder folder;
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
    EXPECT_TRUE(store.WasEdited());
    store.Load();
    EXPECT_FALSE(store.WasEdited());
    EXPECT_EQ(store.Get().width, 20);
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
