// Uses the built tandem.exe as a person does, from outside, by keyboard and clipboard.
#include "desk.h"

#include <array>
#include <map>

#include "native.h"

using namespace Desk;
using Toolkit::Kind;

// Also on a desktop that is too small for it: then it is drawn as large as it can be there.
TEST_F(RealWindow, StandsAsStored) {
  RECT outer, client, work;
  GetWindowRect(window, &outer);
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
    RECT place;
    GetWindowRect(Control(NameOf(row)), &place);
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
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    if (row.kind != Kind::TextBox && row.kind != Kind::List) continue;
    SCOPED_TRACE(testing::PrintToString(NameOf(row)));
    const HWND name = GetWindow(Control(NameOf(row)), GW_HWNDPREV);
    EXPECT_EQ(TextOf(name), row.spoken_name);
    EXPECT_EQ(IsWindowVisible(name), FALSE);
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
  // Enter converts in the chosen row alone, and Escape does nothing. That nothing has happened
  // shows when the next key has.
  const Text pane = Read(u"txbOutput");
  GoTo(u"txbYearCE1");
  Press({VK_RETURN, VK_ESCAPE, VK_TAB});
  EXPECT_SEEN(Focus(), u"cboDay1");
  EXPECT_EQ(Read(u"txbOutput"), pane);
  Fill(u"txbYearCE0", u"2012");
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
  EXPECT_SEEN(Read(u"txbYearCE1"), u"2012");
  GoTo(u"cmdTBF0");
  Press({VK_RETURN});
  EXPECT_SEEN(Focus(), u"cmdConvert");
  EXPECT_NE(Read(u"txbYearCE1"), u"2012");

  // The Enter that closes a box is held until the field behind has the focus again. Its repeats and
  // its end there bring up no other box.
  Fill(u"txbYearCE0", u"");
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
  EXPECT_SEEN(Focus(), AtBox);
  EXPECT_EQ(TextOf(GetLastActivePopup(window)), u"Invalid input");
  Key(VK_RETURN, true);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  PostMessageW(Control(u"txbYearCE0"), WM_KEYDOWN, VK_RETURN, LPARAM{KF_REPEAT} << 16 | 1);
  Key(VK_RETURN, false);
  Press({VK_TAB});
  EXPECT_SEEN(Focus(), u"cboDay0");
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  const bool is_first = Read(u"cboDay0") == u"1";
  const WORD to_another = is_first ? VK_END : VK_HOME;
  // One after the other: the list, the keys, what its line shows then, and where the focus is.
  const std::tuple<View, std::vector<WORD>, View, View> steps[] = {
      {u"cboDay0", {VK_F4, to_another, VK_RETURN}, is_first ? u"31" : u"1", u"cmdConvert"},
      // A closed list chooses at once. In an open one arrows browse, Escape restores, Enter
      // chooses.
      {u"cboGMet", {VK_UP}, u"GMet-1", u"cmdConvert"},
      {u"cboGMet", {VK_F4, VK_DOWN}, u"GMet-2", u"cboGMet"},
      {u"cboGMet", {VK_ESCAPE}, u"GMet-1", u"cboGMet"},
      // What the line shows is what counts, also when it was typed into the open list.
      {u"cboGMet", {VK_F4, VK_DELETE, 'G'}, u"g", u"cboGMet"},
      {u"cboGMet", {VK_RETURN}, u"GMet-1", u"cmdConvert"},
      {u"cboGMet", {VK_F4, VK_DOWN, VK_RETURN}, u"GMet-2", u"cmdConvert"},
  };
  for (const auto& [list, keys, shown, focus] : steps) {
    if (Focus() != list) GoTo(list);
    Press(keys);
    EXPECT_SEEN(std::pair(Read(list), Focus()), std::pair(Text(shown), Text(focus)));
  }
}

TEST_F(RealWindow, TickKeepsTheCaretOnItsCharacter) {
  GoTo(u"txbYearCE0");
  Fill(u"txbYearCE0", u"  30");
  Press({VK_END, VK_LEFT});                 // between the digits
  EXPECT_SEEN(Read(u"txbYearCE0"), u"30");  // trimmed by a tick that comes by itself
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  Fill(u"txbOutput", Text(76, u'x'));
  EXPECT_EQ(Ask(u"txbOutput", EM_GETLINECOUNT), 1);
  Fill(u"txbOutput", u"\u00E4.\r\n\t");
  EXPECT_SEEN(OpenClipboard(nullptr), TRUE);
  EmptyClipboard();
  CloseClipboard();
  GoTo(u"cmdCopy");
  Press({VK_SPACE});
  EXPECT_SEEN(IsClipboardFormatAvailable(CF_UNICODETEXT), TRUE);
  EXPECT_SEEN(OpenClipboard(nullptr), TRUE);
  const auto* copied = static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_EQ(Text(copied ? copied : u""), u"\u00E4.\r\n\t");
  // While another program holds the clipboard.
  Press({VK_SPACE, VK_TAB});
  EXPECT_SEEN(Focus(), u"cmdQuit");
  CloseClipboard();
}

TEST_F(RealWindow, ComingBackKeepsTheFocus) {
  GoTo(u"cboDay0");
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_SEEN(IsIconic(window), TRUE);
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_SEEN(Focus(), u"cboDay0");
}

// The longest text of each control, in the font that it gets at each scale: that of the layout, or
// what a list or a box may hold.
TEST(StoredLayout, CutsNoText) {
  const std::map<Text, Text> contents = {
      // clang-format off
      {u"txbYearCE0", u"-9999"}, {u"cboMonth0", u"September"}, {u"cboDay0", u"30"},
      {u"txbYearCE1", u"-9999"}, {u"cboMonth1", u"September"}, {u"cboDay1", u"30"},
      {u"cboMonth2", u"LA-13"}, {u"cboDay2", u"30"}, {u"cboYearInMet", u"LYC-19"},
      {u"cboGMet", u"GMet-2"}, {u"cboMType", u"C"}, {u"txbMetNum", u"341"},
      // clang-format on
  };
  // What else stands in a control, in pixels at 96 dpi: edges, the arrow of a list, the circle of
  // an option.
  std::map<Kind, int> besides = {
      {Kind::TextBox, 6}, {Kind::List, 23}, {Kind::OptionButton, 20}, {Kind::CommandButton, 8}};
  const HDC screen = GetDC(nullptr);
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    const auto content = contents.find(NameOf(row));
    const Text text = content == contents.end() ? Text(row.text) : content->second;
    for (int dpi = 60; dpi <= 288; dpi += 12) {
      SelectObject(screen, Win32::FontAt(row.font, row.kind == Kind::OptionButton, dpi));
      SIZE size = {};
      GetTextExtentPoint32W(screen, Win32::Wide(text), static_cast<int>(text.size()), &size);
      EXPECT_LE(size.cx + MulDiv(besides[row.kind], dpi, 96), Win32::Pixels(row.width, dpi))
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

TEST_F(RealWindow, EndsWithCode0) {
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);  // as Alt+F4 and the close button do
  const auto exit_code = [this] {
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(process.hProcess, &code);
    return code;
  };
  EXPECT_SEEN(exit_code(), 0u);
}
