// The form on the toolkit in memory.
#include "main_window.h"
#include "memory_toolkit.h"

struct Form : testing::Test {
  Memory::Desktop desktop;
  frmMain form{desktop, {2, 1}, u"The notice"};
  // The fields of each row, from the left.
  const std::vector<Toolkit::Control*> fields[3] = {
      {&form.cboMonth[0], &form.cboDay[0], &form.txbYearCE[0]},
      {&form.cboMonth[1], &form.cboDay[1], &form.txbYearCE[1]},
      {&form.cboGMet, &form.cboMType, &form.txbMetNum, &form.cboYearInMet, &form.cboMonth[2],
       &form.cboDay[2]}};

  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-31-2026"); };
    form.Form_Load();
    Memory::screen.is_on = true;
  }

  // What a person sees: a row from the left with a blank behind each field, and then the weekday.
  Text Row(int row) const {
    Text text;
    for (Toolkit::Control* const field : fields[row]) {
      if (auto* const box = dynamic_cast<Toolkit::TextBox*>(field)) text += box->Text();
      if (auto* const list = dynamic_cast<Memory::List*>(field)) text += list->Item(list->index);
      text += u" ";
    }
    return text + form.lblDayOfWeek[row].Caption();
  }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

  // What a person does. A word that is no item of its list leaves nothing selected there.
  void Enter(int row, View words) {
    for (Toolkit::Control* const field : fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      if (auto* const box = dynamic_cast<Toolkit::TextBox*>(field)) box->SetText(word);
      if (auto* const list = dynamic_cast<Toolkit::List*>(field)) {
        int index = list->ListCount() - 1;
        while (index >= 0 && list->Item(index) != word) --index;
        list->SetListIndex(index);
      }
    }
  }
  void Push(View name) {
    auto& button = desktop.The<Memory::CommandButton>(name);
    Memory::screen.focus = &button;
    button.NotePressed();
  }
  // Today in all rows, and then this entry in the row of the calendar chosen.
  void StartFrom(int calendar, View entry) {
    desktop.box.reset();
    Push(u"cmdTBF0");
    form.optCalendar[calendar].Select();
    Enter(calendar, entry);
    desktop.Tick();
  }
};

