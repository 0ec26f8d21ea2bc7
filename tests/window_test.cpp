// The form on the toolkit in memory.
#include "main_window.h"
#include "memory_toolkit.h"

namespace {

struct Form : testing::Test, User {
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

  Text Read(View control) const override {
    if (control.starts_with(u"lbl")) return The<Memory::Label>(control).Caption();
    if (control.starts_with(u"txb")) return The<Memory::TextBox>(control).text;
    const auto& list = The<Memory::List>(control);
    return Text(list.Item(list.index));
  }
  bool IsEnabled(View button) const override {
    return The<Memory::CommandButton>(button).Enabled();
  }
  Text Focus() const override {
    for (const auto& [name, control] : desktop.controls) {
      if (control == Memory::screen.focus) return name;
    }
    return u"";
  }
  void Set(View field, View value) override {
    if (field.starts_with(u"txb")) {
      The<Memory::TextBox>(field).text = value;
      return;
    }
    auto& list = The<Memory::List>(field);
    list.index = list.ListCount() - 1;
    while (list.index >= 0 && list.Item(list.index) != value) --list.index;
    if (list.index >= 0) list.NoteChosen();
  }
  void Choose(View option) override { The<Memory::OptionButton>(option).NoteChosen(); }
  void Push(View button) override {
    Memory::screen.focus = &The<Memory::CommandButton>(button);
    The<Memory::CommandButton>(button).NotePressed();
  }
  Box CloseBox(View) override { return std::exchange(desktop.box, {}).value_or(Box{}); }
  void SecondPasses() override { desktop.Tick(); }
  void WaitUntil(const std::function<bool()>& holds) const override { holds(); }
};

}  // namespace

TEST_F(Form, MovesToDays) {
  BringUp();
  MovesToDays();
}

TEST_F(Form, RefusesWithABox) {
  BringUp();
  RefusesWithABox();
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
  const View Months =
      u"January February March April May June July August September October November December ";
  const View Days30 =
      u"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 ";
  const struct {
    View list;
    Text items;
    View selected;
  } rows[] = {
      {u"cboMonth0", Text(Months), u"January"},
      {u"cboMonth1", Text(Months), u"January"},
      {u"cboMonth2", u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ",
       u"LA-1"},
      {u"cboYearInMet",
       u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 LYB-13 "
       u"LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ",
       u"LYA-1"},
      {u"cboDay0", Text(Days30) + u"31 ", u"1"},
      {u"cboDay1", Text(Days30) + u"31 ", u"1"},
      {u"cboDay2", Text(Days30), u"1"},
      {u"cboMType", u"A B C ", u"A"},
      {u"cboGMet", u"GMet-1 GMet-2 ", u"GMet-2"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.list));
    const auto& list = The<Memory::List>(row.list);
    Text items;
    for (int index = 0; index < list.ListCount(); ++index) items += Text(list.Item(index)) + u" ";
    EXPECT_EQ(items, row.items);
    EXPECT_EQ(Read(row.list), row.selected);
  }
  EXPECT_EQ(FieldsOf(0) + FieldsOf(1), u"January 1  January 1  ");
  EXPECT_EQ(Read(u"lblDayOfWeek0"), u"Monday");  // as stored: loading blanks the lunar one alone
  EXPECT_EQ(Read(u"txbOutput"), u"");
  EXPECT_EQ(Focus(), u"");
}

TEST_F(Form, OpensOnTodayAndComesBackToIt) {
  const View Today =
      u"January 31 2026 Saturday | January 31 2026 Saturday | GMet-2 A 13 LYC-12 LB-2 13 Saturday";
  BringUp();
  EXPECT_EQ(Rows(), Today);
  EXPECT_TRUE(Read(u"txbOutput").starts_with(u"  2026-01-31 (Saturday in 7-day week)"));
  const auto& pane = The<Memory::TextBox>(u"txbOutput");
  EXPECT_EQ(pane.selection.start, pane.TextLength());
  Enter(2, u"? ? bad ? LB-4 2");
  Push(u"cmdTBF0");
  EXPECT_EQ(Rows(), Today);
  DatePr2::SystemDate = [] { return Text(u"12-18-8265"); };
  Push(u"cmdTBF0");
  const Box box = CloseBox(u"cmdTBF0");
  EXPECT_EQ(box.text, u"Date too late");
  EXPECT_EQ(box.title, u"Today's date");
  EXPECT_EQ(Rows(), Today);
}

TEST_F(Form, ReadStatuses) {
  BringUp();
  const struct {
    View text;
    int status, year;  // 77 stands for a year that is not written
  } years[] = {
      {u"  2024 ", 0, 2024}, {u"0044", 0, 44}, {u"-44", 0, -44},    {u"-", 0, 0},
      {u"99999", 0, 99999},  {u"   ", -1, 77}, {u"1.5", -2, 77},    {u"\t5", -2, 77},
      {u"12-", -3, 77},      {u"--5", -3, 77}, {u"-10000", -4, 77}, {u"100000", -4, 77},
  };
  for (const auto& row : years) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    Set(u"txbYearCE1", row.text);
    EuroDate date{77, 0, 0, 0, 0, 7};
    std::int16_t status = 9;
    form.ReadEuroDate(1, date, status);
    EXPECT_EQ(status, row.status);
    EXPECT_EQ(date.year, row.year);
    EXPECT_EQ(date.valid, row.status == 0 ? 1 : 0);
  }
}

