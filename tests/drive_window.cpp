// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "desk.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include <comutil.h>
#include <oleacc.h>

#include "native.h"

using namespace Desk;
using Toolkit::Kind;

namespace {

struct RealWindow : testing::Test, Tandem {};

HWND NewWindow(DWORD style) {
  return CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | style, 0, 0, 90, 90, nullptr,
                         nullptr, nullptr, nullptr);
}

}  // namespace

// Also on a desktop that is too small for it: then it is drawn as large as it can be there.
TEST_F(RealWindow, StandsAsStored) {
  const RECT outer = RectOf(window);
  RECT client, work;
  GetClientRect(window, &client);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const int dpi = MulDiv(client.right, 1440, ClientWidth);
  const auto pixels = [](int twips, int at) { return LONG{Win32::Pixels(twips, at)}; };
  const LONG spare_width = work.right - work.left - (outer.right - outer.left);
  const LONG spare_height = work.bottom - work.top - (outer.bottom - outer.top);
  const bool is_largest = pixels(ClientWidth, dpi + 1) - client.right > spare_width ||
                          pixels(ClientHeight, dpi + 1) - client.bottom > spare_height;
  EXPECT_TRUE(is_largest || dpi == static_cast<int>(GetDpiForWindow(window))) << dpi;
  EXPECT_EQ(client.bottom, pixels(ClientHeight, dpi));
  EXPECT_GE(spare_width, 0);
  EXPECT_GE(spare_height, 0);
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(Read(u"lblCopyright"), PROGRAM_COPYRIGHT);
  EXPECT_EQ(Ask(u"txbYearCE1", EM_GETLIMITTEXT), 5);
  EXPECT_EQ(Ask(u"txbMetNum", EM_GETLIMITTEXT), 3);
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    RECT place = RectOf(Control(NameOf(row)));
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    const LONG left = pixels(row.container.left + row.left, dpi);
    const LONG top = pixels(row.container.top + row.top, dpi);
    // A list may be wider than what is shown of it.
    if (row.kind == Kind::List) place.right = left + pixels(row.width, dpi);
    EXPECT_EQ((std::array{place.left, place.top, place.right, place.bottom}),
              (std::array{left, top, left + pixels(row.width, dpi), top + pixels(row.height, dpi)}))
        << testing::PrintToString(NameOf(row));
  }
}

// A screen reader takes the name of a text box or a list from the text before it, seen or not.
TEST_F(RealWindow, NamesStandBeforeTheirControls) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    if (row.kind != Kind::TextBox && row.kind != Kind::List) continue;
    SCOPED_TRACE(testing::PrintToString(NameOf(row)));
    const HWND control = Control(NameOf(row)), name = GetWindow(control, GW_HWNDPREV);
    EXPECT_EQ(TextOf(name), row.spoken_name);
    EXPECT_EQ(IsWindowVisible(name), FALSE);
    wchar_t name_class[32] = {};
    GetClassNameW(name, name_class, 32);
    EXPECT_STREQ(name_class, L"Static");
    if (row.kind == Kind::List) continue;  // Wine's lists tell no name at all
    IAccessible* object = nullptr;
    AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               reinterpret_cast<void**>(&object));
    ASSERT_TRUE(object);
    _bstr_t heard;
    object->get_accName(_variant_t(long{CHILDID_SELF}), heard.GetAddress());
    EXPECT_STREQ(heard, Win32::Wide(row.spoken_name.data()));
    object->Release();
  }
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  for (const View next :
       {u"cmdTBF0",   u"cmdTBF1",      u"cmdTBF2",   u"txbOutput", u"cmdClear",   u"cmdCopy",
        u"cmdQuit",   u"txbYearCE1",   u"cboDay1",   u"cboMonth1", u"txbYearCE0", u"cboDay0",
        u"cboMonth0", u"optCalendar0", u"cboMonth2", u"cboDay2",   u"cboMType",   u"cboYearInMet",
        u"cboGMet",   u"txbMetNum",    u"cmdConvert"}) {
    Press({VK_TAB});
    EXPECT_SEEN(Focus(), next);
  }
  GoTo(u"optCalendar0");
  Press({VK_DOWN});
  EXPECT_SEEN(Focus(), u"cmdConvert");
  EXPECT_EQ(Ask(u"optCalendar1", BM_GETCHECK), BST_CHECKED);
}

