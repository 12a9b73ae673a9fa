// The settings dialog as it is laid out: every control with its text and style, and nothing cut or
// overlapping.
#include "library/settings/settings_dialog_test.h"

#include <algorithm>
#include <ostream>

namespace zq::LM::test {
namespace {

struct Item {
    int id;
    const char* windowClass;
    const char* text;
    LONG_PTR style; // must be set
};

std::ostream& operator<<(std::ostream& out, const Item& item) { return out << item.id; }

constexpr LONG_PTR Number = ES_NUMBER | ES_RIGHT;
constexpr LONG_PTR Shown = WS_CHILD | WS_VISIBLE;

const Item Items[] = {
    {1002, "Button", "Rendering Options", Shown | BS_GROUPBOX},
    {1009, "Button", "&Cursor", Shown | BS_AUTOCHECKBOX},
    {1008, "Button", "&Line", Shown | BS_AUTOCHECKBOX},
    {1010, "Button", "&Outline", Shown | BS_AUTOCHECKBOX},
    {1011, "Button", "&Zebra Mode", Shown | BS_AUTOCHECKBOX},
    {1012, "Button", "&Pressure", Shown | BS_AUTOCHECKBOX},
    {1013, "Button", "Offset", Shown | BS_AUTOCHECKBOX},
    {1003, "Button", "Ink Color", Shown | BS_GROUPBOX},
    {1015, "Button", "&Color Picker", Shown | BS_PUSHBUTTON},
    {1017, "Static", "", Shown | SS_GRAYRECT},
    {1023, "Static", "", Shown | SS_GRAYRECT},
    {1024, "Static", "", Shown | SS_GRAYRECT},
    {1025, "Static", "(R,G,B)", Shown},
    {1022, "Edit", "( 32,  32,  32)", Shown | Number | ES_READONLY},
    {1026, "Static", "(H,S,V)", Shown},
    {1027, "Edit", "(  0,   0,  32)", Shown | Number | ES_READONLY},
    {1004, "Button", "Brush", Shown | BS_GROUPBOX},
    {1018, "msctls_trackbar32", "", Shown | TBS_AUTOTICKS},
    {1019, "Edit", "10", Shown | Number},
    {1005, "Button", "Ink Life", Shown | BS_GROUPBOX},
    {1020, "msctls_trackbar32", "", Shown | TBS_AUTOTICKS},
    {1021, "Edit", "100", Shown | Number},
    {1006, "Button", "FPS", Shown | BS_GROUPBOX},
    {1028, "msctls_trackbar32", "", Shown | TBS_AUTOTICKS | WS_DISABLED},
    {1029, "Edit", "60", Shown | Number | WS_DISABLED},
    {1, "Button", "&APPLY", BS_DEFPUSHBUTTON},
    {2, "Button", "CANCEL", BS_PUSHBUTTON},
};

class SettingsTemplate : public SettingsDialogTest {
protected:
    void SetUp() override
    {
        SettingsDialogTest::SetUp();
        Open();
    }

    LONG_PTR Style(int id) const { return GetWindowLongPtrW(Control(id), GWL_STYLE); }

    bool IsGroup(int id) const
    {
        char name[64] = {};
        GetClassNameA(Control(id), name, sizeof(name));
        return std::string(name) == "Button" && (Style(id) & BS_TYPEMASK) == BS_GROUPBOX;
    }

