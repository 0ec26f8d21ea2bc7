// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "desk.h"

#include <array>

#include "native.h"

using namespace Desk;
using Toolkit::Kind;

namespace {

struct RealWindow : testing::Test, Tandem {};

HWND NewWindow(DWORD style) {
  return CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | style, 0, 0, 90, 90, nullptr,
                         nullptr, nullptr, nullptr);
}

// Today's date of the system, written by the system.
Text Today(const wchar_t* format) {
  wchar_t text[64];
  const int size = GetDateFormatEx(L"en-US", 0, nullptr, format, text, 64, nullptr);
  return Text(text, text + size - 1);
}

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = static_cast<int>(GetDpiForWindow(window));
  const auto pixels = [dpi](int twips) { return static_cast<LONG>(MulDiv(twips, dpi, 1440)); };
  RECT client, work;
  GetClientRect(window, &client);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_EQ(client.right, pixels(ClientWidth));
  EXPECT_EQ(client.bottom, pixels(ClientHeight));
  const RECT outer = RectOf(window);
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(Read(u"lblCopyright"), PROGRAM_COPYRIGHT);

  const std::wstring_view classes[] = {L"Button",   L"Static", L"Edit",
                                       L"ComboBox", L"Button", L"Button"};
  for (const Toolkit::StoredControl& row : Layout::Rows) {
    const Text name = NameOf(row);
    SCOPED_TRACE(testing::PrintToString(name));
    RECT place = RectOf(Control(name));
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    const LONG left = pixels(row.container.left + row.left);
    const LONG top = pixels(row.container.top + row.top);
    EXPECT_EQ((std::array{place.left, place.top, place.right, place.bottom}),
              (std::array{left, top, left + pixels(row.width), top + pixels(row.height)}));
    wchar_t class_name[32] = {};
    GetClassNameW(Control(name), class_name, 32);
    EXPECT_EQ(class_name, classes[static_cast<int>(row.kind)]);
    if (row.kind >= Kind::OptionButton) {
      EXPECT_EQ(Read(name), row.text);
    }
  }
}

TEST_F(RealWindow, OpensOnToday) {
  const Text pane = Read(u"txbOutput");
  EXPECT_EQ(Row(0), Today(L"MMMM d yyyy dddd"));
  EXPECT_EQ(Row(1), Today(L"MMMM d yyyy ") + Read(u"lblDayOfWeek2"));
  EXPECT_EQ(pane.find(Today(L"'  'yyyy-MM-dd '('dddd 'in 7-day week)'")), 0u);
  EXPECT_EQ(Ask(u"txbOutput", EM_GETSEL), MAKELONG(pane.size(), pane.size()));
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  std::vector<View> stops = {
      u"cmdConvert",   u"cmdTBF0",   u"cmdTBF1",      u"cmdTBF2",   u"txbOutput", u"cmdClear",
      u"cmdCopy",      u"cmdQuit",   u"txbYearCE1",   u"cboDay1",   u"cboMonth1", u"txbYearCE0",
      u"cboDay0",      u"cboMonth0", u"optCalendar0", u"cboMonth2", u"cboDay2",   u"cboMType",
      u"cboYearInMet", u"cboGMet",   u"txbMetNum",    u"cmdConvert"};
  for (std::size_t next = 1; next < stops.size(); ++next) {
    Press({Tab});
    EXPECT_SEEN(Focus(), stops[next]);
  }
  std::ranges::reverse(stops);
  for (std::size_t next = 1; next < stops.size(); ++next) {
    Press({Shift, Tab});
    EXPECT_SEEN(Focus(), stops[next]);
  }
}

TEST_F(RealWindow, MovesToDays) {
  MovesToDays();
}

TEST_F(RealWindow, RefusesWithABox) {
  RefusesWithABox();
}

