// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "window_driver.h"

#include <array>
#include <cstddef>
#include <cstdio>
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
    RECT actual = Driver::BoundsOf(driver.Control(NameOf(row)));
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
  const RECT outer = Driver::BoundsOf(window);
  RECT client, work;
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
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(Read(u"lblCopyright"), PROGRAM_COPYRIGHT);
  EXPECT_EQ(Ask(u"txbYearCE0", EM_GETLIMITTEXT), 5);
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

// The texts have no descenders, except the weekday, whose top is compared.
TEST_F(RealWindow, TextsAreInTheMiddleOfTheirFields) {
  SendMessageW(Control(u"cboMonth0"), CB_SETCURSEL, 10, 0);  // November
  SendMessageW(Control(u"cboMonth1"), CB_SETCURSEL, 10, 0);
  for (const Toolkit::ControlTemplate& row : Layout::Rows) {
    if ((row.kind != Kind::TextBox && row.kind != Kind::ComboBox) || row.properties.multiline)
      continue;
    const auto seen = [&] { return InkOffset(NameOf(row)); };
    EXPECT_NEAR(Await(seen, 0, 20), 0, 1) << testing::PrintToString(NameOf(row));
  }
  EXPECT_NEAR(Ink(u"cboMonth0").front(), Ink(u"lblDayOfWeek0").front(), 1);
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

TEST_F(RealWindow, NothingRunsBehindAMessageBoxNorWhenEnterClosesIt) {
  const auto is_framed = [this] { return Ask(u"cmdConvert", WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON; };
  EXPECT_TRUE(is_framed());
  Fill(u"txbYearCE0", u"");
  GoTo(u"txbYearCE0");
  Press({VK_RETURN});
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
  Fill(u"txbYearCE0", u"");
  // Held until the field is focused again: its repeats and its release there bring up no other
  // message box.
  Key(VK_RETURN, true);
  EXPECT_EVENTUALLY(Focus(), u"txbYearCE0");
  PostMessageW(Control(u"txbYearCE0"), WM_KEYDOWN, VK_RETURN, Held);
  Key(VK_RETURN, false);
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cboDay0");
}

TEST_F(RealWindow, AnOpenComboChoosesAtEnter) {
  // Enter takes the item that begins with the text typed while the list is open.
  GoTo(u"cboGMet");
  Press({VK_F4, VK_DELETE, 'G'});
  EXPECT_EVENTUALLY(std::pair(Read(u"cboGMet"), Focus()), std::pair(Text(u"g"), Text(u"cboGMet")));
  Press({VK_RETURN});
  EXPECT_EVENTUALLY(std::pair(Read(u"cboGMet"), Focus()),
                    std::pair(Text(u"GMet-1"), Text(u"cmdConvert")));
}

// However its list is closed.
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
      PostMessageW(window, WM_TIMER, 1, 0);  // reads the chosen item, not the highlighted one
      by_mouse ? Click(Control(u"txbOutput")) : Press({VK_ESCAPE});
      EXPECT_EVENTUALLY(ComboState(combo), closed);
      EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
    }
  }
  PostMessageW(Control(u"cboGMet"), WM_MOUSEWHEEL, WHEEL_DELTA << 16, 0);  // it is not focused
  Press({VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cboGMet");
  EXPECT_EQ(Read(u"cboGMet"), u"GMet-2");
}

TEST_F(RealWindow, AnotherDpiFitsADraggedWindowWhenItIsReleased) {
  const int dpi = static_cast<int>(GetDpiForWindow(window)) * 5 / 4;
  GoTo(u"cboGMet");
  Press({VK_F4, VK_UP});
  EXPECT_EVENTUALLY(ComboState(u"cboGMet"), std::tuple(Text(u"GMet-1"), 0, TRUE));
  SendMessageW(window, WM_ENTERSIZEMOVE, 0, 0);
  SetWindowPos(window, nullptr, -100, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(window, WM_THEMECHANGED, 0, 0);
  SendDpiChanged(dpi);  // with the bounds that the window has
  EXPECT_EQ(Driver::BoundsOf(window).left, -100);
  SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
  ExpectLayout(*this, dpi);
  RECT client;
  GetClientRect(window, &client);
  EXPECT_EQ(client.right, Pixels(Layout::ClientWidth, dpi));
  EXPECT_EQ(Driver::BoundsOf(window).left, 0) << "inside the work area";
  EXPECT_EQ(ComboState(u"cboGMet"), std::tuple(Text(u"GMet-2"), 1, FALSE));
  Press({VK_UP});  // closed, it chooses
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
  GoTo(u"cmdCopy");
  Press({VK_SPACE});
  EXPECT_EVENTUALLY(ClipboardText(), u"\u00E4.\r\n\t");
  EXPECT_EVENTUALLY(OpenClipboard(nullptr), TRUE);  // so that the program cannot
  Press({VK_SPACE, VK_TAB});
  EXPECT_EVENTUALLY(Focus(), u"cmdQuit");
  CloseClipboard();
}

TEST_F(RealWindow, SurvivesMinimisingAndForeignHandlesAndCloses) {
  GoTo(u"cboDay0");
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_EVENTUALLY(IsIconic(window), TRUE);
  const HWND other = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr,
                                     GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(other, GWLP_USERDATA, 1);
  for (const HWND handle : {other, window, Control(u"lblM")}) {
    const auto value = reinterpret_cast<LONG_PTR>(handle);
    for (const int message : {WM_COMMAND, WM_CTLCOLORSTATIC, WM_APP, WM_APP + 1}) {
      PostMessageW(window, static_cast<UINT>(message), static_cast<WPARAM>(value), value);
    }
  }
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_EVENTUALLY(Focus(), u"cboDay0");
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);  // as Alt+F4 and the close button do
  EXPECT_EQ(WaitForSingleObject(process, 60000), WAIT_OBJECT_0);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process, &code);
  EXPECT_EQ(code, 0u);
}