    // In the dialog's client area.
    RECT Place(int id) const
    {
        RECT place = PlaceOf(Control(id));
        MapWindowPoints(nullptr, Dialog(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    SIZE TextSize(int id, const std::string& text) const
    {
        HDC dc = GetDC(Dialog());
        auto* font = reinterpret_cast<HGDIOBJ>(SendMessageW(Control(id), WM_GETFONT, 0, 0));
        HGDIOBJ previous = SelectObject(dc, font);
        RECT size{};
        DrawTextA(dc, text.c_str(), -1, &size, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(dc, previous);
        ReleaseDC(Dialog(), dc);
        return {size.right, size.bottom};
    }
};

TEST_F(SettingsTemplate, HasEveryControlWithItsTextAndStyle)
{
    for (const Item& item : Items) {
        ASSERT_NE(Control(item.id), nullptr) << item;
        char name[64] = {};
        GetClassNameA(Control(item.id), name, sizeof(name));
        EXPECT_EQ(std::string(name), item.windowClass) << item;
        EXPECT_EQ(Text(item.id), item.text) << item;
        EXPECT_EQ(Style(item.id) & item.style, item.style) << item;
        EXPECT_EQ(Style(item.id) & WS_DISABLED, item.style & WS_DISABLED) << item;
        EXPECT_EQ(Style(item.id) & WS_VISIBLE, item.style & WS_VISIBLE) << item;
    }
}

TEST_F(SettingsTemplate, HasNoOtherControl)
{
    int count = 0;
    for (HWND child = GetWindow(Dialog(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        ++count;
    }
    EXPECT_EQ(count, static_cast<int>(std::size(Items)));
}

TEST_F(SettingsTemplate, IsAModalLookingWindowInItsFont)
{
    const LONG_PTR style = GetWindowLongPtrW(Dialog(), GWL_STYLE);
    EXPECT_EQ(style & (WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME),
              static_cast<LONG_PTR>(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME));
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(Dialog(), WM_GETFONT, 0, 0)), sizeof(font), &font);
    EXPECT_STREQ(font.lfFaceName, L"MS UI Gothic");
}

TEST_F(SettingsTemplate, HasItsSizeInDialogUnits)
{
    RECT units = {0, 0, 309, 204};
    MapDialogRect(Dialog(), &units);
    RECT client{};
    GetClientRect(Dialog(), &client);
    EXPECT_EQ(client.right, units.right);
    EXPECT_EQ(client.bottom, units.bottom);
    const std::pair<int, SIZE> areas[] = {
        {SwatchArea, {20, 20}}, {ValueBarArea, {72, 11}}, {WheelArea, {72, 72}}};
    for (const auto& [id, inUnits] : areas) {
        RECT place = {0, 0, inUnits.cx, inUnits.cy};
        MapDialogRect(Dialog(), &place);
        EXPECT_LE(std::abs(Size(id).cx - place.right), 1) << id;
        EXPECT_LE(std::abs(Size(id).cy - place.bottom), 1) << id;
    }
}

TEST_F(SettingsTemplate, EveryControlLiesInsideTheDialogAndOnNoOther)
{
    RECT client{};
    GetClientRect(Dialog(), &client);
    for (const Item& item : Items) {
        const RECT place = Place(item.id);
        RECT inside{};
        IntersectRect(&inside, &place, &client);
        EXPECT_TRUE(EqualRect(&inside, &place)) << item;
        for (const Item& other : Items) {
            const bool seen = (item.style & other.style & WS_VISIBLE) != 0;
            if (!seen || other.id == item.id || IsGroup(item.id) != IsGroup(other.id)) {
                continue;
            }
            const RECT otherPlace = Place(other.id);
            EXPECT_FALSE(IntersectRect(&inside, &place, &otherPlace)) << item << " and " << other;
        }
    }
}

TEST_F(SettingsTemplate, NoTextIsCut)
{
    for (const Item& item : Items) {
        std::string text = item.text;
        LONG frame = 0;
        if (item.id == EditRgb || item.id == EditHsv) {
            text = "(255, 255, 255)"; // the longest
        } else if (item.id == EditBrushSize || item.id == EditInkLife) {
            text = "1000";
        }
        if ((item.style & BS_TYPEMASK) == BS_AUTOCHECKBOX && std::string(item.windowClass) == "Button") {
            frame = GetSystemMetrics(SM_CXMENUCHECK) + 4;
        } else if (std::string(item.windowClass) != "Static") {
            frame = 2 * GetSystemMetrics(SM_CXEDGE) + 4;
        }
        if (text.empty()) {
            continue;
        }
        const RECT place = Place(item.id);
        const SIZE size = TextSize(item.id, text);
        EXPECT_LE(size.cx + frame, place.right - place.left) << item;
        if (!IsGroup(item.id)) {
            EXPECT_LE(size.cy, place.bottom - place.top) << item;
        }
    }
}

// As a host does whose loop calls IsDialogMessageW.
class SettingsByKeyboard : public SettingsTemplate {
protected:
    int Focused() const { return GetDlgCtrlID(GetFocus()); }

    void Send(UINT message, WPARAM key) const
    {
        MSG typed{};
        typed.hwnd = GetFocus();
        typed.message = message;
        typed.wParam = key;
        EXPECT_TRUE(IsDialogMessageW(Dialog(), &typed));
        PumpMessages();
    }
};

TEST_F(SettingsByKeyboard, TabFollowsTheGroups)
{
    SetFocus(Control(CheckCursor));
    const int order[] = {CheckLine,         CheckOutline, CheckZebraMode, CheckPressure,     CheckOffset,
                         ButtonColorPicker, EditRgb,      EditHsv,        TrackbarBrushSize, EditBrushSize,
                         TrackbarInkLife,   EditInkLife,  CheckCursor};
    for (const int next : order) {
        Send(WM_KEYDOWN, VK_TAB);
        EXPECT_EQ(Focused(), next);
    }
}

TEST_F(SettingsByKeyboard, MnemonicsReachTheirControls)
{
    SetFocus(Control(TrackbarBrushSize));
    Send(WM_SYSCHAR, 'l');
    EXPECT_EQ(Record().line, 0);
    Send(WM_SYSCHAR, 'o');
    EXPECT_EQ(Record().outline, 1);
    Send(WM_SYSCHAR, 'z');
    EXPECT_EQ(Record().zebraMode, 1);
    Send(WM_SYSCHAR, 'p');
    EXPECT_EQ(Record().usePressure, 0);
}

TEST_F(SettingsByKeyboard, ArrowsMoveATrackbar)
{
    SetFocus(Control(TrackbarBrushSize));
    SendMessageW(Control(TrackbarBrushSize), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(Record().brushSize, 11U);
    EXPECT_EQ(Text(EditBrushSize), "11");
}

} // namespace
} // namespace zq::LM::test
