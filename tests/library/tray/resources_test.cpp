// The menu and the icon, read back from the built library.
#include "support/library/library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace zq::LM::test {

namespace {

using WideLines = std::vector<std::wstring>;

// Every item in its order: text and command, those of a popup one step further in.
void ReadMenu(HMENU menu, const std::wstring& indent, WideLines& lines)
{
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[100]{};
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_STRING | MIIM_SUBMENU | MIIM_FTYPE | MIIM_STATE;
        info.dwTypeData = text;
        info.cch = 100;
        ASSERT_TRUE(GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info));
        EXPECT_EQ(info.fType, UINT{MFT_STRING}) << i;
        EXPECT_EQ(info.fState, UINT{MFS_ENABLED}) << i;
        if (info.hSubMenu == nullptr) {
            lines.push_back(indent + text + L" = " + std::to_wstring(info.wID));
        } else {
            lines.push_back(indent + text);
            ReadMenu(info.hSubMenu, indent + L"  ", lines);
        }
    }
}

#pragma pack(push, 2)
struct IconEntry {
    std::uint8_t width; // 0 = 256
    std::uint8_t height;
    std::uint8_t colours;
    std::uint8_t reserved;
    std::uint16_t planes;
    std::uint16_t bits;
    std::uint32_t bytes;
    std::uint16_t id;
};
#pragma pack(pop)
static_assert(sizeof(IconEntry) == 14);

constexpr int Sizes[] = {16, 20, 24, 32, 48, 256};

} // namespace

class ResourcesTest : public ::testing::Test {
protected:
    ~ResourcesTest() override { FreeLibrary(file); }

    std::vector<IconEntry> IconEntries() const
    {
        HRSRC group = FindResourceW(file, MAKEINTRESOURCEW(5), RT_GROUP_ICON);
        const auto* data = static_cast<const std::uint16_t*>(LockResource(LoadResource(file, group)));
        if (data == nullptr) {
            return {};
        }
        constexpr int HeaderWords = 3;
        const auto* first = reinterpret_cast<const IconEntry*>(data + HeaderWords);
        return {first, first + data[2]};
    }

    // The icon's picture of this size.
    struct LoadedPicture {
        LoadedPicture(HMODULE file, int size)
            : icon(static_cast<HICON>(LoadImageW(file, MAKEINTRESOURCEW(5), IMAGE_ICON, size, size, 0)))
        {
            EXPECT_TRUE(GetIconInfo(icon, &parts));
            GetObjectW(parts.hbmColor, sizeof(bitmap), &bitmap);
        }
        ~LoadedPicture()
        {
            DeleteObject(parts.hbmColor);
            DeleteObject(parts.hbmMask);
            DestroyIcon(icon);
        }
        LoadedPicture(const LoadedPicture&) = delete;
        LoadedPicture& operator=(const LoadedPicture&) = delete;

        HICON icon;
        ICONINFO parts{};
        BITMAP bitmap{};
    };

    // How opaque each pixel of the picture is.
    std::vector<std::uint8_t> Opacities(int size) const
    {
        const LoadedPicture picture(file, size);
        EXPECT_EQ(picture.bitmap.bmWidth, size);
        EXPECT_EQ(picture.bitmap.bmHeight, size);
        EXPECT_EQ(picture.bitmap.bmBitsPixel, 32);
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
        GetBitmapBits(picture.parts.hbmColor, static_cast<LONG>(pixels.size() * 4), pixels.data());
        std::vector<std::uint8_t> opacities(pixels.size());
        std::transform(pixels.begin(), pixels.end(), opacities.begin(),
                       [](std::uint32_t pixel) { return static_cast<std::uint8_t>(pixel >> 24); });
        return opacities;
    }

    HMODULE file = LoadLibraryExW(LibraryPath(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE);
};

TEST_F(ResourcesTest, TheMenuIsOnePopupOfExactlyTheseItems)
{
    HMENU menu = LoadMenuW(file, L"IDR_MENU_LUMORA_CORE_TASKTRAY");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(GetMenuItemCount(menu), 1);
    WideLines lines;
    ReadMenu(GetSubMenu(menu, 0), L"", lines);
    EXPECT_EQ(lines, (WideLines{L"&Setting = 40001", L"Save", L"  &FPS = 40002", L"Log", L"  NONE = 40010",
                                L"  BASIC = 40011", L"  NORMAL = 40012", L"  DETAILED = 40013",
                                L"  ALL = 40014", L"Rendering (*Under the test)",
                                L"  Direct Composition = 40020", L"  Direct2D = 40021", L"  GDI = 40022"}));
    DestroyMenu(menu);
}

TEST_F(ResourcesTest, TheIconHasSixPicturesWithAlphaTheSmallestFirst)
{
    const std::vector<IconEntry> entries = IconEntries();
    ASSERT_EQ(entries.size(), std::size(Sizes));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].width, Sizes[i] % 256);
        EXPECT_EQ(entries[i].height, Sizes[i] % 256);
        EXPECT_EQ(entries[i].bits, 32);
    }
}

// The stroke is opaque at its head and fades: there is something of every kind, and it is not all one block.
TEST_F(ResourcesTest, EachPictureFadesFromAnOpaqueHead)
{
    for (const int size : Sizes) {
        const std::vector<std::uint8_t> opacities = Opacities(size);
        const auto share = [&](auto&& test) {
            return static_cast<double>(std::count_if(opacities.begin(), opacities.end(), test)) /
                   static_cast<double>(opacities.size());
        };
        EXPECT_GT(share([](std::uint8_t alpha) { return alpha == 0; }), 0.4) << size;
        EXPECT_GT(share([](std::uint8_t alpha) { return alpha == 255; }), 0.1) << size;
        EXPECT_GT(share([](std::uint8_t alpha) { return alpha > 50 && alpha < 200; }), 0.05) << size;
    }
}

TEST_F(ResourcesTest, WithoutASizeTheSmallestPictureIsLoaded)
{
    EXPECT_EQ(LoadedPicture(file, 0).bitmap.bmWidth, 16);
}

} // namespace zq::LM::test
