// The form on the toolkit in memory.
#include "main_window.h"
#include "memory_toolkit.h"

namespace {

// The fields of each row, from the left.
const std::vector<View> Fields[] = {
    {u"cboMonth0", u"cboDay0", u"txbYearCE0"},
    {u"cboMonth1", u"cboDay1", u"txbYearCE1"},
    {u"cboGMet", u"cboMType", u"txbMetNum", u"cboYearInMet", u"cboMonth2", u"cboDay2"}};

struct Form : testing::Test {
  Memory::Desktop desktop;
  frmMain form{desktop, {2, 1}, u"The notice"};

  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-31-2026"); };
    form.Form_Load();
  }
  void BringUp() {
    Memory::screen.is_on = true;
    desktop.NoteActivated();
  }
  template <class T>
  T& The(View control) const {
    return dynamic_cast<T&>(*desktop.controls.at(Text(control)));
  }

  // What a person sees.
  Text Read(View control) const {
    if (control.starts_with(u"lbl")) return The<Memory::Label>(control).Caption();
    if (control.starts_with(u"txb")) return The<Memory::TextBox>(control).text;
    const auto& list = The<Memory::List>(control);
    return Text(list.Item(list.index));
  }
  // A row from the left with a blank behind each field, and then the weekday.
  Text Row(int row) const {
    Text text;
    for (const View field : Fields[row]) text += Read(field) + u" ";
    return text + form.lblDayOfWeek[row].Caption();
  }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

  // What a person does. A list is set to an item, or to nothing by typing into it.
  void Set(View field, View value) {
    if (field.starts_with(u"txb")) {
      The<Memory::TextBox>(field).text = value;
      return;
    }
    auto& list = The<Memory::List>(field);
    list.index = list.ListCount() - 1;
    while (list.index >= 0 && list.Item(list.index) != value) --list.index;
    if (list.index >= 0) list.NoteChosen();
  }
  void Enter(int row, View words) {
    for (const View field : Fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      Set(field, word);
    }
  }
  void Push(View button) {
    Memory::screen.focus = &The<Memory::CommandButton>(button);
    The<Memory::CommandButton>(button).NotePressed();
  }
  // Today in all rows, and then this entry in the row of the calendar chosen.
  void StartFrom(int calendar, View entry) {
    BringUp();
    desktop.box.reset();
    Push(u"cmdTBF0");
    form.optCalendar[calendar].Select();
    Enter(calendar, entry);
    desktop.Tick();
  }
};

}  // namespace

