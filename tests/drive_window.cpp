// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include <gtest/gtest.h>

#include <algorithm>

#include "desk.h"

using namespace Desk;
using Toolkit::Kind;

namespace {

class RealWindow : public testing::Test {
 protected:
  Tandem tandem;
  const HWND convert = tandem.Control(u"cmdConvert");
  const HWND pane = tandem.Control(u"txbOutput");
  const HWND year = tandem.Control(u"txbYearCE0");
  const HWND day = tandem.Control(u"cboDay0");
};

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = GetDeviceCaps(GetDC(tandem.Window()), LOGPIXELSX);
  const auto pixels = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  RECT client, outer, work;
  GetClientRect(tandem.Window(), &client);
  GetWindowRect(tandem.Window(), &outer);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_TRUE(client.right == pixels(ClientWidth) && client.bottom == pixels(ClientHeight));
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(tandem.Window(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(tandem.Window()), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(tandem.Read(u"lblCopyright"), PROGRAM_COPYRIGHT);

  const Text classes[] = {u"BUTTON", u"STATIC", u"EDIT", u"COMBOBOX", u"BUTTON", u"BUTTON"};
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const HWND control = tandem.Control(row);
    const RECT place = tandem.Place(control);
    EXPECT_TRUE(place.left == pixels(row.container.left + row.left) &&
                place.top == pixels(row.container.top + row.top))
        << row.tab;
    EXPECT_TRUE(place.right - place.left == pixels(row.width) &&
                place.bottom - place.top == pixels(row.height))
        << row.tab;
    Text name(32, u'\0');
    name.resize(
        std::size_t(RealGetWindowClassW(control, reinterpret_cast<wchar_t*>(name.data()), 32)));
    CharUpperW(reinterpret_cast<wchar_t*>(name.data()));
    EXPECT_EQ(name, classes[int(row.kind)]);
    Text shown = TextOf(control);
    EXPECT_TRUE(row.kind < Kind::OptionButton || shown == row.text) << row.tab;
    // The whole text can be read on it, in its font; the selected option is bold.
    shown = shown.substr(0, shown.find(u'\r'));
    const bool is_option = row.kind == Kind::OptionButton;
    const bool bold = is_option && row.index == 0;
    const COLORREF ground = is_option || row.kind == Kind::Label ? RGB(240, 232, 0) : 0xFFFFFF;
    EXPECT_TRUE(shown.empty() ||
                Difference(InBlackAndWhite(PictureOfText(shown, row.font, bold, ground, dpi)),
                           InBlackAndWhite(PictureOf(control))) < 0.02)
        << row.tab;
  }
}

TEST_F(RealWindow, OpensOnToday) {
  const auto today = [](const wchar_t* format) {
    Text text(64, u'\0');
    text.resize(std::size_t(GetDateFormatEx(L"en-US", 0, nullptr, format,
                                            reinterpret_cast<wchar_t*>(text.data()), 64, nullptr)) -
                1);
    return text;
  };
  EXPECT_EQ(tandem.Row(0), today(L"MMMM d yyyy dddd"));
  EXPECT_EQ(tandem.Row(1), today(L"MMMM d yyyy ") + tandem.Read(u"lblDayOfWeek2"));
  EXPECT_EQ(tandem.Read(u"txbOutput").find(today(L"'  'yyyy-MM-dd '('dddd 'in 7-day week)'")), 0u);
  EXPECT_EQ(tandem.Read(u"lblSameDay"), u"The dates above denote the same day.");
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  std::vector<HWND> stops;
  std::size_t start = 0;
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    if (tandem.Control(row) == convert) start = stops.size();
    const bool is_option = row.kind == Kind::OptionButton;  // only the selected one is a stop
    const bool is_stop = row.kind != Kind::Frame && row.kind != Kind::Label;
    if (is_option ? row.index == 0 : is_stop) stops.push_back(tandem.Control(row));
  }
  const std::size_t count = stops.size();
  for (std::size_t i = 1; i <= 2 * count; ++i) {  // once round, and back
    Press(VK_TAB, i <= count ? 0 : VK_SHIFT);
    ASSERT_TRUE(tandem.FocusIs(stops[(start + (i <= count ? i : 2 * count - i)) % count])) << i;
  }
}

TEST_F(RealWindow, ConvertsFromEachCalendar) {
  ConvertsFromEachCalendar(tandem);
}
TEST_F(RealWindow, StepsFromTheSelectedCalendar) {
  StepsFromTheSelectedCalendar(tandem);
}
TEST_F(RealWindow, RefusesWithABox) {
  RefusesWithABox(tandem);
}

