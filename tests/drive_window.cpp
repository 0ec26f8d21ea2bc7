// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include "desk.h"

#include <comutil.h>
#include <oleacc.h>

using namespace Desk;
using Toolkit::Kind;

namespace {

struct RealWindow : testing::Test, Tandem {};

HWND NewWindow(DWORD style) {
  return CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | style, 0, 0, 90, 90, nullptr,
                         nullptr, nullptr, nullptr);
}

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = static_cast<int>(GetDpiForWindow(window));
  const auto pixels = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  const RECT outer = RectOf(window);
  RECT client, work;
  GetClientRect(window, &client);
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_TRUE(client.right == pixels(ClientWidth) && client.bottom == pixels(ClientHeight));
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(window), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);
  EXPECT_EQ(Read(u"lblCopyright"), PROGRAM_COPYRIGHT);

  const wchar_t* const classes[] = {L"Button",   L"Static", L"Edit",
                                    L"ComboBox", L"Button", L"Button"};
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const Text name = NameOf(row);
    SCOPED_TRACE(testing::PrintToString(name));
    const RECT place = RectOf(Control(name));
    const int left = pixels(row.container.left + row.left),
              top = pixels(row.container.top + row.top);
    RECT stored = {left, top, left + pixels(row.width), top + pixels(row.height)};
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&stored), 2);
    EXPECT_TRUE(EqualRect(&place, &stored));
    wchar_t class_name[32] = {};
    GetClassNameW(Control(name), class_name, 32);
    EXPECT_EQ(lstrcmpiW(class_name, classes[int(row.kind)]), 0);
    const Text shown = Read(name);
    EXPECT_TRUE(row.kind < Kind::OptionButton || shown == row.text);
    // The whole text can be read on it, in its font; the selected option is bold. What bitmaps
    // cannot be scaled to is drawn with the outlines of the same letters.
    const bool is_option = row.kind == Kind::OptionButton,
               outlines = row.font.face == u"MS Sans Serif" && dpi != 96;
    const bool is_yellow = is_option || row.kind == Kind::Label;
    const Pixels text =
        PixelsOf(shown.substr(0, shown.find(u'\r')),
                 outlines ? u"Microsoft Sans Serif" : row.font.face, pixels(row.font.height),
                 is_option && row.index == 0, is_yellow ? RGB(240, 232, 0) : 0xFFFFFF);
    Pixels seen;
    EXPECT_TRUE(Holds([&] { return Shows(seen = PixelsOf(place), text); }));
    // No ground lies over the border of a field.
    EXPECT_EQ(seen[seen.size() * 3 / 4][0] == 'y', is_yellow);
  }
}

TEST_F(RealWindow, OpensOnToday) {
  const auto today = [](const wchar_t* format) {
    wchar_t text[64];
    const int size = GetDateFormatEx(L"en-US", 0, nullptr, format, text, 64, nullptr);
    return Text(text, text + size - 1);
  };
  EXPECT_EQ(Row(0), today(L"MMMM d yyyy dddd"));
  EXPECT_EQ(Row(1), today(L"MMMM d yyyy ") + Read(u"lblDayOfWeek2"));
  const Text pane = Read(u"txbOutput");
  EXPECT_EQ(pane.find(today(L"'  'yyyy-MM-dd '('dddd 'in 7-day week)'")), 0u);
  EXPECT_EQ(Selected(u"txbOutput"), MAKELONG(pane.size(), pane.size()));
  EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  std::vector<Text> stops;
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const bool is_other_option = row.kind == Kind::OptionButton && row.index != 0;
    if (row.kind > Kind::Label && !is_other_option) stops.push_back(NameOf(row));
  }
  std::rotate(stops.begin(), std::find(stops.begin(), stops.end(), u"cmdConvert"), stops.end());
  for (const Text& back : {Text{}, Text{Shift}}) {
    for (std::size_t i = 1; i <= stops.size(); ++i) {
      Press(back + Tab);
      EXPECT_SEEN(Focus(), stops[(back.empty() ? i : stops.size() - i) % stops.size()]);
    }
  }
}

TEST_F(RealWindow, GivesCommands) {
  GivesCommands();
}