TEST_F(Form, MovesToDays) {
  const std::tuple<int, View, View, View, View> moves[] = {
      // clang-format off
      {Gregorian, u"May 7 2010", u"cmdConvert", u"May 7 2010 Friday | May 7 2010 Tuesday | GMet-2 B 12 LYC-15 LA-5 24 Tuesday",
       u"  2010-05-07 (Friday in 7-day week)\r\n"
       u"= 2010-05-07 (Tuesday in 7/8-day week)\r\n"
       u"= GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n\r\n"},
      {Solar, u"December 23 -4693", u"cmdConvert", u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday",
       u"  -4693-12-23 (Monday in 7/8-day week)\r\n"
       u"= -4693-12-23 (Friday in 7-day week)\r\n"
       u"= GMet-1 MA-1 LYB-1 LA-1 1 day (Monday) 1/30 dark moon\r\n\r\n"},
      {Lunar, u"GMet-1 A 248 LYB-1 LB-2 9", u"cmdConvert", u"January 19 1 Friday | January 19 1 Tuesday | GMet-1 A 248 LYB-1 LB-2 9 Tuesday",
       u"  GMet-1 MA-248 LYB-1 LB-2 9 day (Tuesday) 9/29 gibbous moon (waxing)\r\n"
       u"= 1-01-19 (Friday in 7-day week)\r\n"
       u"= 1-01-19 (Tuesday in 7/8-day week)\r\n\r\n"},
      {Lunar, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2", u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday", {}},
      {Gregorian, u"December 31 -", u"cmdTBF2", u"January 1 1 Monday | January 1 1 Saturday | GMet-1 A 248 LYB-1 LA-1 21 Saturday", {}},
      {Solar, u"December 22 -4693", u"cmdTBF2", u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday", {}},
      {Gregorian, u"December 18 8265", u"cmdTBF1", u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday", {}},
      // clang-format on
  };
  for (const auto& [calendar, entry, button, rows, block] : moves) {
    SCOPED_TRACE(testing::PrintToString(entry) + testing::PrintToString(button));
    StartFrom(calendar, entry);
    const Text pane = form.txbOutput.Text();
    Push(button);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(form.txbOutput.Text(), pane + Text(block));
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above denote the same day.");
    EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);
  }
}

// All stays as it was, but that Convert blanks the lunar weekday. A lone x is typed into a list.
TEST_F(Form, RefusesWithABox) {
  const auto Warns = Toolkit::Icon::Exclamation, Tells = Toolkit::Icon::Information;
  const std::tuple<int, View, bool, View, View, View, Toolkit::Icon> refusals[] = {
      // clang-format off
      {Gregorian, u"May 7 ", false, u"cmdConvert", u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"May 7 1.5", false, u"cmdConvert", u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Solar, u"May 7 9-", false, u"cmdConvert", u"Solar Karvel-Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"February 30 2010", false, u"cmdConvert", u"The Gregorian date is invalid.", u"Invalid input", Tells},
      {Solar, u"February 29 1900", false, u"cmdConvert", u"The Solar Karvel-Sorand date is invalid.", u"Invalid input", Tells},
      {Gregorian, u"December 18 8265", true, u"cmdConvert", u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      {Solar, u"December 22 -4693", true, u"cmdConvert", u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      // Years that no one can type, up to the last day that 32 bits can count and beyond.
      {Gregorian, u"May 7 -10000", true, u"cmdConvert", u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      {Gregorian, u"May 7 100000", true, u"cmdTBF2", u"Date too late", u"Forward one day", Tells},
      {Solar, u"June 2 5874898", true, u"cmdTBF2", u"Date too late", u"Forward one day", Tells},
      {Solar, u"June 3 5874898", false, u"cmdConvert", u"The Solar Karvel-Sorand date is invalid.", u"Invalid input", Tells},
      {Gregorian, u"May 7 2147483647", false, u"cmdConvert", u"The Gregorian date is invalid.", u"Invalid input", Tells},
      {Gregorian, u"May 7 -99999999999999999999", false, u"cmdConvert", u"The Gregorian date is invalid.", u"Invalid input", Tells},
      {Lunar, u"GMet-2 B 99999999999999999999 LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -3", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B  LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -1", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B x LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -2", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 400 LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -3", u"Invalid input", Warns},
      {Lunar, u"GMet-2 x 12 LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nMetonic cycle 12 is of type B.", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 x LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -5", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 LYC-15 LB-6 30", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Lunar, u"x B 12 LYC-15 LA-5 24", false, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Lunar, u"GMet-1 A 1 LYB-1 LA-1 1", true, u"cmdTBF1", u"Date too early", u"Back one day", Tells},
      {Gregorian, u"December 17 8265", true, u"cmdTBF2", u"Date too late", u"Forward one day", Tells},
      {Solar, u"December 19 8265", true, u"cmdTBF1", u"Date too late", u"Back one day", Tells},
      {Gregorian, u"January 1 -9999", true, u"cmdTBF2", u"Date too early", u"Forward one day", Tells},
      // clang-format on
  };
  for (const auto& [calendar, entry, can_step, button, text, title, icon] : refusals) {
    SCOPED_TRACE(testing::PrintToString(entry));
    StartFrom(calendar, entry);
    for (int step = Back; step < form.cmdTBF.Count; ++step) {
      EXPECT_EQ(form.cmdTBF[step].Enabled(), can_step) << "step " << step;
      EXPECT_EQ(form.cmdTBF[step].FocusHeir, &form.cmdConvert) << "step " << step;
    }
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above do not denote the same day.");
    Text rows = Rows();
    if (button == u"cmdConvert") rows.resize(rows.rfind(u' ') + 1);  // the lunar weekday
    const Text pane = form.txbOutput.Text();
    if (!can_step) form.cmdTBF[Back].Click();  // as before the tick has disabled it
    Push(button);
    EXPECT_EQ(desktop.box, Memory::Box(text, title, icon));
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(form.txbOutput.Text(), pane);
  }
}

TEST_F(Form, EveryEventHasItsHandler) {
  for (const auto& [name, control] : desktop.controls) {
    const auto* const box = dynamic_cast<Toolkit::TextBox*>(control);
    const auto* const list = dynamic_cast<Toolkit::List*>(control);
    const auto* const button = dynamic_cast<Toolkit::CommandButton*>(control);
    EXPECT_TRUE(!box || box->KeyUp || name == u"txbOutput") << testing::PrintToString(name);
    EXPECT_TRUE(!list || list->Click || name == u"cboMType") << testing::PrintToString(name);
    EXPECT_TRUE(!button || button->Click) << testing::PrintToString(name);
  }
}

TEST_F(Form, Loads) {
  EXPECT_EQ(desktop.Caption(), u"Tandem Karvel-Sorand Calendar, Version 2.1");
  EXPECT_EQ(form.lblCopyright.Caption(), u"The notice");
  EXPECT_EQ(desktop.milliseconds, 1000);
  for (const auto& [name, control] : desktop.controls) {
    const auto* const coloured = dynamic_cast<Toolkit::Coloured*>(control);
    EXPECT_TRUE(!coloured || coloured->BackColor() == 0xE8F0) << testing::PrintToString(name);
  }
  // The years and the pane are empty, the rest is the first item or as stored.
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_EQ(form.txbOutput.Text(), u"");
  EXPECT_EQ(Memory::screen.focus, nullptr);
}

TEST_F(Form, OpensOnToday) {
  desktop.NoteActivated();
  desktop.NoteActivated();  // coming back adds nothing
  EXPECT_EQ(Rows(),
            u"January 31 2026 Saturday | January 31 2026 Saturday | "
            u"GMet-2 A 13 LYC-12 LB-2 13 Saturday");
  const auto& pane = desktop.The<Memory::TextBox>(u"txbOutput");
  EXPECT_EQ(pane.text,
            u"  2026-01-31 (Saturday in 7-day week)\r\n"
            u"= 2026-01-31 (Saturday in 7/8-day week)\r\n"
            u"= GMet-2 MA-13 LYC-12 LB-2 13 day (Saturday) 13/29 gibbous moon (waxing)\r\n\r\n");
  EXPECT_EQ(pane.selection.start, pane.TextLength());
}

TEST_F(Form, EnterConvertsTheChosenCalendarAlone) {
  desktop.NoteActivated();
  const std::tuple<Calendar, View, View, std::int16_t, bool> rows[] = {
      // clang-format off
      {Gregorian, u"txbYearCE0", u"  2026 ", 13, true},
      {Gregorian, u"txbYearCE1", u"2026", 13, false},
      {Gregorian, u"txbMetNum", u"13", 13, false},
      {Solar, u"txbYearCE0", u"2026", 13, false},
      {Solar, u"txbYearCE1", u"2026", 13, true},
      {Lunar, u"txbMetNum", u" 13 ", 13, true},
      {Lunar, u"txbMetNum", u"13", 32, false},
      // clang-format on
  };
  for (const auto& [calendar, name, text, key, converts] : rows) {
    form.optCalendar[calendar].Select();
    auto& field = desktop.The<Toolkit::TextBox>(name);
    field.SetText(text);
    const Text pane = form.txbOutput.Text();
    field.KeyUp(key, 0);
    EXPECT_EQ(form.txbOutput.Text() != pane, converts)
        << calendar << " " << testing::PrintToString(name) << " " << key;
  }
}

// The items of each list, and what a choice in it leaves of the weekday of its row.
TEST_F(Form, Lists) {
  // clang-format off
  const View Months = u"January February March April May June July August September October November December ";
  const View Days = u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 ";
  // clang-format on
  const std::tuple<View, View, int, View> rows[] = {
      // clang-format off
      {u"cboMonth0", Months, Gregorian, u""},
      {u"cboMonth1", Months, Solar, u""},
      {u"cboMonth2", u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ", Lunar, u""},
      {u"cboDay0", Days, Gregorian, u""},
      {u"cboDay1", Days, Solar, u""},
      {u"cboDay2", Days.substr(0, Days.size() - 3), Lunar, u""},
      {u"cboYearInMet", u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ", Lunar, u""},
      {u"cboMType", u"A B C ", Lunar, u"Someday"},
      {u"cboGMet", u"GMet-1 GMet-2 ", Lunar, u""},
      // clang-format on
  };
  for (const auto& [name, items, row, weekday] : rows) {
    SCOPED_TRACE(testing::PrintToString(name));
    auto& list = desktop.The<Memory::List>(name);
    Text seen;
    for (int index = 0; index < list.ListCount(); ++index) seen += Text(list.Item(index)) + u" ";
    EXPECT_EQ(seen, items);
    form.lblDayOfWeek[row].SetCaption(u"Someday");
    list.NoteChosen();
    EXPECT_EQ(form.lblDayOfWeek[row].Caption(), weekday);
  }
}

TEST_F(Form, SmallCommands) {
  desktop.NoteActivated();
  Memory::screen.focus = nullptr;
  form.optCalendar[Solar].Select();
  EXPECT_FALSE(form.optCalendar[Gregorian].FontBold());
  EXPECT_TRUE(form.optCalendar[Solar].FontBold());
  EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);

  Push(u"cmdClear");
  EXPECT_EQ(form.txbOutput.Text(), u"");
  desktop.Tick();
  EXPECT_FALSE(form.cmdClear.Enabled());
  EXPECT_FALSE(form.cmdCopy.Enabled());
  EXPECT_EQ(Memory::screen.focus, &form.cmdConvert);
  form.txbOutput.SetText(u" ");
  desktop.Tick();
  EXPECT_TRUE(form.cmdClear.Enabled());
  EXPECT_TRUE(form.cmdCopy.Enabled());
  Push(u"cmdCopy");
  EXPECT_EQ(desktop.clipboard, u" ");
  Memory::screen.platform_calls = 0;
  desktop.Tick();
  EXPECT_EQ(Memory::screen.platform_calls, 0) << "a tick that finds nothing new";

  Push(u"cmdQuit");
  EXPECT_TRUE(desktop.has_ended);
}

TEST_F(Form, SameDay) {
  // Dates that do not exist are no day at all; a lunar one that only adds up to a day is that day.
  Enter(Gregorian, u"February 30 2010");
  Enter(Solar, u"February 30 2010");
  Enter(Lunar, u"GMet-2 B  LYC-15 LA-7 1");
  EXPECT_FALSE(form.CheckSameDay(frmMain::CompareRows));
  EXPECT_TRUE(form.CheckSameDay(1));
  Enter(Gregorian, u"June 12 2010");
  Enter(Lunar, u"GMet-2 B 12 LYC-15 LB-6 30");
  Enter(Solar, u"June 12 ");
  EXPECT_FALSE(form.CheckSameDay(frmMain::CompareRows));
  Enter(Solar, u"June 12 2010");
  EXPECT_TRUE(form.CheckSameDay(frmMain::CompareRows));
  EXPECT_FALSE(form.CheckSameDay(0));
}