TEST_F(RealWindow, EnterAndEscape) {
  // Enter converts when it comes up where it went down, and in the chosen row alone. That nothing
  // has happened shows when the next key has.
  const Text pane = Read(u"txbOutput");
  GoTo(u"txbYearCE1");
  Press({VK_RETURN, VK_TAB});
  EXPECT_SEEN(Focus(), u"cboDay1");
  Fill(u"txbYearCE0", u"2012");
  GoTo(u"txbYearCE0");
  Key(VK_RETURN, true);
  Press({VK_END});
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(4, 4));
  GoTo(u"cboDay0");
  GoTo(u"txbYearCE0");
  Key(VK_RETURN, false);
  Press({VK_ESCAPE, VK_TAB});
  EXPECT_SEEN(Focus(), u"cboDay0");
  EXPECT_EQ(Read(u"txbOutput"), pane);
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
  EXPECT_SEEN(Read(u"txbYearCE1"), u"2012");
  Fill(u"txbYearCE0", u"");
  GoTo(u"cmdTBF0");
  Press({VK_RETURN});
  EXPECT_SEEN(Focus(), u"cmdConvert");
  EXPECT_NE(Read(u"txbYearCE0"), u"");
  GoTo(u"txbOutput");
  Press({VK_ESCAPE, VK_TAB});
  EXPECT_SEEN(Focus(), u"cmdClear");

  // The Enter that closes a box is held until the field behind has the focus again. Its repeats and
  // its end there bring up no other box.
  Fill(u"txbYearCE0", u"");
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
  EXPECT_SEEN(Focus(), AtBox);
  const HWND box = GetLastActivePopup(window);
  const HWND icon = FindWindowExW(box, nullptr, L"Static", nullptr);
  EXPECT_EQ(TextOf(box), u"Invalid input");
  EXPECT_EQ(TextOf(FindWindowExW(box, icon, L"Static", nullptr)), u"Gregorian  date is invalid.");
  Key(VK_RETURN, true);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  PostMessageW(Control(u"txbYearCE0"), WM_KEYDOWN, VK_RETURN, LPARAM{KF_REPEAT} << 16 | 1);
  Key(VK_RETURN, false);
  Press({VK_TAB});
  EXPECT_SEEN(Focus(), u"cboDay0");
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  const bool is_first = Read(u"cboDay0") == u"1";
  GoTo(u"cboDay0");
  Press({VK_F4, is_first ? WORD{VK_END} : WORD{VK_HOME}, VK_RETURN});
  EXPECT_SEEN(Read(u"cboDay0") + Focus(), is_first ? u"31cmdConvert" : u"1cmdConvert");
  EXPECT_EQ(Read(u"lblDayOfWeek0"), u"");

  // A closed list chooses at once. In an open one arrows browse, Escape restores, Enter chooses.
  GoTo(u"cboGMet");
  Press({VK_UP});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cmdConvert");
  GoTo(u"cboGMet");
  Press({VK_F4, VK_DOWN});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-2cboGMet");
  Press({VK_ESCAPE});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cboGMet");
  // What the line shows is what counts, also when it was typed into the open list.
  Press({VK_F4, VK_DELETE, 'G'});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"gcboGMet");
  Press({VK_RETURN});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cmdConvert");
  GoTo(u"cboGMet");
  Press({VK_F4, VK_DOWN, VK_RETURN});
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-2cmdConvert");

  const RECT place = RectOf(Control(u"cboGMet"));
  Mouse(place.right - 8, place.top + 10, true);
  EXPECT_SEEN(Ask(u"cboGMet", CB_GETDROPPEDSTATE), TRUE);
  Mouse(place.left + 10, place.bottom + 8, true);  // its first item
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cmdConvert");
  const LRESULT left = Ask(u"cboGMet", CB_GETEDITSEL);
  EXPECT_EQ(LOWORD(left), HIWORD(left));  // nothing stays selected where the focus is not
}