TEST_F(RealWindow, EnterAndEscape) {
  const Text before = Read(u"txbOutput");
  for (const View other_row : {u"txbMetNum", u"txbYearCE1"}) GoTo(other_row), Press({Return});
  Enter(0, u"May 7 2010");  // leaves the focus in the year
  Key(Return, true);
  EXPECT_FALSE(Holds([&] { return Read(u"txbOutput") != before; }, 200));
  Key(Return, false);
  EXPECT_SEEN(Row(0), u"May 7 2010 Friday");
  GoTo(u"cmdTBF1");
  Press({Return});
  EXPECT_SEEN(Row(0), u"May 6 2010 Thursday");
  for (const View control : {u"cmdConvert", u"txbYearCE0", u"txbOutput", u"cboDay0"}) {
    GoTo(control);
    Press({Esc, Tab});
    EXPECT_SEEN(Focus() != control && IsInFront(), true);
  }
  // The Enter that closes a box comes up in the field behind, and does not bring up another.
  Set(u"txbYearCE0", u"");
  Press({Return});
  EXPECT_SEEN(Message() && !IsInFront(), true);
  Key(Return, true);
  EXPECT_SEEN(Focus(), u"txbYearCE0");
  // Wine forgets a key that only SendInput holds down when the focus goes to another window; what
  // would come then is not a repeat.
  if (GetAsyncKeyState(VK_RETURN) < 0) Key(Return, true);
  Key(Return, false);
  Press({Tab});
  EXPECT_SEEN(Focus() != u"txbYearCE0" && IsInFront(), true);
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  Enter(0, u"May 7 2010");
  Push(u"cmdConvert");
  GoTo(u"cboDay0");
  Press({Down});
  EXPECT_SEEN(Row(0) + Focus(), u"May 8 2010 cmdConvert");  // a choice blanks the weekday
  Press({Space});
  EXPECT_SEEN(Row(0), u"May 8 2010 Saturday");
  GoTo(u"cboDay0");
  const RECT day = RectOf(Control(u"cboDay0"));
  Mouse(day.left + 5, day.top + 5, {0, MOUSEEVENTF_WHEEL}, -WHEEL_DELTA);
  EXPECT_SEEN(Row(0) + Focus(), u"May 9 2010 cmdConvert");
  Press({Space});
  for (const char16_t end : {Esc, Return}) {
    GoTo(u"cboDay0");
    Press({F4, Down, Down, Down});
    EXPECT_SEEN(Row(0) + Focus(), u"May 12 2010 SundaycboDay0");
    Press({end});
    EXPECT_SEEN(Row(0), end == Esc ? u"May 9 2010 Sunday" : u"May 12 2010 ");
  }
  const RECT place = RectOf(Control(u"cboGMet"));
  Mouse(place.right - 8, place.top + 10, Click);
  Mouse(place.left + 10, place.bottom + 8, Click);  // its first item
  EXPECT_SEEN(Read(u"cboGMet") + Focus(), u"GMet-1cmdConvert");
  const LRESULT left = Ask(u"cboGMet", CB_GETEDITSEL);
  EXPECT_EQ(LOWORD(left), HIWORD(left));  // nothing stays selected where the focus is not
}

TEST_F(RealWindow, TickDisturbsNobody) {
  Set(u"txbYearCE0", u"20");
  Press({Left});
  TickPasses();
  Press(u"1");
  TickPasses();
  EXPECT_EQ(Read(u"txbYearCE0"), u"210");
  EXPECT_EQ(Selected(u"txbYearCE0"), MAKELONG(2, 2));
  Press({Shift, Home});
  TickPasses();
  EXPECT_EQ(Selected(u"txbYearCE0"), MAKELONG(0, 2));
  Press(u"  3 ");
  EXPECT_SEEN(Read(u"txbYearCE0"), u"3 0");
  EXPECT_SEEN(Selected(u"txbYearCE0"), MAKELONG(2, 2));

  Push(u"cmdTBF0");
  EXPECT_SEEN(IsEnabled(u"cmdTBF1"), true);
  GoTo(u"cmdTBF1");
  TickPasses();
  EXPECT_EQ(Focus(), u"cmdTBF1");
  Fill(u"txbYearCE0", u"");
  EXPECT_SEEN(IsEnabled(u"cmdTBF1"), false);
  EXPECT_SEEN(Focus(), u"cmdConvert");
}

