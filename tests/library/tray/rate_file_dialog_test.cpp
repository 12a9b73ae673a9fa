// The host's current directory, which the save dialog moves to the folder that the user looks into.
#include "library/tray/tray_test.h"

#include <commdlg.h>

#include <algorithm>
#include <string>

namespace zq::LM::test {

namespace {

std::wstring CurrentDirectory()
{
    std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
    path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return path;
}

class RateFileDialogTest : public TrayTest, public testing::WithParamInterface<BOOL> {
protected:
    void SetUp() override { CreateWithTray(); }
    void TearDown() override
    {
        SetCurrentDirectoryW(before.c_str());
        TrayTest::TearDown();
    }

    // As the system's own does, whether a file is chosen (1) or not (0).
    void MoveInDialog(const std::wstring& folder)
    {
        calls.Answer<"GetSaveFileNameA">(GetSaveFileNameA, [folder](OPENFILENAMEA*) {
            EXPECT_TRUE(SetCurrentDirectoryW(folder.c_str()));
            return GetParam();
        });
    }

    const std::wstring before = CurrentDirectory();
    std::wstring restored;
};

TEST_P(RateFileDialogTest, LeavesTheCurrentDirectoryAsItWas)
{
    MoveInDialog(L"C:\\windows");
    ASSERT_NE(before, L"C:\\windows");
    Command(SaveCommand);
    EXPECT_EQ(calls.Count("GetSaveFileNameA"), 1U);
    EXPECT_EQ(CurrentDirectory(), before);
}

TEST_P(RateFileDialogTest, RestoresAPathOfAnyLength)
{
    const std::wstring path = L"C:\\" + std::wstring(5000, L'x');
    MoveInDialog(L"C:\\windows");
    calls.Answer<"GetCurrentDirectoryW">(GetCurrentDirectoryW, [&path](DWORD size, wchar_t* out) {
        const auto length = static_cast<DWORD>(path.size());
        if (size <= length) {
            return length + 1;
        }
        std::copy(path.begin(), path.end(), out);
        out[length] = L'\0';
        return length;
    });
    calls.Answer<"SetCurrentDirectoryW">(SetCurrentDirectoryW, [this](const wchar_t* to) {
        restored = to;
        return TRUE;
    });
    Command(SaveCommand);
    EXPECT_EQ(restored, path);
}

TEST_P(RateFileDialogTest, WithoutACurrentDirectoryRestoresNone)
{
    MoveInDialog(L"C:\\windows");
    calls.Answer<"GetCurrentDirectoryW">(GetCurrentDirectoryW, [](DWORD, wchar_t*) { return DWORD{0}; });
    calls.Record<"SetCurrentDirectoryW">(SetCurrentDirectoryW);
    Command(SaveCommand);
    EXPECT_EQ(calls.Count("SetCurrentDirectoryW"), 0U);
}

INSTANTIATE_TEST_SUITE_P(Answers, RateFileDialogTest, testing::Values(TRUE, FALSE),
                         [](const testing::TestParamInfo<BOOL>& answer) {
                             return std::string(answer.param != FALSE ? "Chosen" : "Cancelled");
                         });

} // namespace

} // namespace zq::LM::test
