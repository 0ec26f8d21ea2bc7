// Uses the built tandem.exe as a person does, from outside, by keyboard, mouse and clipboard.
#include <gtest/gtest.h>

#include <algorithm>

#include "desk.h"

using namespace Desk;

namespace {

class RealWindow : public testing::Test {
 protected:
  std::size_t PaneLength() const { return tandem.Pane().size(); }
  bool IsEnabled(View name, int index = Toolkit::NoIndex) const {
    return IsWindowEnabled(tandem.Control(name, index)) != FALSE;
  }
  LRESULT Index(HWND list) const { return SendMessageW(list, CB_GETCURSEL, 0, 0); }
  bool IsOpen(HWND list) const { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; }
  void GoToToday() {
    tandem.Push(tandem.Control(u"cmdTBF", 0));
    EXPECT_TRUE(tandem.FocusIs(convert));
  }
  bool ConvertAddsABlock() {
    const std::size_t before = PaneLength();
    tandem.Push(convert);
    return Wait([&] { return PaneLength() > before; });
  }
  void ExpectBox(const Text& text, const Text& title, int icon) {
    const Desk::MessageBox box = tandem.WaitForBox();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.icon, icon);
    Press(VK_RETURN);
    EXPECT_TRUE(Wait([&] { return !tandem.FindBox() && tandem.IsInFront(); }));
  }

  Tandem tandem;
  const HWND convert = tandem.Control(u"cmdConvert");
  const HWND pane = tandem.Control(u"txbOutput");
  const HWND year = tandem.Control(u"txbYearCE", 0);
  const HWND day = tandem.Control(u"cboDay", 0);
};

const Text May7 =
    u"May 7 2010 Friday | May 7 2010 Tuesday | "
    u"GMet-2 B 12 LYC-15 LA-5 24 Tuesday";

}  // namespace