TEST_F(RealWindow, TickDisturbsNobody) {
  GoTo(u"txbYearCE0");
  Fill(u"txbYearCE0", u"  30");
  Press({VK_END, VK_LEFT});                 // between the digits
  EXPECT_SEEN(Read(u"txbYearCE0"), u"30");  // trimmed by a tick that comes by itself
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
  Tick();
  EXPECT_EQ(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  Fill(u"txbOutput", Text(76, u'x'));
  EXPECT_EQ(Ask(u"txbOutput", EM_GETLINECOUNT), 1);
  Fill(u"txbOutput", u"\u00E4.");
  GoTo(u"txbOutput");
  Press({VK_CONTROL, VK_END, VK_RETURN, VK_CONTROL, VK_TAB});
  EXPECT_SEEN(Read(u"txbOutput"), u"\u00E4.\r\n\t");
  const HWND holder = NewWindow(0);
  EXPECT_SEEN(OpenClipboard(holder), TRUE);
  EmptyClipboard();
  EXPECT_TRUE(SetClipboardData(CF_RIFF, GlobalAlloc(GMEM_MOVEABLE, 8)));
  CloseClipboard();
  GoTo(u"cmdCopy");
  Press({VK_SPACE});
  EXPECT_SEEN(IsClipboardFormatAvailable(CF_UNICODETEXT), TRUE);
  EXPECT_SEEN(OpenClipboard(holder), TRUE);
  const auto* copied = static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_EQ(Text(copied ? copied : u""), u"\u00E4.\r\n\t");
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_RIFF));
  // While another program holds the clipboard.
  Press({VK_SPACE, VK_TAB});
  EXPECT_SEEN(Focus(), u"cmdQuit");
  CloseClipboard();
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  Fill(u"txbYearCE0", u"2012");
  GoTo(u"txbYearCE0");
  const HWND other = NewWindow(WS_VISIBLE);
  SetForegroundWindow(other);
  EXPECT_SEEN(GetForegroundWindow(), other);
  Mouse(RectOf(window).left + 200, RectOf(window).top + 10, true);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  DestroyWindow(other);
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_SEEN(IsIconic(window), TRUE);
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  EXPECT_EQ(Read(u"txbYearCE0"), u"2012");
}

// The longest text of each control, in the font that it gets at each scale: that of the layout, or
// what a list or a box may hold. What else stands in a control, in pixels at 96 dpi, is the edges,
// the arrow of a list, and the circle of an option.
TEST(StoredLayout, CutsNoText) {
  const std::map<Text, Text> contents = {{u"txbYearCE0", u"-9999"},
                                         {u"txbYearCE1", u"-9999"},
                                         {u"txbMetNum", u"341"},
                                         {u"cboMonth0", u"September"},
                                         {u"cboMonth1", u"September"},
                                         {u"cboMonth2", u"LA-13"},
                                         {u"cboDay0", u"30"},
                                         {u"cboDay1", u"30"},
                                         {u"cboDay2", u"30"},
                                         {u"cboGMet", u"GMet-2"},
                                         {u"cboMType", u"C"},
                                         {u"cboYearInMet", u"LYC-19"},
                                         {u"lblCopyright", PROGRAM_COPYRIGHT}};
  const std::map<Kind, int> besides = {{Kind::Frame, 0},         {Kind::Label, 0},
                                       {Kind::TextBox, 6},       {Kind::List, 23},
                                       {Kind::OptionButton, 20}, {Kind::CommandButton, 8}};
  const HDC screen = GetDC(nullptr);
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    const auto content = contents.find(NameOf(row));
    const Text text = content == contents.end() ? Text(row.text) : content->second;
    for (int dpi = 60; dpi <= 288; dpi += 12) {
      SelectObject(screen, Win32::FontAt(row.font, row.kind == Kind::OptionButton, dpi));
      SIZE size = {};
      GetTextExtentPoint32W(screen, Win32::Wide(text), static_cast<int>(text.size()), &size);
      EXPECT_LE(size.cx + MulDiv(besides.at(row.kind), dpi, 96), Win32::Pixels(row.width, dpi))
          << testing::PrintToString(NameOf(row)) << " at " << dpi;
    }
  }
  ReleaseDC(nullptr, screen);
}

TEST(RealProgram, AsksTheSystemForTheDate) {
  wchar_t today[16] = {};
  GetDateFormatEx(L"en-US", 0, nullptr, L"MM-dd-yyyy", today, 16, nullptr);
  EXPECT_STREQ(Win32::Wide(Win32::LocalDate()), today);
}

TEST(RealProgram, EndsByEveryWay) {
  {
    const Tandem tandem;
    tandem.GoTo(u"cmdQuit");
    Press({VK_SPACE});
    EXPECT_EQ(tandem.ExitCode(), 0) << "Quit";
  }
  {
    const Tandem tandem;
    Press({VK_MENU, VK_F4});
    EXPECT_EQ(tandem.ExitCode(), 0) << "Alt+F4";
  }
}
