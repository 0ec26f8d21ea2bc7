// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "window_driver.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <tuple>
#include <utility>

#include "native.h"

using namespace Driver;
using Toolkit::Kind;
using Win32::Pixels;

// The state of a key-down that repeats itself.
constexpr LPARAM Held = LPARAM{KF_REPEAT} << 16 | 1;

// Expects every control within the bounds of its row at this DPI, and after its accessible name.
void ExpectLayout(const RealWindow& driver, int dpi) {
  for (const Toolkit::ControlTemplate& row : Layout::Rows) {
    RECT actual;
    GetWindowRect(driver.Control(NameOf(row)), &actual);
    MapWindowPoints(nullptr, driver.window, reinterpret_cast<POINT*>(&actual), 2);
    const Toolkit::Bounds bounds = BoundsOf(row);
    const LONG left = Pixels(bounds.left, dpi);
    const LONG top = Pixels(bounds.top, dpi);
    // A combo box may be wider than what is visible of it.
    if (row.kind == Kind::ComboBox) actual.right = left + Pixels(bounds.width, dpi);
    EXPECT_EQ(
        (std::array{actual.left, actual.top, actual.right, actual.bottom}),
        (std::array{left, top, left + Pixels(bounds.width, dpi), top + Pixels(bounds.height, dpi)}))
        << testing::PrintToString(NameOf(row));
    if (row.kind != Kind::TextBox && row.kind != Kind::ComboBox) continue;
    // Screen readers take the name from the STATIC control before it.
    const HWND name = GetWindow(driver.Control(NameOf(row)), GW_HWNDPREV);
    EXPECT_EQ(TextOf(name), Text(row.accessible_name)) << testing::PrintToString(NameOf(row));
  }
}

// Also on a desktop that is too small: then the window is drawn as large as it fits.
TEST_F(RealWindow, MatchesTheLayout) {
  RECT outer, client, work;
  GetWindowRect(window, &outer);
  GetClientRect(window, &client);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const UINT monitor_dpi = GetDpiForWindow(window);
  std::printf("The desktop has %u dpi.\n", monitor_dpi);
  char expected[8];  // by the script that set up the desktop, if there is one
  if (GetEnvironmentVariableA("TANDEM_TEST_DPI", expected, sizeof expected)) {
    EXPECT_EQ(std::to_string(monitor_dpi), expected);
  }
  const int dpi = MulDiv(client.right, 1440, Layout::ClientWidth);
  const LONG spare_width = work.right - work.left - (outer.right - outer.left);
  const LONG spare_height = work.bottom - work.top - (outer.bottom - outer.top);
  const bool is_largest = Pixels(Layout::ClientWidth, dpi + 1) - client.right > spare_width ||
                          Pixels(Layout::ClientHeight, dpi + 1) - client.bottom > spare_height;
  EXPECT_TRUE(is_largest || dpi == static_cast<int>(monitor_dpi)) << dpi;
  EXPECT_EQ(client.bottom, Pixels(Layout::ClientHeight, dpi));
  EXPECT_GE(spare_width, 0);
  EXPECT_GE(spare_height, 0);
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(Read(u"lblCopyright"), PROGRAM_COPYRIGHT);
  EXPECT_EQ(Ask(u"txbYearCE0", EM_GETLIMITTEXT), 5);
  EXPECT_EQ(Ask(u"txbYearCE1", EM_GETLIMITTEXT), 5);
  EXPECT_EQ(Ask(u"txbMetNum", EM_GETLIMITTEXT), 3);
  ExpectLayout(*this, dpi);
  constexpr COLORREF Yellow = RGB(240, 232, 0);
  EXPECT_EVENTUALLY(Pixel(u"cmdConvert", -5), Yellow);
  // A label or an option button reaches over the border of these fields.
  for (const Text field : {u"cboMonth1", u"cboMType", u"txbMetNum"}) {
    EXPECT_NE(Pixel(field, 0), Yellow) << testing::PrintToString(field);
  }
  // On a small desktop a combo box is wider, and cut to its bounds.
  EXPECT_EQ(Pixel(u"cboDay2", Pixels(600, dpi) + 2), Yellow);
  int icon = 0;  // its yellow points in the title bar
  for (int x = outer.left; x < outer.left + 30; ++x) {
    icon += ScreenPixel(x, outer.top + GetSystemMetrics(SM_CYCAPTION) / 2) == Yellow;
  }
  EXPECT_GT(icon, 0);
  SYSTEMTIME now;
  GetLocalTime(&now);
  EXPECT_EQ(Ask(u"cboDay0", CB_GETCURSEL), now.wDay - 1);
}