TEST_F(Form, MovesToDays) {
  const View May7 = u"May 7 2010 Friday | May 7 2010 Tuesday | GMet-2 B 12 LYC-15 LA-5 24 Tuesday";
  const std::tuple<int, View, View, View, View> moves[] = {
      // clang-format off
      {Gregorian, u"May 7 2010", u"cmdConvert", May7,
       u"  2010-05-07 (Friday in 7-day week)\r\n"
       u"= 2010-05-07 (Tuesday in 7/8-day week)\r\n"
       u"= GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n\r\n"},
      {Solar, u"May 7 2010", u"cmdConvert", May7,
       u"  2010-05-07 (Tuesday in 7/8-day week)\r\n"
       u"= 2010-05-07 (Friday in 7-day week)\r\n"
       u"= GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n\r\n"},
      {Lunar, u"GMet-2 B 12 LYC-15 LA-5 24", u"cmdConvert", May7,
       u"  GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n"
       u"= 2010-05-07 (Friday in 7-day week)\r\n"
       u"= 2010-05-07 (Tuesday in 7/8-day week)\r\n\r\n"},
      {Lunar, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2", u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday", {}},
      {Gregorian, u"December 31 -", u"cmdTBF2", u"January 1 1 Monday | January 1 1 Saturday | GMet-1 A 248 LYB-1 LA-1 21 Saturday", {}},
      {Solar, u"December 22 -4693", u"cmdTBF2", u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday", {}},
      {Gregorian, u"December 18 8265", u"cmdTBF1", u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday", {}},
      // clang-format on
  };
  for (const auto& [calendar, entry, button, rows, block] : moves) {
    SCOPED_TRACE(testing::PrintToString(entry) + testing::PrintToString(button));
    StartFrom(calendar, entry);
    EXPECT_TRUE(form.cmdTBF[Back].Enabled());
    EXPECT_TRUE(form.cmdTBF[Forward].Enabled());
    const Text pane = Read(u"txbOutput");
    Push(button);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(Read(u"txbOutput"), pane + Text(block));
    EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
    EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);
  }
}

// All stays as it was, but that Convert blanks the lunar weekday. A lone x is typed into a list.
TEST_F(Form, RefusesWithABox) {
  const auto Warns = Toolkit::Icon::Exclamation, Tells = Toolkit::Icon::Information;
  const View Convert = u"cmdConvert", BackButton = u"cmdTBF1", ForwardButton = u"cmdTBF2";
  const std::tuple<int, View, bool, View, View, View, Toolkit::Icon> refusals[] = {
      // clang-format off
      {Gregorian, u"May 7 ", false, Convert, u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"May 7 1.5", false, Convert, u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"May 7 -10000", false, Convert, u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"May 7 100000", false, Convert, u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Solar, u"May 7 9-", false, Convert, u"Solar Karvel-Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"February 30 2010", false, Convert, u"The Gregorian date is invalid.", u"Invalid input", Tells},
      {Solar, u"February 29 1900", false, Convert, u"The Solar Karvel-Sorand date is invalid.", u"Invalid input", Tells},
      {Gregorian, u"December 18 8265", true, Convert, u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      {Solar, u"December 22 -4693", true, Convert, u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      {Lunar, u"GMet-2 B  LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -1", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B x LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -2", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 400 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -3", u"Invalid input", Warns},
      {Lunar, u"GMet-2 x 12 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nMetonic cycle 12 is of type B.", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 x LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -5", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 LYC-15 LB-6 30", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Lunar, u"x B 12 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Lunar, u"GMet-1 A 1 LYB-1 LA-1 1", true, BackButton, u"Date too early", u"Back one day", Tells},
      {Gregorian, u"December 17 8265", true, ForwardButton, u"Date too late", u"Forward one day", Tells},
      {Solar, u"December 19 8265", true, BackButton, u"Date too late", u"Back one day", Tells},
      {Gregorian, u"January 1 -9999", true, ForwardButton, u"Date too early", u"Forward one day", Tells},
      // clang-format on
  };
  for (const auto& [calendar, entry, can_step, button, text, title, icon] : refusals) {
    SCOPED_TRACE(testing::PrintToString(entry));
    StartFrom(calendar, entry);
    EXPECT_EQ(form.cmdTBF[Back].Enabled(), can_step);
    EXPECT_EQ(form.cmdTBF[Forward].Enabled(), can_step);
    EXPECT_EQ(Read(u"lblSameDay"), u"The dates above do not denote the same day.");
    const Text solar_rows = Row(Gregorian) + Row(Solar), lunar_row = Row(Lunar);
    const Text pane = Read(u"txbOutput");
    Push(button);
    const Memory::Box box = desktop.box.value_or(Memory::Box{});
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(Row(Gregorian) + Row(Solar), solar_rows);
    EXPECT_TRUE(lunar_row.starts_with(Row(Lunar)));
    EXPECT_TRUE(button != Convert || Read(u"lblDayOfWeek2").empty());
    EXPECT_EQ(Read(u"txbOutput"), pane);
  }
}

TEST_F(Form, StepsFromNothingWhereThereIsNoDate) {
  StartFrom(Gregorian, u"February 30 2010");
  form.cmdTBF[Back].Click();  // as before the tick has disabled it
  EXPECT_EQ(Row(Gregorian), u"February 30 2010 ");
  EXPECT_FALSE(desktop.box.has_value());
}

TEST_F(Form, EveryEventHasItsHandler) {
  for (const auto& [name, control] : desktop.controls) {
    const auto* const box = dynamic_cast<Memory::TextBox*>(control);
    const auto* const list = dynamic_cast<Memory::List*>(control);
    const auto* const button = dynamic_cast<Memory::CommandButton*>(control);
    EXPECT_TRUE(!box || box->KeyUp || name == u"txbOutput") << testing::PrintToString(name);
    EXPECT_TRUE(!list || list->Click || name == u"cboMType") << testing::PrintToString(name);
    EXPECT_TRUE(!button || button->Click) << testing::PrintToString(name);
  }
}

TEST_F(Form, Loads) {
  EXPECT_EQ(desktop.Caption(), u"Tandem Karvel-Sorand Calendar, Version 2.1");
  EXPECT_EQ(Read(u"lblCopyright"), u"The notice");
  EXPECT_EQ(desktop.milliseconds, 1000);
  for (const auto& [name, control] : desktop.controls) {
    const auto* const coloured = dynamic_cast<Toolkit::Coloured*>(control);
    EXPECT_TRUE(!coloured || coloured->BackColor() == 0xE8F0) << testing::PrintToString(name);
  }
  const std::tuple<View, View> rows[] = {
      // clang-format off
      {u"cboMonth1", u"January February March April May June July August September October November December "},
      {u"cboMonth2", u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 "},
      {u"cboYearInMet", u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 "},
      {u"cboDay1", u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 "},
      {u"cboDay2", u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 "},
      {u"cboMType", u"A B C "},
      {u"cboGMet", u"GMet-1 GMet-2 "},
      // clang-format on
  };
  for (const auto& [name, items] : rows) {
    const auto& list = The<Memory::List>(name);
    Text seen;
    for (int index = 0; index < list.ListCount(); ++index) seen += Text(list.Item(index)) + u" ";
    EXPECT_EQ(seen, items) << testing::PrintToString(name);
  }
  // The years and the pane are empty, the rest is the first item or as stored.
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_EQ(Read(u"txbOutput"), u"");
  EXPECT_EQ(Memory::screen.focus, nullptr);
}

TEST_F(Form, OpensOnToday) {
  BringUp();
  EXPECT_EQ(Rows(),
            u"January 31 2026 Saturday | January 31 2026 Saturday | "
            u"GMet-2 A 13 LYC-12 LB-2 13 Saturday");
  const auto& pane = The<Memory::TextBox>(u"txbOutput");
  EXPECT_TRUE(pane.text.starts_with(u"  2026-01-31 (Saturday in 7-day week)"));
  EXPECT_EQ(pane.selection.start, pane.TextLength());
}

TEST_F(Form, EnterConvertsTheChosenCalendarAlone) {
  BringUp();
  const std::tuple<View, View, View, int, bool> rows[] = {
      // clang-format off
      {u"optCalendar0", u"txbYearCE0", u"  2026 ", 13, true},
      {u"optCalendar0", u"txbYearCE1", u"2026", 13, false},
      {u"optCalendar0", u"txbMetNum", u"13", 13, false},
      {u"optCalendar1", u"txbYearCE0", u"2026", 13, false},
      {u"optCalendar1", u"txbYearCE1", u"2026", 13, true},
      {u"optCalendar2", u"txbMetNum", u" 13 ", 13, true},
      {u"optCalendar2", u"txbMetNum", u"13", 32, false},
      // clang-format on
  };
  for (const auto& [option, name, text, key, converts] : rows) {
    SCOPED_TRACE(testing::PrintToString(option) + testing::PrintToString(name));
    The<Memory::OptionButton>(option).NoteChosen();
    Set(name, text);
    auto& field = The<Memory::TextBox>(name);
    const Text pane = Read(u"txbOutput");
    field.NoteKeyDown(static_cast<std::int16_t>(key), false);
    EXPECT_EQ(Read(u"txbOutput"), pane);
    field.NoteKeyUp(static_cast<std::int16_t>(key), 0);
    EXPECT_EQ(Read(u"txbOutput") != pane, converts);
  }
}

TEST_F(Form, AChoiceBlanksTheWeekdayOfItsRow) {
  const std::tuple<View, View, int> rows[] = {
      {u"cboMonth0", u"May", Gregorian},   {u"cboDay1", u"7", Solar},
      {u"cboMonth2", u"LA-5", Lunar},      {u"cboDay2", u"24", Lunar},
      {u"cboYearInMet", u"LYC-15", Lunar}, {u"cboGMet", u"GMet-1", Lunar},
  };
  for (const auto& [list, item, row] : rows) {
    form.lblDayOfWeek[row].SetCaption(u"Someday");
    Set(list, item);
    EXPECT_EQ(form.lblDayOfWeek[row].Caption(), u"") << testing::PrintToString(list);
  }
}

TEST_F(Form, SmallCommands) {
  BringUp();
  Memory::screen.focus = nullptr;
  The<Memory::OptionButton>(u"optCalendar1").NoteChosen();
  EXPECT_FALSE(form.optCalendar[Gregorian].FontBold());
  EXPECT_TRUE(form.optCalendar[Solar].FontBold());
  EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);

  Push(u"cmdClear");
  EXPECT_EQ(Read(u"txbOutput"), u"");
  desktop.Tick();
  EXPECT_FALSE(form.cmdClear.Enabled());
  EXPECT_FALSE(form.cmdCopy.Enabled());
  EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);
  Set(u"txbOutput", u" ");
  desktop.Tick();
  EXPECT_TRUE(form.cmdClear.Enabled());
  EXPECT_TRUE(form.cmdCopy.Enabled());
  Push(u"cmdCopy");
  EXPECT_EQ(desktop.clipboard, u" ");
  Memory::screen.platform_calls = 0;
  desktop.Tick();
  EXPECT_EQ(Memory::screen.platform_calls, 0) << "a tick that finds nothing new";

  EXPECT_FALSE(desktop.has_ended);
  desktop.Unload();
  EXPECT_TRUE(desktop.has_ended);
}

TEST_F(Form, SameDay) {
  BringUp();
  const std::tuple<View, View, View, bool> rows[] = {
      // clang-format off
      {u"June 13 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", false},
      {u"June 12 2010", u"June 12 ", u"GMet-2 B 12 LYC-15 LA-7 1", false},
      {u"February 30 2010", u"February 30 2010", u"GMet-2 B  LYC-15 LA-7 1", false},
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LB-6 30", true},  // adds up to it
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", true},
      // clang-format on
  };
  for (const auto& [gregorian, solar, lunar, same] : rows) {
    Enter(Gregorian, gregorian);
    Enter(Solar, solar);
    Enter(Lunar, lunar);
    EXPECT_EQ(form.CheckSameDay(-1), same) << testing::PrintToString(Rows());
  }
  EXPECT_FALSE(form.CheckSameDay(0));
  Enter(Solar, u"June 13 2010");
  EXPECT_TRUE(form.CheckSameDay(1));
  EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
}
