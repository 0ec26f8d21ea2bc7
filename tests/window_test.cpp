// The form on the toolkit in memory.
#include <algorithm>

#include "fake_toolkit.h"
#include "main_window.h"
#include "today.h"

namespace {
Text system_date;
}
std::u16string DatePr2::SystemDate() {
  return system_date;
}

struct Form : testing::Test {
  using enum frmMain::Calendar;
  using enum frmMain::Step;

  Fake::Window window;
  frmMain form{window, {2, 1}, u"The notice"};
  // The fields of each row, from the left.
  const std::vector<Toolkit::Control*> fields[3] = {
      {&form.cboMonth[0], &form.cboDay[0], &form.txbYearCE[0]},
      {&form.cboMonth[1], &form.cboDay[1], &form.txbYearCE[1]},
      {&form.cboGMet, &form.cboMType, &form.txbMetNum, &form.cboYearInMet, &form.cboMonth[2],
       &form.cboDay[2]}};

  Form() {
    system_date = u"01-30-2026";
    form.Form_Load();
    Fake::screen.is_on = true;
  }

  // What a person sees: a row from the left with a blank behind each field, and then the weekday.
  Text Row(int row) const {
    Text text;
    for (Toolkit::Control* const field : fields[row]) {
      if (auto* const box = dynamic_cast<Fake::TextBox*>(field)) text += box->text;
      if (auto* const list = dynamic_cast<Fake::ComboBox*>(field)) text += list->Item(list->index);
      text += u" ";
    }
    return text + form.lblDayOfWeek[row].Caption();
  }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }
  Text All() const { return form.txbOutput.Text() + form.lblSameDay.Caption() + Rows(); }

  // What a person does. A word that is no item of its list leaves nothing selected there.
  void Enter(int row, View words) {
    for (Toolkit::Control* const field : fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      if (auto* const box = dynamic_cast<Toolkit::TextBox*>(field)) box->SetText(word);
      if (auto* const list = dynamic_cast<Toolkit::ComboBox*>(field)) {
        int index = list->ListCount() - 1;
        while (index >= 0 && list->Item(index) != word) --index;
        list->SetListIndex(index);
      }
    }
  }
  void Push(const Text& name) {
    auto& button = dynamic_cast<Fake::CommandButton&>(*window.controls.at(name));
    Fake::screen.focus = &button;
    button.Click();
  }
  // Today in all rows, and then this entry in the row of the calendar chosen.
  void StartFrom(int calendar, View entry) {
    system_date = u"01-31-2026";
    window.box = {};
    Push(u"cmdTBF0");
    form.optCalendar[calendar].Select();
    Enter(calendar, entry);
    window.Tick();
  }
};