// The texts have no descenders, except the weekdays, whose top is compared.
TEST_F(RealWindow, TextsAreInTheMiddleOfTheirFields) {
  for (const Text month : {u"cboMonth0", u"cboMonth1"}) {
    SendMessageW(Control(month), CB_SETCURSEL, 10, 0);  // November
  }
  Fill(u"cboYearInMet", u"Text");
  const int dpi = static_cast<int>(GetDpiForWindow(window));
  for (const Toolkit::ControlTemplate& row : Layout::Rows) {
    const bool is_list = row.kind == Kind::ComboBox;
    if (!is_list && (row.kind != Kind::TextBox || row.properties.multiline)) continue;
    SCOPED_TRACE(testing::PrintToString(NameOf(row)));
    const int middle = Pixels(BoundsOf(row).top, dpi) + Pixels(row.bounds.height, dpi) / 2;
    LONG seen = 0;
    const auto is_near = [&] {
      const std::vector<LONG> ink = Ink(NameOf(row));
      seen = ink.empty() ? 0 : (ink.front() + ink.back() + 1) / 2;
      return std::abs(seen - middle) <= 1;
    };
    EXPECT_TRUE(Await(is_near, true, 100)) << seen << " instead of " << middle;
  }
  EXPECT_NEAR(Ink(u"cboMonth0").front(), Ink(u"lblDayOfWeek0").front(), 1);
  EXPECT_NEAR(Ink(u"cboMonth2").front(), Ink(u"lblDayOfWeek2").front(), 2);
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  for (const Text next :
       {u"cmdTBF0",   u"cmdTBF1",      u"cmdTBF2",   u"txbOutput", u"cmdClear",   u"cmdCopy",
        u"cmdQuit",   u"txbYearCE1",   u"cboDay1",   u"cboMonth1", u"txbYearCE0", u"cboDay0",
        u"cboMonth0", u"optCalendar0", u"cboMonth2", u"cboDay2",   u"cboMType",   u"cboYearInMet",
        u"cboGMet",   u"txbMetNum",    u"cmdConvert"}) {
    Press({VK_TAB});
    EXPECT_EVENTUALLY(Focus(), next);
  }
  const std::size_t plain = Ink(u"optCalendar1").size();
  GoTo(u"optCalendar0");
  Press({VK_DOWN});
  EXPECT_EVENTUALLY(Focus(), u"cmdConvert");
  EXPECT_EVENTUALLY(Ink(u"optCalendar1").size() > plain, true) << "the chosen one is bold";
  EXPECT_EQ(Ask(u"optCalendar1", BM_GETCHECK), BST_CHECKED);
}

TEST_F(RealWindow, EnterConvertsAndEscapeDoesNothing) {
  GoTo(u"txbYearCE0");  // the first key replaces the year
  Press({'2', '0', '1', '2', VK_ESCAPE, VK_RETURN});
  EXPECT_EVENTUALLY(Read(u"txbYearCE1"), u"2012");
  const Text pane = Read(u"txbOutput");
  PostMessageW(Control(u"cmdConvert"), WM_KEYDOWN, VK_RETURN, Held);
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cmdTBF0");
  EXPECT_EQ(Read(u"txbOutput"), pane) << "the key was held, not pressed again";
  Fill(u"txbOutput", u"");
  GoTo(u"txbOutput");
  for (const LPARAM state : {LPARAM{1}, Held, Held}) {
    PostMessageW(Control(u"txbOutput"), WM_KEYDOWN, VK_RETURN, state);
  }
  EXPECT_EVENTUALLY(Read(u"txbOutput"), u"\r\n\r\n\r\n");
}