TEST_F(RealWindow, EnterAndEscape) {
  tandem.Enter(0, u"May 7 2010");  // leaves the focus in the year
  const Text before = tandem.Read(u"txbOutput");
  const auto converted = [&] { return tandem.Read(u"txbOutput") != before; };
  Key(VK_RETURN, true);
  EXPECT_FALSE(Wait(converted, 200));
  Key(VK_RETURN, false);
  EXPECT_TRUE(Wait(converted));
  tandem.PressButton(u"cmdTBF1", VK_RETURN);
  EXPECT_TRUE(Wait([&] { return tandem.Row(0) == u"May 6 2010 Thursday"; }));
  for (const HWND control : {convert, year, pane, day}) {
    ASSERT_TRUE(tandem.GoTo(control));
    Press(VK_ESCAPE);
    Press(VK_TAB);
    EXPECT_TRUE(Wait([&] { return tandem.Focus() && tandem.Focus() != control; }));
  }
  // The Enter that closes a box comes up in the field behind, and does not bring up another.
  tandem.Set(u"txbYearCE0", u"");
  Press(VK_RETURN);
  HWND box = nullptr;
  ASSERT_TRUE(Wait([&] { return (box = tandem.FindBox()) && GetForegroundWindow() == box; }));
  Key(VK_RETURN, true);
  ASSERT_TRUE(Wait([&] { return !IsWindow(box) && tandem.Focus() == year; }));
  // Wine forgets a key that only SendInput holds down when the focus goes to another window; what
  // would come then is not a repeat.
  if (GetAsyncKeyState(VK_RETURN) < 0) Key(VK_RETURN, true);
  Key(VK_RETURN, false);
  Press(VK_TAB);
  EXPECT_TRUE(Wait([&] { return tandem.Focus() && tandem.Focus() != year; }));
  EXPECT_FALSE(tandem.FindBox());
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  tandem.Enter(0, u"May 7 2010");
  tandem.Push(u"cmdConvert");
  const auto weekday_goes_with = [&](LRESULT index) {
    const bool blank =
        Wait([&] { return tandem.Index(day) == index && tandem.Read(u"lblDayOfWeek0").empty(); });
    const bool focus = tandem.FocusIs(convert);
    Press(VK_SPACE);
    return blank && focus && Wait([&] { return !tandem.Read(u"lblDayOfWeek0").empty(); });
  };
  ASSERT_TRUE(tandem.GoTo(day));
  Press(VK_DOWN);
  EXPECT_TRUE(weekday_goes_with(7));
  ASSERT_TRUE(tandem.GoTo(day));
  Wheel(day, -1);
  EXPECT_TRUE(weekday_goes_with(8));
  for (const WORD end : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
    ASSERT_TRUE(tandem.GoTo(day));
    Press(VK_F4);
    for (int downs = 0; downs < 3; ++downs) Press(VK_DOWN);
    EXPECT_TRUE(Wait([&] { return tandem.Index(day) == 11; }));
    EXPECT_TRUE(tandem.IsOpen(day) && tandem.Focus() == day && tandem.Row(0).ends_with(u"Sunday"));
    Press(end);
    EXPECT_TRUE(end == VK_RETURN ? weekday_goes_with(11)
                                 : Wait([&] { return tandem.Index(day) == 8; }));
  }
  // With the mouse: the arrow of a list, then its first item.
  const HWND great_cycle = tandem.Control(u"cboGMet");
  RECT place;
  GetWindowRect(great_cycle, &place);
  Click({place.right - 8, place.top + 10});
  EXPECT_TRUE(Wait([&] { return tandem.IsOpen(great_cycle); }));
  Click({place.left + 10, place.bottom + 8});
  EXPECT_TRUE(Wait([&] { return tandem.Index(great_cycle) == 0; }) && tandem.FocusIs(convert));
}

TEST_F(RealWindow, TypedTextSelectsNothing) {
  const Text cycle = tandem.Read(u"txbMetNum"), type = tandem.Read(u"cboMType");
  const std::pair<View, Text> rows[] = {
      {u"cboGMet", u""},
      {u"cboMType", u"\r\nMetonic cycle " + cycle + u" is of type " + type + u"."},
      {u"cboYearInMet", u"\r\nError code -5"}};
  tandem.Choose(2);
  for (const auto& [list, more] : rows) {
    tandem.Push(u"cmdTBF0");
    EXPECT_TRUE(Wait([&] { return tandem.IsEnabled(u"cmdTBF1"); }));
    ASSERT_TRUE(tandem.GoTo(tandem.Control(list)));
    Type(u"GMet-1");
    EXPECT_TRUE(
        Wait([&] { return !tandem.IsEnabled(u"cmdTBF1") && !tandem.IsEnabled(u"cmdTBF2"); }));
    tandem.Push(u"cmdConvert");
    EXPECT_EQ(std::get<0>(tandem.CloseBox()),
              u"Invalid input for Lunar Karvel-Sorand date." + more);
  }
}