TEST_F(RealWindow, StandsAsStored) {
  const int dpi = tandem.Dpi();
  const auto pixels = [dpi](int twips) { return MulDiv(twips, dpi, 1440); };
  RECT client, outer;
  GetClientRect(tandem.Window(), &client);
  GetWindowRect(tandem.Window(), &outer);
  EXPECT_EQ(client.right, pixels(ClientWidth));
  EXPECT_EQ(client.bottom, pixels(ClientHeight));
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  EXPECT_NEAR(outer.left - work.left, work.right - outer.right, 1);
  EXPECT_NEAR(outer.top - work.top, work.bottom - outer.bottom, 1);
  EXPECT_EQ(GetWindowLongPtrW(tandem.Window(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_EQ(TextOf(tandem.Window()), u"Tandem Karvel-Sorand Calendar, Version " PROGRAM_VERSION);

  const wchar_t* const classes[] = {L"Button",   L"Static", L"Edit",
                                    L"ComboBox", L"Button", L"Button"};
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const HWND control = tandem.Control(row);
    const RECT place = tandem.Place(control);
    const std::string name(row.name.begin(), row.name.end());
    EXPECT_EQ(place.left, pixels(row.container.left + row.left)) << name << row.index;
    EXPECT_EQ(place.top, pixels(row.container.top + row.top)) << name << row.index;
    EXPECT_EQ(place.right - place.left, pixels(row.width)) << name << row.index;
    EXPECT_EQ(place.bottom - place.top, pixels(row.height)) << name << row.index;
    wchar_t class_name[32];
    GetClassNameW(control, class_name, 32);
    EXPECT_STRCASEEQ(
        std::string(class_name, class_name + wcslen(class_name)).c_str(),
        std::string(classes[int(row.kind)], classes[int(row.kind)] + wcslen(classes[int(row.kind)]))
            .c_str());
    if (row.kind == Toolkit::Kind::OptionButton || row.kind == Toolkit::Kind::CommandButton) {
      EXPECT_EQ(TextOf(control), row.text);
    }
    // Its whole text can be read on it, in its font; the selected option is bold.
    Text shown = TextOf(control);
    shown = shown.substr(0, shown.find(u'\r'));
    const bool bold = row.kind == Toolkit::Kind::OptionButton && row.index == 0;
    if (!shown.empty()) {
      EXPECT_LT(Difference(InBlackAndWhite(PictureOfText(shown, row.font, bold, dpi)),
                           InBlackAndWhite(PictureOf(control))),
                0.02)
          << name << row.index;
    }
  }
}

TEST_F(RealWindow, OpensOnToday) {
  wchar_t date[64], iso[16];
  GetDateFormatEx(L"en-US", 0, nullptr, L"MMMM d yyyy dddd", date, 64, nullptr);
  GetDateFormatEx(L"en-US", 0, nullptr, L"yyyy-MM-dd", iso, 16, nullptr);
  const Text today(date, date + wcslen(date));
  const Text weekday = today.substr(today.rfind(u' ') + 1);
  EXPECT_EQ(tandem.Row(0), today);
  EXPECT_EQ(tandem.Row(1),
            today.substr(0, today.rfind(u' ') + 1) + TextOf(tandem.Control(u"lblDayOfWeek", 2)));
  EXPECT_EQ(tandem.Pane().find(u"  " + Text(iso, iso + 10) + u" (" + weekday + u" in 7-day week)"),
            0u);
  EXPECT_EQ(TextOf(tandem.Control(u"lblSameDay")), u"The dates above denote the same day.");
  EXPECT_EQ(tandem.Focus(), convert);
}

TEST_F(RealWindow, TabGoesRoundAllStops) {
  std::vector<HWND> stops;
  std::size_t start = 0;
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const bool is_stop = row.kind != Toolkit::Kind::Frame && row.kind != Toolkit::Kind::Label &&
                         (row.kind != Toolkit::Kind::OptionButton || row.index == 0);
    if (row.name == u"cmdConvert") start = stops.size();
    if (is_stop) stops.push_back(tandem.Control(row));
  }
  for (std::size_t i = 1; i <= stops.size(); ++i) {
    Press(VK_TAB);
    ASSERT_TRUE(tandem.FocusIs(stops[(start + i) % stops.size()])) << i;
  }
  for (std::size_t i = stops.size(); i-- > 0;) {
    Press(VK_TAB, {VK_SHIFT});
    ASSERT_TRUE(tandem.FocusIs(stops[(start + i) % stops.size()])) << i;
  }
}

TEST_F(RealWindow, ConvertsByKeyboardAlone) {
  struct {
    int calendar;
    View entry, field;
    WORD key;
  } const rows[] = {{0, u"May 7 2010", u"txbYearCE", VK_RETURN},
                    {1, u"May 7 2010", u"cmdConvert", VK_SPACE},
                    {2, u"GMet-2 B 12 LYC-15 LA-5 24", u"txbMetNum", VK_RETURN},
                    {2, u"GMet-2 B 12 LYC-15 LA-5 24", u"cmdConvert", VK_RETURN}};
  for (const auto& row : rows) {
    GoToToday();
    tandem.Choose(row.calendar);
    tandem.Enter(row.calendar, row.entry);
    const bool in_year = row.field == u"txbYearCE";
    ASSERT_TRUE(tandem.GoTo(tandem.Control(row.field, in_year ? row.calendar : Toolkit::NoIndex)));
    const std::size_t before = PaneLength();
    const auto converted = [&] { return PaneLength() > before; };
    Key(row.key, true);
    EXPECT_FALSE(row.key == VK_RETURN && row.field != u"cmdConvert" && Wait(converted, 200));
    Key(row.key, false);
    EXPECT_TRUE(Wait(converted));
    EXPECT_EQ(tandem.Rows(), May7);
  }
  tandem.Push(tandem.Control(u"cmdTBF", 1), VK_RETURN);
  EXPECT_TRUE(Wait([&] { return tandem.Row(0) == u"May 6 2010 Thursday"; }));
  tandem.Push(tandem.Control(u"cmdTBF", 2), VK_SPACE);
  EXPECT_TRUE(Wait([&] { return tandem.Rows() == May7; }));
  for (const HWND control : {convert, year, pane, day}) {
    ASSERT_TRUE(tandem.GoTo(control));
    Press(VK_ESCAPE);
    Press(VK_TAB);
    EXPECT_TRUE(Wait([&] { return tandem.Focus() && tandem.Focus() != control; }));
  }
  EXPECT_EQ(tandem.Rows(), May7);
}

TEST_F(RealWindow, ListsChooseWhenTheChoiceIsMade) {
  const HWND weekday = tandem.Control(u"lblDayOfWeek", 0);
  tandem.Enter(0, u"May 7 2010");
  tandem.Push(convert);
  const auto chosen = [&](LRESULT index) {
    const bool is_chosen = Wait([&] { return Index(day) == index && TextOf(weekday).empty(); });
    tandem.Push(convert);
    return is_chosen && Wait([&] { return !TextOf(weekday).empty(); });
  };
  ASSERT_TRUE(tandem.GoTo(day));
  Press(VK_DOWN);
  EXPECT_TRUE(tandem.FocusIs(convert));
  EXPECT_TRUE(chosen(7));
  ASSERT_TRUE(tandem.GoTo(day));
  Wheel(day, -1);
  EXPECT_TRUE(tandem.FocusIs(convert));
  EXPECT_TRUE(chosen(8));
  for (const WORD end : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
    ASSERT_TRUE(tandem.GoTo(day));
    Press(VK_F4);
    for (int downs = 0; downs < 3; ++downs) Press(VK_DOWN);
    EXPECT_TRUE(Wait([&] { return Index(day) == 11; }));
    EXPECT_TRUE(IsOpen(day) && tandem.Focus() == day && !TextOf(weekday).empty());
    Press(end);
    EXPECT_TRUE(Wait([&] { return !IsOpen(day); }));
    EXPECT_TRUE(end == VK_ESCAPE ? Wait([&] { return Index(day) == 8; })
                                 : tandem.FocusIs(convert) && chosen(11));
  }
  // With the mouse: the arrow of a list, then its first item.
  const HWND great_cycle = tandem.Control(u"cboGMet");
  RECT place;
  GetWindowRect(great_cycle, &place);
  Click({place.right - 8, (place.top + place.bottom) / 2});
  EXPECT_TRUE(Wait([&] { return IsOpen(great_cycle); }));
  Click({place.left + 10, place.bottom + 8});
  EXPECT_TRUE(Wait([&] { return Index(great_cycle) == 0; }));
  EXPECT_TRUE(tandem.FocusIs(convert));
}

TEST_F(RealWindow, TypedTextSelectsNothing) {
  const Text cycle = TextOf(tandem.Control(u"txbMetNum"));
  const Text type = TextOf(tandem.Control(u"cboMType"));
  const Text invalid = u"Invalid input for Lunar Karvel-Sorand date.";
  const std::pair<View, Text> rows[] = {
      {u"cboGMet", invalid},
      {u"cboMType", invalid + u"\r\nMetonic cycle " + cycle + u" is of type " + type + u"."},
      {u"cboYearInMet", invalid + u"\r\nError code -5"}};
  tandem.Choose(2);
  for (const auto& [list, text] : rows) {
    GoToToday();
    EXPECT_TRUE(Wait([&] { return IsEnabled(u"cmdTBF", 1); }));
    ASSERT_TRUE(tandem.GoTo(tandem.Control(list)));
    Type(u"GMet-1");
    EXPECT_TRUE(Wait([&] { return !IsEnabled(u"cmdTBF", 1) && !IsEnabled(u"cmdTBF", 2); }));
    tandem.Push(convert);
    ExpectBox(text, u"Invalid input", 48);
  }
}

TEST_F(RealWindow, RefusesWithABox) {
  const View invalid = u"Invalid input", lunar = u"Invalid input for Lunar Karvel-Sorand date.";
  struct {
    int calendar;
    View entry, button;
    int index;
    Text text;
    View title;
    int icon;
  } const rows[] = {
      {2, u"GMet-2 A 12 LYC-15 LA-5 24", u"cmdConvert", -1,
       Text(lunar) + u"\r\nMetonic cycle 12 is of type B.", invalid, 48},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", u"cmdConvert", -1, Text(lunar) + u"\r\nError code -3",
       invalid, 48},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", u"cmdConvert", -1, Text(lunar), invalid, 48},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", u"cmdTBF", 1, u"Date too early", u"Back one day", 64},
      {2, u"GMet-2 A 341 LYC-19 LA-13 30", u"cmdTBF", 2, u"Date too late", u"Forward one day", 64},
      {1, u"February 29 1900", u"cmdConvert", -1, u"The Solar Karvel-Sorand date is invalid.",
       invalid, 64},
      {1, u"February 29 x", u"cmdConvert", -1, u"Solar Karvel-Gregorian  date is invalid.", invalid,
       48},
      {0, u"February 30 2010", u"cmdConvert", -1, u"The Gregorian date is invalid.", invalid, 64},
      {0, u"February 30 -", u"cmdConvert", -1, u"The Gregorian date is invalid.", invalid, 64},
      {0, u"December 18 8265", u"cmdConvert", -1, u"Error getting Lunar Karvel-Sorand date",
       u"Error", 48},
      {0, u"December 18 ", u"cmdConvert", -1, u"Gregorian  date is invalid.", invalid, 48},
  };
  const Text text = tandem.Pane();
  for (const auto& row : rows) {
    tandem.Choose(row.calendar);
    tandem.Enter(row.calendar, row.entry);
    const HWND button = tandem.Control(row.button, row.index);
    EXPECT_TRUE(Wait([&] { return IsWindowEnabled(button) != FALSE; }));
    tandem.Push(button);
    ExpectBox(row.text, Text(row.title), row.icon);
  }
  // Enter in the field brings the box up; the Enter that closes it, held down until the focus is
  // back in the field, does not bring it up again.
  ASSERT_TRUE(tandem.GoTo(year));
  Press(VK_RETURN);
  const HWND box = tandem.WaitForBox().window;
  ASSERT_TRUE(box);
  Key(VK_RETURN, true);
  EXPECT_TRUE(Wait([&] { return !IsWindow(box) && tandem.Focus() == year; }));
  // Wine forgets a key that only SendInput holds down when the focus goes to another window; what
  // would come then is not a repeat.
  if (GetAsyncKeyState(VK_RETURN) < 0) Key(VK_RETURN, true);
  Key(VK_RETURN, false);
  Press(VK_TAB);
  EXPECT_TRUE(Wait([&] { return tandem.Focus() != year; }));
  EXPECT_FALSE(tandem.FindBox());
  EXPECT_EQ(tandem.Pane(), text);
}