// Whatever is painted anew loses the spot that is drawn onto the screen here.
TEST_F(RealWindow, TickRepaintsNothing) {
  constexpr COLORREF Spot = RGB(255, 0, 255);
  const HDC screen = GetDC(nullptr);
  const auto spot = [&](View control, auto use) {
    const RECT rect = RectOf(Control(control));
    return use(screen, rect.left + 4, rect.top + 3);
  };
  const auto set = [](auto... at) { return SetPixel(at..., Spot); };
  Sleep(1000);  // what is left to paint of the first screen
  for (const auto& row : StoredLayout()) spot(NameOf(row), set);
  // At once, since what is drawn may wait until it is asked for, and after two ticks. There is
  // nothing to wait for when nothing changes.
  for (const DWORD pause : {0, 2500}) {
    Sleep(pause);
    for (const auto& row : StoredLayout())
      EXPECT_EQ(spot(NameOf(row), GetPixel), Spot) << testing::PrintToString(NameOf(row));
  }
  InvalidateRect(Control(u"txbYearCE0"), nullptr, TRUE);
  EXPECT_SEEN(spot(u"txbYearCE0", GetPixel) == Spot, false);
}

TEST_F(RealWindow, CopiesThePaneToTheLetter) {
  const HWND holder = NewWindow(0);
  const auto take = [&] { EXPECT_TRUE(Holds([&] { return OpenClipboard(holder) != FALSE; })); };
  take();
  EmptyClipboard();
  EXPECT_TRUE(SetClipboardData(CF_RIFF, GlobalAlloc(GMEM_MOVEABLE, 8)));
  CloseClipboard();
  GoTo(u"txbOutput");
  Press(u"mine" + Text{Return, Ctrl, Tab} + u"\u00E4.");
  EXPECT_SEEN(Read(u"txbOutput").ends_with(u"mine\r\n\t\u00E4."), true);
  const Text text = Read(u"txbOutput");
  Push(u"cmdCopy");
  EXPECT_SEEN(IsClipboardFormatAvailable(CF_UNICODETEXT), TRUE);
  take();
  const auto* copied = static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_EQ(Text(copied ? copied : u""), text);
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_RIFF));
  // While another program holds the clipboard.
  Press({Space, Tab});
  EXPECT_SEEN(Focus(), u"cmdQuit");
  EXPECT_EQ(Read(u"txbOutput"), text);
  CloseClipboard();

  Push(u"cmdClear");
  EXPECT_SEEN(Read(u"txbOutput"), u"");
  EXPECT_TRUE(Holds([&] { return !IsEnabled(u"cmdClear") && !IsEnabled(u"cmdCopy"); }, 1500));
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  Enter(0, u"February 30 2010");  // leaves the focus in the year
  const Text before = Rows() + Read(u"txbOutput");
  const HWND other = NewWindow(WS_VISIBLE);
  SetForegroundWindow(other);
  EXPECT_SEEN(GetForegroundWindow(), other);
  Mouse(RectOf(window).left + 200, RectOf(window).top + 10, Click);
  EXPECT_SEEN(IsInFront() ? Focus() : u"", u"txbYearCE0");
  DestroyWindow(other);
  PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  EXPECT_SEEN(IsIconic(window), TRUE);
  PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_SEEN(IsInFront() ? Focus() : u"", u"txbYearCE0");
  EXPECT_EQ(Rows() + Read(u"txbOutput"), before);
}

TEST_F(RealWindow, TellsAScreenReaderEveryName) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const HWND control = Control(NameOf(row));
    // The line of a list has the focus in place of the list.
    for (HWND asked = control; asked; asked = GetWindow(asked, GW_CHILD)) {
      IAccessible* object = nullptr;
      AccessibleObjectFromWindow(asked, OBJID_CLIENT, __uuidof(IAccessible),
                                 reinterpret_cast<void**>(&object));
      ASSERT_TRUE(object) << testing::PrintToString(NameOf(row));
      BSTR name = nullptr;
      object->get_accName(_variant_t(long{CHILDID_SELF}), &name);
      ASSERT_NE(SysStringLen(name), 0u) << testing::PrintToString(NameOf(row));
      EXPECT_EQ(Text(name, name + SysStringLen(name)),
                row.spoken_name.empty() ? TextOf(control) : row.spoken_name);
      object->Release();
    }
  }
}

TEST(RealProgram, EndsByEveryWay) {
  for (const int way : {0, 1, 2}) {
    Tandem tandem;
    const RECT outer = RectOf(tandem.window);
    if (way == 0) tandem.Push(u"cmdQuit");
    if (way == 1) Press({Alt, F4});
    if (way == 2) Mouse(outer.right - 15, outer.top + 12, Click);  // the close button
    EXPECT_EQ(tandem.ExitCode(), 0) << way;
  }
}