TEST_F(RealWindow, EnterAfterAClickPressesTheFocusedButton) {
  Fill(u"txbOutput", u"1");
  Click(Control(u"cmdCopy"));
  EXPECT_EVENTUALLY(ClipboardText(), u"1");
  Fill(u"txbOutput", u"2");
  Press({VK_RETURN});
  EXPECT_EVENTUALLY(ClipboardText(), u"2");
}

TEST_F(RealWindow, NothingRunsBehindAMessageBox) {
  const auto is_framed = [this] { return Ask(u"cmdConvert", WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON; };
  Fill(u"txbYearCE0", u"");
  Press({VK_SPACE});
  EXPECT_EVENTUALLY(Focus(), AtMessageBox);
  const HWND box = GetLastActivePopup(window);
  EXPECT_EQ(TextOf(box), u"Invalid input");
  EXPECT_TRUE(FindWindowExW(box, nullptr, L"STATIC", L"Gregorian  date is invalid."));
  EXPECT_FALSE(is_framed());
  // A tick would trim the space before the character arrives.
  Fill(u"txbYearCE0", u" 3");
  PostMessageW(GetNextDlgTabItem(box, nullptr, FALSE), WM_KEYDOWN, VK_RETURN, Held);
  PostMessageW(window, WM_TIMER, 1, 0);
  PostMessageW(Control(u"cmdTBF0"), BM_CLICK, 0, 0);
  for (const UINT message : {WM_KEYDOWN + 0u, WM_KEYUP + 0u}) {
    PostMessageW(Control(u"txbYearCE0"), message, VK_RETURN, 1);
  }
  PostMessageW(Control(u"txbYearCE0"), WM_CHAR, u'0', 0);
  EXPECT_EVENTUALLY(Read(u"txbYearCE0"), u"0 3");
  EXPECT_EQ(GetLastActivePopup(window), box);
  EXPECT_EQ(Focus(), AtMessageBox);
  Press({VK_ESCAPE});
  EXPECT_EVENTUALLY(Focus(), u"cmdConvert");
  EXPECT_TRUE(is_framed());
}

TEST_F(RealWindow, IgnoresHandlesOfOthers) {
  const HWND strange = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr,
                                       GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(strange, GWLP_USERDATA, 1);
  for (const HWND handle : {strange, window, Control(u"lblM")}) {
    for (const UINT message : {WM_COMMAND + 0u, WM_CTLCOLORSTATIC + 0u, WM_APP + 0u, WM_APP + 1u}) {
      PostMessageW(window, message, reinterpret_cast<WPARAM>(handle),
                   reinterpret_cast<LPARAM>(handle));
    }
  }
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cmdTBF0");
}

TEST_F(RealWindow, EnterThatClosesAMessageBoxDoesNotConvert) {
  Fill(u"txbYearCE0", u"");
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
  EXPECT_EVENTUALLY(Focus(), AtMessageBox);
  // It is held until the field is focused again. Its repeats and its release there bring up no
  // other message box.
  Key(VK_RETURN, true);
  EXPECT_EVENTUALLY(Focus(), u"txbYearCE0");
  PostMessageW(Control(u"txbYearCE0"), WM_KEYDOWN, VK_RETURN, Held);
  Key(VK_RETURN, false);
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cboDay0");
}

TEST_F(RealWindow, CombosChooseWhenTheChoiceIsMade) {
  SendMessageW(Control(u"cboDay0"), CB_SETCURSEL, 4, 0);
  const struct {
    Text combo;
    std::vector<WORD> keys;
    Text shown, focus;  // afterwards
  } steps[] = {
      {u"cboDay0", {VK_F4, VK_HOME, VK_RETURN}, u"1", u"cmdConvert"},
      // Closed, it chooses at once; open, at Enter.
      {u"cboGMet", {VK_UP}, u"GMet-1", u"cmdConvert"},
      {u"cboGMet", {VK_F4, VK_DOWN, VK_RETURN}, u"GMet-2", u"cmdConvert"},
      // Enter takes the item that begins with the text typed while the list is open.
      {u"cboGMet", {VK_F4, VK_DELETE, 'G'}, u"g", u"cboGMet"},
      {u"cboGMet", {VK_RETURN}, u"GMet-1", u"cmdConvert"},
  };
  for (const auto& step : steps) {
    if (Focus() != step.combo) GoTo(step.combo);
    Press(step.keys);
    EXPECT_EVENTUALLY(std::pair(Read(step.combo), Focus()), std::pair(step.shown, step.focus));
  }
}

// However its list is closed, and after a selection from code.
TEST_F(RealWindow, CombosShowTheChosenItem) {
  for (const Text combo : {u"cboGMet", u"cboMType", u"cboYearInMet"}) {
    SCOPED_TRACE(testing::PrintToString(combo));
    const auto closed = ComboState(combo);
    const LRESULT index = Ask(combo, CB_GETCURSEL);
    for (const bool by_mouse : {true, false}) {
      GoTo(combo);
      by_mouse ? Click(Control(combo)) : Press({VK_F4});
      EXPECT_EVENTUALLY(Ask(combo, CB_GETDROPPEDSTATE), TRUE);
      index == 0 ? Press({VK_DOWN}) : Press({VK_UP});
      EXPECT_EVENTUALLY(Ask(combo, CB_GETCURSEL), index == 0 ? 1 : index - 1);
      PostMessageW(window, WM_TIMER, 1,
                   0);  // a tick reads the chosen item, not the highlighted one
      by_mouse ? Click(Control(u"txbOutput")) : Press({VK_ESCAPE});
      EXPECT_EVENTUALLY(ComboState(combo), closed);
      EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
    }
    Fill(combo, u"abc");
    Press({VK_F4});
    EXPECT_EVENTUALLY(Ask(combo, CB_GETDROPPEDSTATE), TRUE);
    Press({VK_ESCAPE});
    EXPECT_EVENTUALLY(ComboState(combo), std::tuple(Text(u"abc"), -1, FALSE));
    GoTo(u"cmdTBF0");
    Press({VK_RETURN});
    EXPECT_EVENTUALLY(ComboState(combo), closed);
  }
}

TEST_F(RealWindow, AnotherDpiLeavesWhatTheCombosHold) {
  const int dpi = static_cast<int>(GetDpiForWindow(window));
  GoTo(u"cboYearInMet");
  Press({'L'});
  EXPECT_EVENTUALLY(Read(u"cboYearInMet"), u"l");
  GoTo(u"cboGMet");
  for (const int other_dpi : {dpi * 5 / 4, dpi}) {
    Press({VK_F4, VK_UP});
    EXPECT_EVENTUALLY(ComboState(u"cboGMet"), std::tuple(Text(u"GMet-1"), 0, TRUE));
    SendDpiChanged(other_dpi);
    ExpectLayout(*this, other_dpi);
    EXPECT_EQ(ComboState(u"cboGMet"), std::tuple(Text(u"GMet-2"), 1, FALSE));
    EXPECT_EQ(ComboState(u"cboYearInMet"), std::tuple(Text(u"l"), -1, FALSE));
  }
  Press({VK_UP});  // closed again, it chooses
  EXPECT_EVENTUALLY(Focus(), u"cmdConvert");
}

TEST_F(RealWindow, ADraggedWindowIsFittedWhenItIsReleased) {
  const auto bounds = [this] {
    RECT outer;
    GetWindowRect(window, &outer);
    return std::array{outer.left, outer.top, outer.right, outer.bottom};
  };
  const int dpi = static_cast<int>(GetDpiForWindow(window));
  SendMessageW(window, WM_ENTERSIZEMOVE, 0, 0);
  SetWindowPos(window, nullptr, -100, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const auto dragged = bounds();
  SendMessageW(window, WM_THEMECHANGED, 0, 0);
  EXPECT_EQ(bounds(), dragged);
  SendDpiChanged(dpi * 5 / 4);
  EXPECT_EQ(bounds(), dragged) << "which the message gave it";
  SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
  ExpectLayout(*this, dpi * 5 / 4);
  RECT client;
  GetClientRect(window, &client);
  EXPECT_EQ(client.right, Pixels(Layout::ClientWidth, dpi * 5 / 4));
  EXPECT_EQ(bounds()[0], 0) << "inside the work area";
}

TEST_F(RealWindow, TheWheelIsForTheFocusedCombo) {
  const HWND combo = Control(u"cboGMet");
  constexpr WPARAM Up = WHEEL_DELTA << 16;
  PostMessageW(combo, WM_MOUSEWHEEL, Up, 0);
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cmdTBF0");
  EXPECT_EQ(Read(u"cboGMet"), u"GMet-2");
  GoTo(u"cboGMet");
  PostMessageW(combo, WM_MOUSEWHEEL, Up, 0);
  EXPECT_EVENTUALLY(Focus(), u"cmdConvert");
}

TEST_F(RealWindow, TickDisablesCommandsAndKeepsTheCaretOnItsCharacter) {
  GoTo(u"txbYearCE0");
  Fill(u"txbYearCE0", u"  30");
  Press({VK_END, VK_LEFT});                       // between the digits
  EXPECT_EVENTUALLY(Read(u"txbYearCE0"), u"30");  // trimmed by a real tick
  EXPECT_EVENTUALLY(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
  Fill(u"txbYearCE0", u"");
  EXPECT_EVENTUALLY(IsWindowEnabled(Control(u"cmdTBF2")), FALSE);
}

TEST_F(RealWindow, ThePaneGrowsBeyondTheNativeLimitAndShowsItsEnd) {
  const std::size_t block = Read(u"txbOutput").size();
  const std::size_t full = 40000;  // in more than 400 lines
  Fill(u"txbOutput", Text(full, u'x'));
  SendMessageW(Control(u"txbOutput"), EM_SETSEL, 0, -1);  // the block must not replace it
  Press({VK_SPACE});
  EXPECT_EVENTUALLY(Read(u"txbOutput").size(), full + block);
  EXPECT_EQ(LOWORD(Ask(u"txbOutput", EM_GETSEL)), full + block) << "the caret";
  EXPECT_GT(Ask(u"txbOutput", EM_GETFIRSTVISIBLELINE), 400);
  GoTo(u"txbOutput");
  Press({'X'});
  EXPECT_EVENTUALLY(Read(u"txbOutput").size(), full + block + 1);
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  Fill(u"txbOutput", Text(76, u'x'));
  EXPECT_EQ(Ask(u"txbOutput", EM_GETLINECOUNT), 1);
  GoTo(u"txbOutput");
  Key(VK_CONTROL, true);
  Press({'A', VK_TAB});  // selects all, and types a tab
  Key(VK_CONTROL, false);
  EXPECT_EVENTUALLY(Read(u"txbOutput"), u"\t");
  Fill(u"txbOutput", u"\u00E4.\r\n\t");
  EXPECT_EVENTUALLY(OpenClipboard(window), TRUE);
  EmptyClipboard();
  SetClipboardData(CF_PRIVATEFIRST, GlobalAlloc(GMEM_MOVEABLE, 1));
  CloseClipboard();
  GoTo(u"cmdCopy");
  Press({VK_SPACE});
  EXPECT_EVENTUALLY(ClipboardText(), u"\u00E4.\r\n\t");
  EXPECT_EQ(IsClipboardFormatAvailable(CF_PRIVATEFIRST), FALSE);
  EXPECT_EVENTUALLY(OpenClipboard(nullptr), TRUE);  // so that the program cannot
  Press({VK_SPACE, VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cmdQuit");
  CloseClipboard();
}

TEST_F(RealWindow, RestoringKeepsTheFocus) {
  GoTo(u"cboDay0");
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_EVENTUALLY(IsIconic(window), TRUE);
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_EVENTUALLY(Focus(), u"cboDay0");
}

TEST_F(RealWindow, EndsWithCode0) {
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);  // as Alt+F4 and the close button do
  EXPECT_EQ(WaitForSingleObject(process, 60000), WAIT_OBJECT_0);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process, &code);
  EXPECT_EQ(code, 0u);
}