TEST_F(RealWindow, EnterAndEscape) {
  // In a row that is not chosen Enter does nothing, nor in its own before the key comes up. That
  // nothing has happened shows when the next key has.
  const Text pane = Read(u"txbOutput");
  GoTo(u"txbYearCE1");
  Press({Return, Tab});
  EXPECT_SEEN(Focus(), u"cboDay1");
  Enter(0, u"May 7 2010");
  Key(Return, true);
  Press({Shift, Home});
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(0, 4));
  EXPECT_EQ(Read(u"txbOutput"), pane);
  Key(Return, false);
  EXPECT_SEEN(Row(0), u"May 7 2010 Friday");
  GoTo(u"cmdTBF1");
  Press({Return});
  EXPECT_SEEN(Row(0), u"May 6 2010 Thursday");

  const struct {
    View control, next;
  } stops[] = {{u"cmdConvert", u"cmdTBF0"},
               {u"txbYearCE0", u"cboDay0"},
               {u"txbOutput", u"cmdClear"},
               {u"cboDay0", u"cboMonth0"}};
  for (const auto& stop : stops) {
    GoTo(stop.control);
    Press({Esc, Tab});
    EXPECT_SEEN(Focus(), stop.next);
  }

  // The Enter that closes a box is held until the field behind has the focus again. Its repeats and
  // its end there bring up no other box.
  Set(u"txbYearCE0", u"");
  Press({Return});
  EXPECT_SEEN(Focus(), AtBox);
  Key(Return, true);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  PostMessageW(Control(u"txbYearCE0"), WM_KEYDOWN, VK_RETURN, LPARAM{KF_REPEAT} << 16 | 1);
  Key(Return, false);
  Press({Tab});
  EXPECT_SEEN(Focus(), u"cboDay0");
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  Enter(0, u"May 7 2010");
  Push(u"cmdConvert");
  EXPECT_SEEN(Row(0), u"May 7 2010 Friday");
  GoTo(u"cboDay0");
  Press({Down});
  EXPECT_SEEN(Row(0) + Focus(), u"May 8 2010 cmdConvert");  // a choice blanks the weekday
  Press({Space});
  EXPECT_SEEN(Row(0), u"May 8 2010 Saturday");
  GoTo(u"cboDay0");
  const RECT day = RectOf(Control(u"cboDay0"));
  Mouse(day.left + 5, day.top + 5, MOUSEEVENTF_WHEEL, -WHEEL_DELTA);
  EXPECT_SEEN(Row(0) + Focus(), u"May 9 2010 cmdConvert");
  Press({Space});
  EXPECT_SEEN(Row(0), u"May 9 2010 Sunday");

  // Arrows browse an open list; Escape restores, Enter chooses.
  GoTo(u"cboDay0");
  Press({F4, Down, Down, Down});
  EXPECT_SEEN(Row(0) + Focus(), u"May 12 2010 SundaycboDay0");
  Press({Esc});
  EXPECT_SEEN(Row(0) + Focus(), u"May 9 2010 SundaycboDay0");
  Press({F4, Down, Down, Down, Return});
  EXPECT_SEEN(Row(0) + Focus(), u"May 12 2010 cmdConvert");

  const RECT place = RectOf(Control(u"cboGMet"));
  Click(place.right - 8, place.top + 10);
  EXPECT_SEEN(Ask(u"cboGMet", CB_GETDROPPEDSTATE), TRUE);
  Click(place.left + 10, place.bottom + 8);  // its first item
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cmdConvert");
  const LRESULT left = Ask(u"cboGMet", CB_GETEDITSEL);
  EXPECT_EQ(LOWORD(left), HIWORD(left));  // nothing stays selected where the focus is not
}

TEST_F(RealWindow, TickDisturbsNobody) {
  Set(u"txbYearCE0", u"20");
  Press({Left});
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
  SecondPasses();
  EXPECT_EQ(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(1, 1));
  Press({Shift, Home});
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(0, 1));
  Press(u"  3 ");
  EXPECT_SEEN(Read(u"txbYearCE0"), u"3 0");  // trimmed by a tick that comes by itself
  EXPECT_SEEN(Ask(u"txbYearCE0", EM_GETSEL), MAKELONG(2, 2));

  Push(u"cmdTBF0");
  EXPECT_SEEN(Focus(), u"cmdConvert");
  SecondPasses();
  GoTo(u"cmdTBF1");
  SecondPasses();
  EXPECT_EQ(Focus(), u"cmdTBF1");
  SendMessageW(Control(u"txbYearCE0"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
  SecondPasses();
  EXPECT_EQ(IsEnabled(u"cmdTBF1"), false);
  EXPECT_EQ(Focus(), u"cmdConvert");
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  const HWND holder = NewWindow(0);
  EXPECT_SEEN(OpenClipboard(holder), TRUE);
  EmptyClipboard();
  EXPECT_TRUE(SetClipboardData(CF_RIFF, GlobalAlloc(GMEM_MOVEABLE, 8)));
  CloseClipboard();
  GoTo(u"txbOutput");
  const Text text = Read(u"txbOutput") + u"mine\r\n\t\u00E4.";
  Press(u"mine" + Text{Return, Ctrl, Tab} + u"\u00E4.");
  EXPECT_SEEN(Read(u"txbOutput"), text);
  Push(u"cmdCopy");
  EXPECT_SEEN(IsClipboardFormatAvailable(CF_UNICODETEXT), TRUE);
  EXPECT_SEEN(OpenClipboard(holder), TRUE);
  const auto* copied = static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_EQ(Text(copied ? copied : u""), text);
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_RIFF));
  // While another program holds the clipboard.
  Press({Space, Tab});
  EXPECT_SEEN(Focus(), u"cmdQuit");
  EXPECT_EQ(Read(u"txbOutput"), text);
  CloseClipboard();
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  Enter(0, u"February 30 2010");  // leaves the focus in the year
  const Text before = Rows() + Read(u"txbOutput");
  const HWND other = NewWindow(WS_VISIBLE);
  SetForegroundWindow(other);
  EXPECT_SEEN(GetForegroundWindow(), other);
  Click(RectOf(window).left + 200, RectOf(window).top + 10);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  DestroyWindow(other);
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_SEEN(IsIconic(window), TRUE);
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  EXPECT_EQ(Rows() + Read(u"txbOutput"), before);
}

TEST(RealProgram, EndsByEveryWay) {
  {
    Tandem tandem;
    tandem.Push(u"cmdQuit");
    EXPECT_EQ(tandem.ExitCode(), 0) << "Quit";
  }
  {
    Tandem tandem;
    Press({Alt, F4});
    EXPECT_EQ(tandem.ExitCode(), 0) << "Alt+F4";
  }
  {
    Tandem tandem;
    const RECT outer = RectOf(tandem.window);
    Click(outer.right - 15, outer.top + 12);
    EXPECT_EQ(tandem.ExitCode(), 0) << "the close button";
  }
}