TEST_F(Form, EnterConvertsTheChosenCalendarAlone) {
  BringUp();
  const struct {
    View option, field;
    int key;
    bool converts;
  } rows[] = {
      {u"optCalendar0", u"txbYearCE0", 13, true},  {u"optCalendar0", u"txbYearCE1", 13, false},
      {u"optCalendar0", u"txbMetNum", 13, false},  {u"optCalendar1", u"txbYearCE0", 13, false},
      {u"optCalendar1", u"txbYearCE1", 13, true},  {u"optCalendar1", u"txbMetNum", 13, false},
      {u"optCalendar2", u"txbYearCE1", 13, false}, {u"optCalendar2", u"txbMetNum", 13, true},
      {u"optCalendar2", u"txbMetNum", 32, false},  {u"optCalendar2", u"txbOutput", 13, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.option) + " " + testing::PrintToString(row.field));
    Choose(row.option);
    const Text pane = Read(u"txbOutput");
    The<Memory::TextBox>(row.field).NoteKeyDown(static_cast<std::int16_t>(row.key), false);
    EXPECT_EQ(Read(u"txbOutput"), pane);
    The<Memory::TextBox>(row.field).NoteKeyUp(static_cast<std::int16_t>(row.key), 0);
    EXPECT_EQ(Read(u"txbOutput") != pane, row.converts);
  }
}

TEST_F(Form, AChoiceBlanksTheWeekdayOfItsRow) {
  BringUp();
  const struct {
    View list, item, blanked, focus;
  } rows[] = {
      {u"cboMonth0", u"May", u"lblDayOfWeek0", u"cmdConvert"},
      {u"cboDay1", u"7", u"lblDayOfWeek1", u"cmdConvert"},
      {u"cboMonth2", u"LA-5", u"lblDayOfWeek2", u"cmdConvert"},
      {u"cboDay2", u"24", u"lblDayOfWeek2", u"cmdConvert"},
      {u"cboYearInMet", u"LYC-15", u"lblDayOfWeek2", u"cmdConvert"},
      {u"cboGMet", u"GMet-1", u"lblDayOfWeek2", u"cmdConvert"},
      {u"cboMType", u"B", u"", u""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.list));
    Push(u"cmdTBF0");
    Memory::screen.focus = nullptr;
    Set(row.list, row.item);
    for (const View label : {u"lblDayOfWeek0", u"lblDayOfWeek1", u"lblDayOfWeek2"}) {
      EXPECT_EQ(Read(label), label == row.blanked ? u"" : u"Saturday");
    }
    EXPECT_EQ(Focus(), row.focus);
  }
}

TEST_F(Form, SmallCommands) {
  BringUp();
  Memory::screen.focus = nullptr;
  Choose(u"optCalendar1");
  for (const View option : {u"optCalendar0", u"optCalendar1", u"optCalendar2"}) {
    EXPECT_EQ(The<Memory::OptionButton>(option).FontBold(), option == u"optCalendar1");
  }
  EXPECT_EQ(Focus(), u"cmdConvert");

  Push(u"cmdClear");
  EXPECT_EQ(Read(u"txbOutput"), u"");
  SecondPasses();
  EXPECT_FALSE(IsEnabled(u"cmdClear"));
  EXPECT_FALSE(IsEnabled(u"cmdCopy"));
  EXPECT_EQ(Focus(), u"cmdConvert");
  Set(u"txbOutput", u" ");
  SecondPasses();
  EXPECT_TRUE(IsEnabled(u"cmdClear"));
  EXPECT_TRUE(IsEnabled(u"cmdCopy"));
  Push(u"cmdCopy");
  EXPECT_EQ(desktop.clipboard, u" ");
  Memory::screen.platform_calls = 0;
  SecondPasses();
  EXPECT_EQ(Memory::screen.platform_calls, 0) << "a tick that finds nothing new";

  EXPECT_FALSE(desktop.has_ended);
  desktop.Unload();
  EXPECT_TRUE(desktop.has_ended);
}

TEST_F(Form, SameDay) {
  BringUp();
  const struct {
    View gregorian, solar, lunar;
    int mode;
    bool same;
  } rows[] = {
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", -1, true},
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", 0, false},
      {u"June 12 2010", u"June 13 2010", u"GMet-2 B 12 LYC-15 LA-7 1", -1, false},
      {u"June 13 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", -1, false},
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 2", -1, false},
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 2", 1, true},
      // Adds up to that day, and does not exist.
      {u"June 12 2010", u"June 12 2010", u"GMet-2 B 12 LYC-15 LB-6 30", -1, true},
      {u"February 30 2010", u"February 30 2010", u"GMet-2 B  LYC-15 LB-6 30", -1, false},
      {u"June 12 ", u"June 12 2010", u"GMet-2 B 12 LYC-15 LA-7 1", -1, false},
      {u"June 12 2010", u"June 12 x", u"GMet-2 B 12 LYC-15 LA-7 1", -1, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.gregorian) + " " + testing::PrintToString(row.lunar));
    Enter(0, row.gregorian);
    Enter(1, row.solar);
    Enter(2, row.lunar);
    EXPECT_EQ(form.CheckSameDay(static_cast<std::int16_t>(row.mode)), row.same);
    EXPECT_EQ(Read(u"lblSameDay"), row.same ? u"The dates above denote the same day."
                                            : u"The dates above do not denote the same day.");
  }
  // There is nothing to step from before the tick has seen that.
  Enter(0, u"February 30 2010");
  Push(u"cmdTBF1");
  EXPECT_EQ(FieldsOf(0), u"February 30 2010 ");
  EXPECT_FALSE(desktop.box.has_value());
}