TEST_F(RealWindow, TickDisturbsNobody) {
  const auto selection = [this] { return SendMessageW(year, EM_GETSEL, 0, 0); };
  tandem.Fill(year, u"20");
  Press(VK_LEFT);
  tandem.TickPasses();
  Type(u"1");
  tandem.TickPasses();
  EXPECT_EQ(TextOf(year), u"210");
  EXPECT_EQ(selection(), MAKELONG(2, 2));
  Press(VK_HOME, {VK_SHIFT});
  tandem.TickPasses();
  EXPECT_EQ(selection(), MAKELONG(0, 2));
  Type(u"  3 ");
  EXPECT_TRUE(Wait([&] { return TextOf(year) == u"3 0" && selection() == MAKELONG(2, 2); }));

  GoToToday();
  const HWND back = tandem.Control(u"cmdTBF", 1);
  EXPECT_TRUE(Wait([&] { return IsWindowEnabled(back) != FALSE; }));
  ASSERT_TRUE(tandem.GoTo(back));
  tandem.TickPasses();
  EXPECT_EQ(tandem.Focus(), back);
  SendMessageW(year, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
  EXPECT_TRUE(Wait([&] { return IsWindowEnabled(back) == FALSE; }));
  EXPECT_TRUE(tandem.FocusIs(pane));
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
  OpenClipboard(nullptr);
  EmptyClipboard();
  SetClipboardData(other_format, GlobalAlloc(GMEM_MOVEABLE, 8));
  CloseClipboard();
  EXPECT_TRUE(ConvertAddsABlock());
  ASSERT_TRUE(tandem.GoTo(pane));
  Type(u"mine");
  Press(VK_RETURN);
  Press(VK_TAB, {VK_CONTROL});
  Type(u"\u00E4.");
  EXPECT_TRUE(Wait([&] { return tandem.Pane().ends_with(u"."); }));
  const Text text = tandem.Pane();
  EXPECT_EQ(text.substr(text.rfind(u'm')), u"mine\r\n\t\u00E4.");

  tandem.Push(tandem.Control(u"cmdCopy"));
  Text copied;
  const auto read = [&] {
    if (!OpenClipboard(nullptr)) return false;
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data) copied = static_cast<const char16_t*>(GlobalLock(data));
    CloseClipboard();
    return data != nullptr;
  };
  EXPECT_TRUE(Wait(read));
  EXPECT_EQ(copied, text);
  EXPECT_FALSE(IsClipboardFormatAvailable(other_format));

  // While another program holds the clipboard.
  const HWND holder =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  EXPECT_TRUE(Wait([&] { return OpenClipboard(holder) != FALSE; }));
  Press(VK_SPACE);
  Press(VK_TAB);
  EXPECT_TRUE(tandem.FocusIs(tandem.Control(u"cmdQuit")));
  EXPECT_EQ(tandem.Pane(), text);
  CloseClipboard();
  DestroyWindow(holder);

  ASSERT_TRUE(tandem.GoTo(pane));
  Press('A', {VK_CONTROL});
  EXPECT_TRUE(Wait([&] {
    return SendMessageW(pane, EM_GETSEL, 0, 0) == MAKELONG(0, static_cast<WORD>(text.size()));
  }));
  tandem.Push(tandem.Control(u"cmdClear"));
  EXPECT_TRUE(Wait([&] { return tandem.Pane().empty(); }));
  EXPECT_TRUE(Wait([&] { return !IsEnabled(u"cmdClear") && !IsEnabled(u"cmdCopy"); }, 1500));
}