TEST_F(RealWindow, TickDisturbsNobody) {
  const auto selection = [this] { return SendMessageW(year, EM_GETSEL, 0, 0); };
  tandem.Set(u"txbYearCE0", u"20");
  Press(VK_LEFT);
  tandem.TickPasses();
  Type(u"1");
  tandem.TickPasses();
  EXPECT_TRUE(TextOf(year) == u"210" && selection() == MAKELONG(2, 2));
  Press(VK_HOME, VK_SHIFT);
  tandem.TickPasses();
  EXPECT_EQ(selection(), MAKELONG(0, 2));
  Type(u"  3 ");
  EXPECT_TRUE(Wait([&] { return TextOf(year) == u"3 0" && selection() == MAKELONG(2, 2); }));

  tandem.Push(u"cmdTBF0");
  EXPECT_TRUE(Wait([&] { return tandem.IsEnabled(u"cmdTBF1"); }));
  ASSERT_TRUE(tandem.GoTo(tandem.Control(u"cmdTBF1")));
  tandem.TickPasses();
  EXPECT_EQ(tandem.Focus(), tandem.Control(u"cmdTBF1"));
  SendMessageW(year, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
  EXPECT_TRUE(Wait([&] { return !tandem.IsEnabled(u"cmdTBF1"); }) && tandem.FocusIs(pane));
}

// Whatever is painted anew loses the spot that is drawn onto it here.
TEST_F(RealWindow, TickRepaintsNothing) {
  const auto all_have_spots = [&] {
    for (const auto& row : StoredLayout()) {
      const auto pixels = PictureOf(tandem.Control(row)).pixels;
      EXPECT_GT(std::count(pixels.begin(), pixels.end(), Spot), 0) << row.tab;
    }
  };
  tandem.TickPasses();
  for (const auto& row : StoredLayout()) PutSpot(tandem.Control(row));
  all_have_spots();
  Sleep(2500);  // two ticks; there is nothing to wait for when nothing changes
  all_have_spots();
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  const UINT other_format = RegisterClipboardFormatW(L"TandemTestFormat");
  EXPECT_TRUE(Wait([] { return OpenClipboard(nullptr) != FALSE; }));
  EmptyClipboard();
  SetClipboardData(other_format, GlobalAlloc(GMEM_MOVEABLE, 8));
  CloseClipboard();
  ASSERT_TRUE(tandem.GoTo(pane));
  Type(u"mine");
  Press(VK_RETURN);
  Press(VK_TAB, VK_CONTROL);
  Type(u"\u00E4.");
  EXPECT_TRUE(Wait([&] { return tandem.Read(u"txbOutput").ends_with(u"mine\r\n\t\u00E4."); }));
  const Text text = tandem.Read(u"txbOutput");

  tandem.Push(u"cmdCopy");
  Text copied;
  EXPECT_TRUE(Wait([&] {
    if (!OpenClipboard(nullptr)) return false;
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data) copied = static_cast<const char16_t*>(GlobalLock(data));
    CloseClipboard();
    return data != nullptr;
  }));
  EXPECT_EQ(copied, text);
  EXPECT_FALSE(IsClipboardFormatAvailable(other_format));

  // While another program holds the clipboard.
  EXPECT_TRUE(Wait([] { return OpenClipboard(GetDesktopWindow()) != FALSE; }));
  Press(VK_SPACE);
  Press(VK_TAB);
  EXPECT_TRUE(tandem.FocusIs(tandem.Control(u"cmdQuit")));
  EXPECT_EQ(tandem.Read(u"txbOutput"), text);
  CloseClipboard();

  tandem.Push(u"cmdClear");
  EXPECT_TRUE(Wait([&] { return tandem.Read(u"txbOutput").empty(); }));
  EXPECT_TRUE(
      Wait([&] { return !tandem.IsEnabled(u"cmdClear") && !tandem.IsEnabled(u"cmdCopy"); }, 1500));
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  tandem.Enter(0, u"February 30 2010");  // leaves the focus in the year
  const Text before = tandem.Rows() + tandem.Read(u"txbOutput");
  const HWND other = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90,
                                     90, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(other);
  EXPECT_TRUE(Wait([&] { return GetForegroundWindow() == other; }));
  RECT window;
  GetWindowRect(tandem.Window(), &window);
  Click({window.left + 200, window.top + 10});
  EXPECT_TRUE(Wait([&] { return GetForegroundWindow() == tandem.Window(); }) &&
              tandem.FocusIs(year));
  DestroyWindow(other);
  // From a date that does not exist nothing is stepped to.
  GetWindowRect(tandem.Control(u"cmdTBF1"), &window);
  Click({window.left + 5, window.top + 5});
  tandem.TickPasses();
  EXPECT_FALSE(tandem.IsEnabled(u"cmdTBF1") || tandem.FindBox());
  EXPECT_EQ(tandem.Rows() + tandem.Read(u"txbOutput"), before);
}

TEST(RealProgram, EndsByEveryWay) {
  const std::function<void(Tandem&)> ways[] = {
      [](Tandem& tandem) { tandem.Push(u"cmdQuit"); }, [](Tandem&) { Press(VK_F4, VK_MENU); },
      [](Tandem& tandem) {
        RECT window;
        GetWindowRect(tandem.Window(), &window);
        POINT at = {window.right, window.top + 10};
        while (SendMessageW(tandem.Window(), WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y)) != HTCLOSE)
          --at.x;
        Click({at.x - 5, at.y});
      }};
  for (const auto& way : ways) {
    Tandem tandem;
    way(tandem);
    EXPECT_EQ(tandem.WaitForExit(), 0);
  }
}
