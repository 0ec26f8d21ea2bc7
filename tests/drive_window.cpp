// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "desk.h"

#include <initguid.h>
#include <oleacc.h>

using namespace Desk;
using Toolkit::Kind;

namespace {

struct RealWindow : testing::Test {
  Tandem tandem;
  const HWND convert = tandem.Control(u"cmdConvert");
  const HWND pane = tandem.Control(u"txbOutput");
  const HWND year = tandem.Control(u"txbYearCE0");
  const HWND day = tandem.Control(u"cboDay0");
  Text Pane() const { return TextOf(pane); }
};

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = static_cast<int>(GetDpiForWindow(tandem.window));
  const auto pixels = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  const RECT outer = RectOf(tandem.window);
  RECT client, work;
  GetClientRect(tandem.window, &client);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_TRUE(client.right == pixels(ClientWidth) && client.bottom == pixels(ClientHeight));
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(tandem.window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(tandem.window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(tandem.Read(u"lblCopyright"), PROGRAM_COPYRIGHT);

  const wchar_t* const classes[] = {L"Button",   L"Static", L"Edit",
                                    L"ComboBox", L"Button", L"Button"};
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const HWND control = tandem.Control(row);
    RECT place = RectOf(control);
    MapWindowPoints(nullptr, tandem.window, reinterpret_cast<POINT*>(&place), 2);
    const int left = pixels(row.container.left + row.left),
              top = pixels(row.container.top + row.top);
    const RECT stored = {left, top, left + pixels(row.width), top + pixels(row.height)};
    EXPECT_TRUE(EqualRect(&place, &stored)) << row.tab;
    wchar_t name[32] = {};
    GetClassNameW(control, name, 32);
    EXPECT_EQ(lstrcmpiW(name, classes[int(row.kind)]), 0) << row.tab;
    Text shown = TextOf(control);
    EXPECT_TRUE(row.kind < Kind::OptionButton || shown == row.text) << row.tab;
    // The whole text can be read on it, in its font; the selected option is bold.
    shown = shown.substr(0, shown.find(u'\r'));
    const bool is_option = row.kind == Kind::OptionButton, bold = is_option && row.index == 0;
    const bool is_yellow = is_option || row.kind == Kind::Label;
    const COLORREF ground = is_yellow ? RGB(240, 232, 0) : 0xFFFFFF;
    const Picture seen = PictureOf(control);
    EXPECT_TRUE(shown.empty() ||
                Difference(PictureOfText(shown, row.font, bold, ground, dpi), seen) < 0.02)
        << row.tab;
    const auto yellow = std::count_if(seen.pixels.begin(), seen.pixels.end(), [](Pixel p) {
      return p.red == 240 && p.green == 232 && p.blue == 0;
    });
    EXPECT_EQ(2 * yellow > seen.width * seen.height, is_yellow || row.kind == Kind::Frame)
        << row.tab;
    // No ground lies over the border of a field.
    EXPECT_TRUE(yellow == 0 || (row.kind != Kind::List && row.kind != Kind::TextBox)) << row.tab;
  }
}

TEST_F(RealWindow, OpensOnToday) {
  const auto today = [](const wchar_t* format) {
    wchar_t text[64];
    const int size = GetDateFormatEx(L"en-US", 0, nullptr, format, text, 64, nullptr);
    return Text(text, text + size - 1);
  };
  EXPECT_EQ(tandem.Row(0), today(L"MMMM d yyyy dddd"));
  EXPECT_EQ(tandem.Row(1), today(L"MMMM d yyyy ") + tandem.Read(u"lblDayOfWeek2"));
  EXPECT_EQ(Pane().find(today(L"'  'yyyy-MM-dd '('dddd 'in 7-day week)'")), 0u);
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
  const auto converted = [this, before = Pane()] { return Pane() != before; };
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
  for (const auto& [field, text] : {std::pair(u"txbYearCE0", u"-9999"), {u"txbMetNum", u"123"}}) {
    tandem.Set(field, u"");
    Type(Text(text) + u"9");  // no more than fits
    Press(VK_TAB);
    EXPECT_TRUE(Wait([&] { return tandem.Focus() != tandem.Control(field); }));
    EXPECT_EQ(tandem.Read(field), text);
  }
  // The Enter that closes a box comes up in the field behind, and does not bring up another.
  tandem.Set(u"txbYearCE0", u"");
  Press(VK_RETURN);
  ASSERT_TRUE(Wait([&] { return tandem.ShowsBox() && !tandem.IsInFront(); }));
  Key(VK_RETURN, true);
  ASSERT_TRUE(Wait([&] { return !tandem.ShowsBox() && tandem.Focus() == year; }));
  // Wine forgets a key that only SendInput holds down when the focus goes to another window; what
  // would come then is not a repeat.
  if (GetAsyncKeyState(VK_RETURN) < 0) Key(VK_RETURN, true);
  Key(VK_RETURN, false);
  Press(VK_TAB);
  EXPECT_TRUE(Wait([&] { return tandem.Focus() && tandem.Focus() != year; }));
  EXPECT_FALSE(tandem.ShowsBox());
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  tandem.Enter(0, u"May 7 2010");
  tandem.Push(u"cmdConvert");
  const auto is_blank = [&] { return tandem.Read(u"lblDayOfWeek0").empty(); };
  const auto chosen = [&](LRESULT index) {  // and converts, which brings the weekday back
    const bool is_chosen = Wait([&] { return tandem.Index(day) == index && is_blank(); });
    const bool hands_on = tandem.FocusIs(convert);
    Press(VK_SPACE);
    return is_chosen && hands_on && Wait([&] { return !is_blank(); });
  };
  ASSERT_TRUE(tandem.GoTo(day));
  Press(VK_DOWN);
  EXPECT_TRUE(chosen(7));
  ASSERT_TRUE(tandem.GoTo(day));
  Mouse(RectOf(day).left + 5, RectOf(day).top + 5, {0, MOUSEEVENTF_WHEEL}, -1);
  EXPECT_TRUE(chosen(8));
  for (const WORD end : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
    ASSERT_TRUE(tandem.GoTo(day));
    Press(VK_F4);
    for (int downs = 0; downs < 3; ++downs) Press(VK_DOWN);
    EXPECT_TRUE(Wait([&] { return tandem.Index(day) == 11; }));
    EXPECT_TRUE(tandem.IsOpen(day) && tandem.Focus() == day && !is_blank());
    Press(end);
    EXPECT_TRUE(end == VK_RETURN ? chosen(11) : Wait([&] { return tandem.Index(day) == 8; }));
  }
  // With the mouse: the arrow of a list, then its first item.
  const HWND great_cycle = tandem.Control(u"cboGMet");
  const RECT place = RectOf(great_cycle);
  Click(place.right - 8, place.top + 10);
  EXPECT_TRUE(Wait([&] { return tandem.IsOpen(great_cycle); }));
  Click(place.left + 10, place.bottom + 8);
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
    EXPECT_TRUE(Wait([&] { return tandem.IsEnabled(u"cmdTBF2"); }));
    ASSERT_TRUE(tandem.GoTo(tandem.Control(list)));
    Type(u"GMet-1");
    EXPECT_TRUE(
        Wait([&] { return !tandem.IsEnabled(u"cmdTBF1") && !tandem.IsEnabled(u"cmdTBF2"); }));
    tandem.Push(u"cmdConvert");
    const Text text = u"Invalid input for Lunar Karvel-Sorand date." + more;
    EXPECT_EQ(tandem.CloseBox(), Box(text, u"Invalid input", 48));
  }
}

