// The form on the fake toolkit.
#include <algorithm>
#include <iterator>

#include "fake_toolkit.h"
#include "main_window.h"
#include "today.h"

static Text system_date;

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

  // What a person sees: the fields of a row with a space after each, then the weekday.
  Text Row(int row) const {
    Text text;
    for (Toolkit::Control* const field : fields[row]) {
      if (auto* const box = dynamic_cast<Fake::TextBox*>(field)) text += box->text;
      if (auto* const combo = dynamic_cast<Fake::ComboBox*>(field))
        text += combo->Item(combo->index);
      text += u" ";
    }
    return text + form.lblDayOfWeek[row].Caption();
  }
  Text All() const {
    return form.txbOutput.Text() + form.lblSameDay.Caption() + Row(0) + Row(1) + Row(2);
  }

  // What a person does. A word that is no item of its combo box leaves nothing selected there.
  void Enter(int row, View words) {
    for (Toolkit::Control* const field : fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      if (auto* const box = dynamic_cast<Toolkit::TextBox*>(field)) box->SetText(word);
      if (auto* const combo = dynamic_cast<Toolkit::ComboBox*>(field)) {
        int index = combo->ListCount() - 1;
        while (index >= 0 && combo->Item(index) != word) --index;
        combo->SetListIndex(index);
      }
    }
  }
  void Push(const Text& name) {
    auto& button = dynamic_cast<Fake::CommandButton&>(*window.controls.at(name));
    Fake::screen.focus = &button;
    button.Click();
  }
  // Today in all rows, then this entry in the row of the calendar, which is chosen.
  void StartFrom(int calendar, View entry) {
    system_date = u"01-31-2026";
    window.message = {};
    Push(u"cmdTBF0");
    form.optCalendar[calendar].Select();
    Enter(calendar, entry);
    window.Tick();
  }
};

TEST_F(Form, OpensOnTodayAndConverts) {
  const Text gregorian = u"2026-01-30 (Friday in 7-day week)\r\n";
  const Text solar = u"2026-01-30 (Friday in 7/8-day week)\r\n";
  const Text lunar = u"GMet-2 MA-13 LYC-12 LB-2 12 day (Friday) 12/29 gibbous moon (waxing)\r\n";
  window.NoteActivated();
  window.NoteActivated();  // coming back adds nothing
  EXPECT_EQ(form.txbOutput.Text(), u"  " + gregorian + u"= " + solar + u"= " + lunar + u"\r\n");
  form.optCalendar[Solar].Select();
  form.txbOutput.SetText(u"typed");
  Push(u"cmdConvert");
  form.optCalendar[Lunar].Select();
  Push(u"cmdConvert");
  EXPECT_EQ(form.txbOutput.Text(), u"typed  " + solar + u"= " + gregorian + u"= " + lunar +
                                       u"\r\n  " + lunar + u"= " + gregorian + u"= " + solar +
                                       u"\r\n");
}

TEST_F(Form, MovesToDays) {
  const struct {
    int calendar;  // the chosen one
    Text entry, button, date, weekday, lunar_date, lunar_weekday;
  } moves[] = {
      {Solar, u"December 23 -4693", u"cmdConvert", u"December 23 -4693", u"Friday",
       u"GMet-1 A 1 LYB-1 LA-1 1", u"Monday"},
      {Lunar, u"GMet-1 A 248 LYB-1 LB-2 9", u"cmdConvert", u"January 19 1", u"Friday",
       u"GMet-1 A 248 LYB-1 LB-2 9", u"Tuesday"},
      {Lunar, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2", u"December 20 1786", u"Wednesday",
       u"GMet-2 A 1 LYB-1 LA-1 1", u"Monday"},
      {Gregorian, u"December 18 8265", u"cmdTBF1", u"December 17 8265", u"Sunday",
       u"GMet-2 A 341 LYC-19 LA-13 30", u"Lunaday"},
      {Gregorian, u"December 24 -4693", u"cmdTBF1", u"December 23 -4693", u"Friday",
       u"GMet-1 A 1 LYB-1 LA-1 1", u"Monday"},
  };
  for (const auto& move : moves) {
    SCOPED_TRACE(testing::PrintToString(move.entry));
    StartFrom(move.calendar, move.entry);
    Push(move.button);
    EXPECT_EQ(Row(Gregorian), move.date + u" " + move.weekday);
    EXPECT_EQ(Row(Solar), move.date + u" " + move.lunar_weekday);
    EXPECT_EQ(Row(Lunar), move.lunar_date + u" " + move.lunar_weekday);
    EXPECT_EQ(window.message, Fake::Message());
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above denote the same day.");
    EXPECT_EQ(Fake::screen.focus, &form.cmdConvert);
    window.Tick();
    Fake::screen.changes = 0;
    window.Tick();
    EXPECT_EQ(Fake::screen.changes, 0) << "a tick flickers";
  }
  form.cmdTBF_Click(7);  // no step: moves forward
  EXPECT_EQ(Row(Gregorian), u"December 24 -4693 Saturday");
}