TEST_F(Form, MovesToDays) {
  const std::tuple<int, Text, Text, Text, Text> moves[] = {
      // clang-format off
      // the calendar chosen, what is entered in its row, the button pushed, the rows then, the block added to the pane
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
      {Gregorian, u"January 31 2026", u"cmdTBF0", u"January 31 2026 Saturday | January 31 2026 Saturday | GMet-2 A 13 LYC-12 LB-2 13 Saturday", u""},
      {Lunar, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2", u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday", u""},
      {Solar, u"December 31 -3", u"cmdTBF2", u"January 1 -2 Thursday | January 1 -2 Tuesday | GMet-1 B 247 LYA-17 LA-1 17 Tuesday", u""},
      {Gregorian, u"December 31 -", u"cmdTBF2", u"January 1 1 Monday | January 1 1 Saturday | GMet-1 A 248 LYB-1 LA-1 21 Saturday", u""},
      {Gregorian, u"December 18 8265", u"cmdTBF1", u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday", u""},
      // clang-format on
  };
  for (const auto& [calendar, entry, button, rows, block] : moves) {
    SCOPED_TRACE(testing::PrintToString(entry) + testing::PrintToString(button));
    StartFrom(calendar, entry);
    form.txbOutput.SetText(u"typed");
    Push(button);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(form.txbOutput.Text(), u"typed" + block);
    EXPECT_EQ(window.box, Fake::Box());
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above denote the same day.");
    EXPECT_EQ(Fake::screen.focus, &form.cmdConvert);
  }
}

// All stays as it was, but that Convert blanks the lunar weekday. A lone x is typed into a list.
TEST_F(Form, RefusesWithAMessageBox) {
  const auto Warns = Toolkit::Icon::Exclamation, Tells = Toolkit::Icon::Information;
  enum Stepping { NoSteps, Steps };  // whether Back and Forward can be pressed
  const std::tuple<int, Text, Stepping, Text, Text, Text, Toolkit::Icon> refusals[] = {
      // clang-format off
      // the calendar chosen, what is entered in its row, the steps, the button pushed, text, title and icon of the box
      {Gregorian, u"May 7 ", NoSteps, u"cmdConvert", u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"May 7 1.5", NoSteps, u"cmdConvert", u"Gregorian  date is invalid.", u"Invalid input", Warns},
      {Solar, u"May 7 --5", NoSteps, u"cmdConvert", u"Solar Karvel-Gregorian  date is invalid.", u"Invalid input", Warns},
      {Gregorian, u"February 30 2010", NoSteps, u"cmdConvert", u"The Gregorian date is invalid.", u"Invalid input", Tells},
      // What no one can type: a year too early for the lunar calendar, the last day that 32 bits can count, and 12 and 65536.
      {Gregorian, u"May 7 -10000", Steps, u"cmdConvert", u"Error getting Lunar Karvel-Sorand date", u"Error", Warns},
      {Solar, u"June 3 5874898", NoSteps, u"cmdConvert", u"The Solar Karvel-Sorand date is invalid.", u"Invalid input", Tells},
      {Lunar, u"GMet-2 B 65548 LYC-15 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -3", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B  LYC-15 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -1", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B -1 LYC-15 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -2", u"Invalid input", Warns},
      {Lunar, u"GMet-2 x 12 LYC-15 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nMetonic cycle 12 is of type B.", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 x LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -5", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 LYB-1 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -5", u"Invalid input", Warns},
      {Lunar, u"GMet-2 B 12 LYC-15 LB-6 30", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Lunar, u"x B 12 LYC-15 LA-5 24", NoSteps, u"cmdConvert", u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Warns},
      {Gregorian, u"May 7 2010", Steps, u"cmdTBF0", u"Date too late", u"Today's date", Tells},
      {Solar, u"December 19 8265", Steps, u"cmdTBF1", u"Date too late", u"Back one day", Tells},
      {Gregorian, u"December 21 -4693", Steps, u"cmdTBF2", u"Date too early", u"Forward one day", Tells},
      // clang-format on
  };
  for (const auto& [calendar, entry, steps, button, text, title, icon] : refusals) {
    SCOPED_TRACE(testing::PrintToString(entry));
    StartFrom(calendar, entry);
    EXPECT_EQ(form.cmdTBF[Back].Enabled(), steps == Steps);
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above do not denote the same day.");
    Text seen = All();
    if (button == u"cmdConvert") seen.resize(seen.rfind(u' ') + 1);  // the lunar weekday
    system_date = u"12-18-8265";
    if (steps == NoSteps) form.cmdTBF[Back].Click();  // as before the tick has disabled it
    Push(button);
    EXPECT_EQ(window.box, Fake::Box(text, title, icon));
    EXPECT_EQ(All(), seen);
  }
}

TEST_F(Form, LoadsItsTextsColoursAndFirstItems) {
  EXPECT_EQ(window.Caption(), u"Tandem Karvel-Sorand Calendar, Version 2.1");
  Text captions = form.lblM.Caption() + form.lblDash.Caption();
  for (const auto& row : Layout::Rows) {
    if (row.kind >= Toolkit::Kind::OptionButton) captions.append(u"|").append(row.text);
  }
  EXPECT_EQ(captions,
            u"M-|Clear output|Copy to clipboard|Quit|Gregorian (7-day week)|Solar Karvel-Gregorian "
            u"(7/8-day week)|Lunar Karvel-Sorand (7/8-day week)|Convert selected date|Today's date|"
            u"Back one day|Forward one day");
  EXPECT_EQ(window.BackColor(), 0xE8F0);
  for (const auto& [name, control] : window.controls) {
    const auto* const colored = dynamic_cast<Toolkit::Colored*>(control);
    EXPECT_TRUE(!colored || colored->BackColor() == 0xE8F0) << testing::PrintToString(name);
  }
  // The years are empty, the rest is the first item or as stored.
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_TRUE(form.optCalendar[Gregorian].FontBold());
  EXPECT_EQ(Fake::screen.focus, nullptr);
  EXPECT_EQ(window.milliseconds, 1000);
}

TEST_F(Form, OpensOnToday) {
  window.NoteActivated();
  window.NoteActivated();  // coming back adds nothing
  EXPECT_EQ(form.txbOutput.Text(),
            u"  2026-01-30 (Friday in 7-day week)\r\n"
            u"= 2026-01-30 (Friday in 7/8-day week)\r\n"
            u"= GMet-2 MA-13 LYC-12 LB-2 12 day (Friday) 12/29 gibbous moon (waxing)\r\n\r\n");
}

TEST_F(Form, EnterConvertsTheChosenCalendarAlone) {
  window.NoteActivated();
  Toolkit::TextBox* const boxes[] = {&form.txbYearCE[0], &form.txbYearCE[1], &form.txbMetNum};
  for (const int chosen : {Gregorian, Solar, Lunar}) {
    form.optCalendar[chosen].Select();
    for (const int row : {Gregorian, Solar, Lunar}) {
      for (const int key : {13, 32}) {
        boxes[row]->SetText(u"  " + boxes[row]->Text() + u" ");
        form.txbOutput.SetText(u"");
        boxes[row]->KeyUp(static_cast<std::int16_t>(key), 0);
        EXPECT_EQ(form.txbOutput.TextLength() > 0, row == chosen && key == 13)
            << "row " << row << ", chosen " << chosen << ", key " << key;
      }
    }
  }
}

TEST_F(Form, AChoiceInAComboBlanksTheWeekdayOfItsRow) {
  // clang-format off
  const Text Months = u"January February March April May June July August September October November December ";
  const Text Days = u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 ";
  // clang-format on
  constexpr int NoRow = -1;
  const std::tuple<Text, Text, int> rows[] = {
      // clang-format off
      // the list, its items, the row whose weekday a choice blanks
      {u"cboMonth0", Months, Gregorian},
      {u"cboMonth1", Months, Solar},
      {u"cboMonth2", u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ", Lunar},
      {u"cboDay0", Days, Gregorian},
      {u"cboDay1", Days, Solar},
      {u"cboDay2", Days.substr(0, Days.size() - 3), Lunar},
      {u"cboYearInMet", u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ", Lunar},
      {u"cboMType", u"A B C ", NoRow},
      {u"cboGMet", u"GMet-1 GMet-2 ", Lunar},
      // clang-format on
  };
  EXPECT_EQ(
      std::ranges::count(Layout::Rows, Toolkit::Kind::ComboBox, &Toolkit::ControlTemplate::kind),
      std::ssize(rows));
  for (const auto& [name, items, row] : rows) {
    SCOPED_TRACE(testing::PrintToString(name));
    auto& list = dynamic_cast<Fake::ComboBox&>(*window.controls.at(name));
    Text seen;
    for (int index = 0; index < list.ListCount(); ++index) seen.append(list.Item(index)) += u' ';
    EXPECT_EQ(seen, items);
    for (const int each : {0, 1, 2}) form.lblDayOfWeek[each].SetCaption(u"Someday");
    Fake::screen.focus = nullptr;
    Toolkit::Raise(list.Click);
    for (const int each : {0, 1, 2})
      EXPECT_EQ(form.lblDayOfWeek[each].Caption().empty(), each == row) << "row " << each;
    EXPECT_EQ(Fake::screen.focus, row == NoRow ? nullptr : &form.cmdConvert);
  }
}

TEST_F(Form, ChoosingACalendarChangesNoDate) {
  window.NoteActivated();
  const Text seen = All();
  for (const int chosen : {Lunar, Solar, Gregorian}) {
    auto& option = dynamic_cast<Fake::OptionButton&>(form.optCalendar[chosen]);
    option.NoteChosen();
    EXPECT_EQ(Fake::screen.focus, &form.cmdConvert);
    for (const int each : {Gregorian, Solar, Lunar}) {
      EXPECT_EQ(form.optCalendar[each].FontBold(), each == chosen) << each << " of " << chosen;
    }
    Fake::screen.focus = &option;
    option.NoteChosen();
    EXPECT_EQ(Fake::screen.focus, &option) << "that was chosen already";
  }
  EXPECT_EQ(All(), seen);
}

TEST_F(Form, CopiesAndClearsThePane) {
  Push(u"cmdTBF0");
  const Text seen = All();
  form.txbOutput.SetText(u"typed");
  Push(u"cmdCopy");
  EXPECT_EQ(window.clipboard, u"typed");
  EXPECT_EQ(All(), u"typed" + seen);
  Push(u"cmdClear");
  EXPECT_EQ(All(), seen);
}

TEST_F(Form, TheTickDisablesWhatCannotBeDone) {
  for (const auto& [name, control] : window.controls) {
    auto* const button = dynamic_cast<Fake::CommandButton*>(control);
    if (!button) continue;
    SCOPED_TRACE(testing::PrintToString(name));
    EXPECT_TRUE(button->Click) << "nobody handles it";
    form.txbOutput.SetText(u" ");
    Push(u"cmdTBF0");
    window.Tick();
    EXPECT_TRUE(button->Enabled());
    Fake::screen.focus = button;
    form.txbOutput.SetText(u"");
    form.txbYearCE[Gregorian].SetText(u"");
    window.Tick();
    const bool stays = name == u"cmdTBF0" || name == u"cmdConvert" || name == u"cmdQuit";
    EXPECT_EQ(button->Enabled(), stays);
    EXPECT_EQ(Fake::screen.focus, stays ? button : &form.cmdConvert);
  }
}

TEST_F(Form, UnchangedPropertiesAreNotReapplied) {
  window.NoteActivated();
  window.Tick();
  Fake::screen.applied.clear();
  form.optCalendar[Gregorian].Select();
  Push(u"cmdTBF0");
  window.Tick();
  // The weekdays alone, which are blanked meanwhile.
  EXPECT_EQ(Fake::screen.applied, "Caption Caption Caption Caption Caption Caption ");
}

TEST_F(Form, QuitAndCloseEndTheProgram) {
  Push(u"cmdQuit");
  window.Unload();
  EXPECT_EQ(window.ends, 2);
}

// Dates that do not exist are no day at all; a lunar one that only adds up to a day is that day.
TEST_F(Form, SameDay) {
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