TEST_F(RealWindow, TickDisturbsNobody) {
  const auto selected = [this](int start, int end) {
    return SendMessageW(year, EM_GETSEL, 0, 0) == MAKELONG(start, end);
  };
  tandem.Set(u"txbYearCE0", u"20");
  Press(VK_LEFT);
  tandem.TickPasses();
  Type(u"1");
  tandem.TickPasses();
  EXPECT_TRUE(TextOf(year) == u"210" && selected(2, 2));
  Press(VK_HOME, VK_SHIFT);
  tandem.TickPasses();
  EXPECT_TRUE(selected(0, 2));
  Type(u"  3 ");
  EXPECT_TRUE(Wait([&] { return TextOf(year) == u"3 0" && selected(2, 2); }));

  tandem.Push(u"cmdTBF0");
  EXPECT_TRUE(Wait([&] { return tandem.IsEnabled(u"cmdTBF1"); }));
  ASSERT_TRUE(tandem.GoTo(tandem.Control(u"cmdTBF1")));
  tandem.TickPasses();
  EXPECT_EQ(tandem.Focus(), tandem.Control(u"cmdTBF1"));
  SendMessageW(year, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
  EXPECT_TRUE(Wait([&] { return !tandem.IsEnabled(u"cmdTBF1"); }) && tandem.FocusIs(pane));
}

// Whatever is painted anew loses the spot that is drawn onto the screen here.
TEST_F(RealWindow, TickRepaintsNothing) {
  constexpr COLORREF Spot = RGB(255, 0, 255);
  const HDC screen = GetDC(nullptr);
  const auto spots = [&](auto use) {
    for (const auto& row : StoredLayout()) {
      const RECT rect = RectOf(tandem.Control(row));
      EXPECT_EQ(use(rect.left + 4, rect.top + 3), Spot) << row.tab;
    }
  };
  tandem.TickPasses();
  spots([&](int x, int y) { return SetPixel(screen, x, y, Spot); });
  Sleep(2500);  // two ticks; there is nothing to wait for when nothing changes
  spots([&](int x, int y) { return GetPixel(screen, x, y); });
  InvalidateRect(year, nullptr, TRUE);
  const RECT rect = RectOf(year);
  EXPECT_TRUE(Wait([&] { return GetPixel(screen, rect.left + 4, rect.top + 3) != Spot; }));
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  const UINT other_format = RegisterClipboardFormatW(L"TandemTestFormat");
  const HWND holder =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  EXPECT_TRUE(Wait([&] { return OpenClipboard(holder) != FALSE; }));
  EmptyClipboard();
  ASSERT_TRUE(SetClipboardData(other_format, GlobalAlloc(GMEM_MOVEABLE, 8)));
  CloseClipboard();
  ASSERT_TRUE(tandem.GoTo(pane));
  Type(u"mine");
  Press(VK_RETURN);
  Press(VK_TAB, VK_CONTROL);
  Type(u"\u00E4.");
  EXPECT_TRUE(Wait([&] { return Pane().ends_with(u"mine\r\n\t\u00E4."); }));
  const Text text = Pane();
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
  EXPECT_TRUE(Wait([&] { return OpenClipboard(holder) != FALSE; }));
  Press(VK_SPACE);
  Press(VK_TAB);
  EXPECT_TRUE(tandem.FocusIs(tandem.Control(u"cmdQuit")) && Pane() == text);
  CloseClipboard();

  tandem.Push(u"cmdClear");
  EXPECT_TRUE(Wait([&] { return Pane().empty(); }));
  const auto enabled = [&] {
    return tandem.IsEnabled(u"cmdClear") || tandem.IsEnabled(u"cmdCopy");
  };
  EXPECT_TRUE(Wait([&] { return !enabled(); }, 1500));
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  tandem.Enter(0, u"February 30 2010");  // leaves the focus in the year
  const auto all = [this] { return tandem.Rows() + Pane(); };
  const Text before = all();
  const HWND other = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90,
                                     90, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(other);
  EXPECT_TRUE(Wait([&] { return GetForegroundWindow() == other; }));
  Click(RectOf(tandem.window).left + 200, RectOf(tandem.window).top + 10);
  EXPECT_TRUE(Wait([&] { return tandem.IsInFront(); }) && tandem.FocusIs(year));
  DestroyWindow(other);
  PostMessageW(tandem.window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_TRUE(Wait([&] { return IsIconic(tandem.window) != FALSE; }));
  PostMessageW(tandem.window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_TRUE(Wait([&] { return tandem.IsInFront(); }) && tandem.FocusIs(year));
  tandem.TickPasses();
  EXPECT_EQ(all(), before);
}

TEST_F(RealWindow, TellsAScreenReaderEveryName) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    IAccessible* object = nullptr;
    const HWND control = tandem.Control(row);
    AccessibleObjectFromWindow(control, OBJID_CLIENT, IID_IAccessible,
                               reinterpret_cast<void**>(&object));
    ASSERT_TRUE(object) << row.tab;
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    VARIANT role = {};
    object->get_accRole(self, &role);
    // Wine knows lists and frames as mere windows; any Windows takes the label ahead for a name.
    const bool known = role.lVal != ROLE_SYSTEM_CLIENT || row.spoken_name.empty();
    const Text told =
        known ? Text(name, name + wcslen(name)) : TextOf(GetWindow(control, GW_HWNDPREV));
    const View caption = row.kind == Kind::Label ? View(told) : row.text;
    EXPECT_EQ(told, row.spoken_name.empty() ? caption : row.spoken_name) << row.tab;
    EXPECT_FALSE(told.empty()) << row.tab;
    object->Release();
  }
}

TEST(RealProgram, EndsByEveryWay) {
  const std::function<void(Tandem&)> ways[] = {
      [](Tandem& tandem) { tandem.Push(u"cmdQuit"); }, [](Tandem&) { Press(VK_F4, VK_MENU); },
      [](Tandem& tandem) {
        LONG x = RectOf(tandem.window).right;
        const LONG y = RectOf(tandem.window).top + 10;
        while (x > 0 && SendMessageW(tandem.window, WM_NCHITTEST, 0, MAKELPARAM(x, y)) != HTCLOSE)
          --x;
        Click(x - 5, y);
      }};
  for (const auto& way : ways) {
    Tandem tandem;
    way(tandem);
    EXPECT_EQ(tandem.WaitForExit(), 0);
  }
}