// Nothing changes, except that Convert clears the lunar weekday.
TEST_F(Form, RefusesWithAMessage) {
  constexpr auto Tells = Toolkit::Icon::Information;
  const Text no_lunar_date = u"Invalid input for Lunar Karvel-Sorand date.";
  const struct {
    int calendar;  // the chosen one
    Text entry;    // an x is typed into a combo box
    Text text;
    Toolkit::Icon icon = Toolkit::Icon::Exclamation;
    Text title = u"Invalid input";
    Text button = u"cmdConvert";
    bool can_step = false;  // whether Back and Forward are enabled
  } refusals[] = {
      {Gregorian, u"May 7 ", u"Gregorian  date is invalid."},
      {Solar, u"May 7 --5", u"Solar Karvel-Gregorian  date is invalid."},
      {Gregorian, u"February 30 2010", u"The Gregorian date is invalid.", Tells},
      // The last day that 32 bits can count.
      {Solar, u"June 3 5874898", u"The Solar Karvel-Sorand date is invalid.", Tells},
      {Lunar, u"GMet-2 B  LYC-15 LA-5 24", no_lunar_date + u"\r\nError code -1"},
      {Lunar, u"GMet-2 B -1 LYC-15 LA-5 24", no_lunar_date + u"\r\nError code -2"},
      // 12 in 16 bits.
      {Lunar, u"GMet-2 B 65548 LYC-15 LA-5 24", no_lunar_date + u"\r\nError code -3"},
      {Lunar, u"GMet-2 x 12 LYC-15 LA-5 24", no_lunar_date + u"\r\nMetonic cycle 12 is of type B."},
      {Lunar, u"GMet-2 B 12 x LA-5 24", no_lunar_date + u"\r\nError code -5"},
      {Lunar, u"GMet-2 B 12 LYC-15 LB-6 30", no_lunar_date},
      {Gregorian, u"May 7 -10000", u"Error getting Lunar Karvel-Sorand date",
       Toolkit::Icon::Exclamation, u"Error", u"cmdConvert", true},
      {Solar, u"December 18 8265", u"Error getting Lunar Karvel-Sorand date",
       Toolkit::Icon::Exclamation, u"Error", u"cmdConvert", true},
      {Gregorian, u"May 7 2010", u"Date too late", Tells, u"Today's date", u"cmdTBF0", true},
      {Solar, u"December 23 -4693", u"Date too early", Tells, u"Back one day", u"cmdTBF1", true},
      {Gregorian, u"December 21 -4693", u"Date too early", Tells, u"Forward one day", u"cmdTBF2",
       true},
  };
  for (const auto& refusal : refusals) {
    SCOPED_TRACE(testing::PrintToString(refusal.entry));
    StartFrom(refusal.calendar, refusal.entry);
    EXPECT_EQ(form.cmdTBF[Back].Enabled(), refusal.can_step);
    EXPECT_EQ(form.lblSameDay.Caption(), u"The dates above do not denote the same day.");
    Text seen = All();
    if (refusal.button == u"cmdConvert") seen.resize(seen.rfind(u' ') + 1);
    system_date = u"12-18-8265";
    if (!refusal.can_step) form.cmdTBF[Back].Click();  // as before the tick has disabled it
    Push(refusal.button);
    EXPECT_EQ(window.message, Fake::Message(refusal.text, refusal.title, refusal.icon));
    EXPECT_EQ(All(), seen);
  }
}

TEST_F(Form, ABadYearIsNotValid) {
  const std::pair<Text, std::tuple<int, int, int>> years[] = {
      // The status, `valid` and the year, which is 7 before.
      {u" 24 ", {0, 1, 24}}, {u"-", {0, 1, 0}},    {u"  ", {-1, 0, 7}},
      {u"1.5", {-2, 0, 7}},  {u"12-", {-3, 0, 7}}, {u"--5", {-3, 0, 7}},
  };
  for (const auto& [text, expected] : years) {
    form.txbYearCE[Solar].SetText(text);
    EuroDate date{7, 0, 0, 0, 0, 7};
    std::int16_t status = 7;
    form.ReadEuroDate(Solar, date, status);
    EXPECT_EQ(std::tuple(int{status}, date.valid, date.year), expected)
        << testing::PrintToString(text);
  }
}