TEST_F(RealWindow, StepsOverTheGreatCycles) {
  tandem.Choose(2);
  tandem.Enter(2, u"GMet-1 A 341 LYC-19 LA-13 30");
  EXPECT_TRUE(Wait([&] { return IsEnabled(u"cmdTBF", 2); }));
  tandem.Push(tandem.Control(u"cmdTBF", 2));
  EXPECT_TRUE(Wait([&] {
    return tandem.Rows() ==
           u"December 20 1786 Wednesday | December 20 1786 Monday | "
           u"GMet-2 A 1 LYB-1 LA-1 1 Monday";
  }));
  tandem.Choose(0);
  tandem.Enter(0, u"February 30 1786");
  const Text rows = tandem.Rows();
  ClickOn(tandem.Control(u"cmdTBF", 1));
  tandem.TickPasses();
  EXPECT_FALSE(IsEnabled(u"cmdTBF", 1) || tandem.FindBox());
  EXPECT_EQ(tandem.Rows(), rows);
}

TEST_F(RealWindow, ComingBackChangesNothing) {
  tandem.Enter(0, u"May 7 2010");  // leaves the focus in the year
  const Text before = tandem.Rows() + tandem.Pane();
  const HWND other =
      CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"Other", WS_POPUP | WS_VISIBLE | SS_NOTIFY, 0, 0,
                      90, 90, nullptr, nullptr, nullptr, nullptr);
  ClickOn(other);
  SetForegroundWindow(other);
  EXPECT_TRUE(Wait([&] { return GetForegroundWindow() == other; }));
  RECT window;
  GetWindowRect(tandem.Window(), &window);
  Click({window.left + 200, window.top + 10});
  EXPECT_TRUE(Wait([&] { return GetForegroundWindow() == tandem.Window(); }));
  EXPECT_TRUE(tandem.FocusIs(year));
  EXPECT_EQ(tandem.Rows() + tandem.Pane(), before);
  DestroyWindow(other);
}

TEST(RealProgram, EndsByEveryWay) {
  const std::function<void(const Tandem&)> ways[] = {
      [](const Tandem& tandem) { tandem.Push(tandem.Control(u"cmdQuit")); },
      [](const Tandem&) { Press(VK_F4, {VK_MENU}); },
      [](const Tandem& tandem) {
        RECT window;
        GetWindowRect(tandem.Window(), &window);
        for (POINT at = {window.right, window.top + 10}; at.x > window.left; --at.x) {
          if (SendMessageW(tandem.Window(), WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y)) == HTCLOSE) {
            return Click({at.x - 5, at.y});
          }
        }
      }};
  for (const auto& way : ways) {
    Tandem tandem;
    EXPECT_FALSE(tandem.Pane().empty());
    way(tandem);
    EXPECT_EQ(tandem.WaitForExit(), 0);
  }
}
