// Narrow texts made wide: how much of them is read, and that the result always ends.
#include "render/text_conversion.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace zq::LM {

namespace {

std::string Narrowed(const WideText& text)
{
    std::string narrow;
    for (const wchar_t character : text) {
        if (character == L'\0') {
            break;
        }
        narrow += static_cast<char>(character);
    }
    return narrow;
}

std::string Letters(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += static_cast<char>('a' + i % 26);
    }
    return text;
}

// Two pages, the second of which may not be touched.
class GuardedPage {
public:
    GuardedPage()
        : first(static_cast<char*>(
              VirtualAlloc(nullptr, 2 * PageSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)))
    {
        DWORD before = 0;
        VirtualProtect(first + PageSize, PageSize, PAGE_NOACCESS, &before);
    }
    ~GuardedPage() { VirtualFree(first, 0, MEM_RELEASE); }
    GuardedPage(const GuardedPage&) = delete;
    GuardedPage& operator=(const GuardedPage&) = delete;

    // These bytes, the last of them just before the forbidden page.
    const char* AtTheEnd(const char* bytes, std::size_t count)
    {
        char* place = first + PageSize - count;
        std::memcpy(place, bytes, count);
        return place;
    }

private:
    static constexpr std::size_t PageSize = 4096;
    char* first;
};

TEST(ConvertToWide, GivesUpTo100BytesAndZeroesBehindThem)
{
    for (const std::size_t length : {0U, 3U, 99U, 100U, 101U}) {
        const WideText wide = ConvertToWide(Letters(length).c_str());
        EXPECT_EQ(Narrowed(wide), Letters(std::min<std::size_t>(length, 100)));
        for (std::size_t i = std::min<std::size_t>(length, 100); i < wide.size(); ++i) {
            EXPECT_EQ(wide[i], L'\0') << length << " letters, at " << i;
        }
    }
}

TEST(ConvertToWide, ReadsNothingBehindTheTerminator)
{
    GuardedPage page;
    EXPECT_EQ(Narrowed(ConvertToWide(page.AtTheEnd("abc", 4))), "abc");
    EXPECT_EQ(Narrowed(ConvertToWide(page.AtTheEnd("", 1))), "");
}

TEST(ConvertToWide, ReadsNoMoreThan100BytesWithoutATerminator)
{
    GuardedPage page;
    EXPECT_EQ(Narrowed(ConvertToWide(page.AtTheEnd(Letters(100).data(), 100))), Letters(100));
}

TEST(ConvertToWide, TakesTheBytesForTheSystemsCodePage)
{
    const char text[] = "\xE9\xFC";
    wchar_t expected[2]{};
    ASSERT_EQ(MultiByteToWideChar(CP_ACP, MB_PRECOMPOSED, text, 2, expected, 2), 2)
        << "the system's code page has more than one byte a character";
    const WideText wide = ConvertToWide(text);
    EXPECT_EQ(wide[0], expected[0]);
    EXPECT_EQ(wide[1], expected[1]);
    EXPECT_EQ(wide[2], L'\0');
}

} // namespace

} // namespace zq::LM