TEST_F(Form, LoadsItsTextsColorsAndFirstItems) {
  EXPECT_EQ(form.lblCopyright.Caption(), u"The notice");
  EXPECT_EQ(window.BackColor(), 0xE8F0);
  for (const auto& [name, control] : window.controls) {
    const auto* const colored = dynamic_cast<Toolkit::Colored*>(control);
    EXPECT_TRUE(!colored || colored->BackColor() == 0xE8F0) << testing::PrintToString(name);
  }
  // The years are empty, the rest is the first item or as in the layout.
  EXPECT_EQ(Row(0) + u", " + Row(1), u"January 1  Monday, January 1  Lunaday");
  EXPECT_EQ(Row(2), u"GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_EQ(window.milliseconds, 1000);
}

TEST_F(Form, EnterConvertsOnlyTheChosenCalendar) {
  window.NoteActivated();
  Toolkit::TextBox* const boxes[] = {&form.txbYearCE[0], &form.txbYearCE[1], &form.txbMetNum};
  for (const int chosen : {Gregorian, Solar, Lunar}) {
    form.optCalendar[chosen].Select();
    for (const int row : {Gregorian, Solar, Lunar}) {
      form.txbOutput.SetText(u"");
      boxes[row]->KeyUp(u' ', 0);
      EXPECT_EQ(form.txbOutput.TextLength(), 0);
      boxes[row]->KeyUp(Toolkit::EnterKey, 0);
      EXPECT_EQ(form.txbOutput.TextLength() > 0, row == chosen) << row << " of " << chosen;
    }
  }
}

TEST_F(Form, AChoiceInAComboClearsTheWeekdayOfItsRow) {
  const Text months =
      u"January February March April May June July August September October November December ";
  const Text days =
      u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 ";
  constexpr int NoRow = -1;
  // By the name of the combo box its items, and the row whose weekday a choice clears.
  const std::map<Text, std::pair<Text, int>> expected = {
      {u"cboMonth0", {months, Gregorian}},
      {u"cboMonth1", {months, Solar}},
      {u"cboMonth2",
       {u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ", Lunar}},
      {u"cboDay0", {days + u"31 ", Gregorian}},
      {u"cboDay1", {days + u"31 ", Solar}},
      {u"cboDay2", {days, Lunar}},
      {u"cboYearInMet",
       {u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 "
        u"LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ",
        Lunar}},
      {u"cboMType", {u"A B C ", NoRow}},
      {u"cboGMet", {u"GMet-1 GMet-2 ", Lunar}},
  };
  for (const auto& [name, control] : window.controls) {
    auto* const combo = dynamic_cast<Fake::ComboBox*>(control);
    if (!combo) continue;
    SCOPED_TRACE(testing::PrintToString(name));
    const auto& [items, row] = expected.at(name);
    EXPECT_EQ(combo->items, items);
    for (const int each : {0, 1, 2}) form.lblDayOfWeek[each].SetCaption(u"Someday");
    Fake::screen.focus = nullptr;
    Toolkit::Raise(combo->Click);
    for (const int each : {0, 1, 2}) {
      EXPECT_EQ(form.lblDayOfWeek[each].Caption().empty(), each == row) << "row " << each;
    }
    EXPECT_EQ(Fake::screen.focus, row == NoRow ? nullptr : &form.cmdConvert);
  }
}

TEST_F(Form, SmallCommandsChangeNoDate) {
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
    EXPECT_EQ(Fake::screen.focus, &option) << "the option was chosen already";
  }
  Push(u"cmdCopy");
  EXPECT_EQ(window.clipboard, form.txbOutput.Text());
  EXPECT_EQ(All(), seen);
  Push(u"cmdClear");
  EXPECT_EQ(window.clipboard + All(), seen);
  Push(u"cmdQuit");
  EXPECT_EQ(window.ends, 1);
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

// Dates that do not exist are no day; a lunar one that only adds up to a day is that day.
TEST_F(Form, SameDay) {
  Enter(Gregorian, u"February 30 2010");
  Enter(Solar, u"February 30 2010");
  Enter(Lunar, u"GMet-2 B  LYC-15 LA-7 1");
  EXPECT_FALSE(form.CheckSameDay(frmMain::CompareRows));
  Enter(Gregorian, u"June 12 2010");
  Enter(Lunar, u"GMet-2 B 12 LYC-15 LB-6 30");
  Enter(Solar, u"June 12 ");
  EXPECT_FALSE(form.CheckSameDay(frmMain::CompareRows));
  Enter(Solar, u"June 12 2010");
  EXPECT_TRUE(form.CheckSameDay(frmMain::CompareRows));
}
