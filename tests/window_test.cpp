#include "main_window.h"
#include "memory_toolkit.h"

namespace {

// Uses the form on the toolkit in memory.
struct Form : testing::Test, User, Memory::Desktop {
  frmMain form{*this, {2, 1}, u"The notice"};
  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-31-2026"); };
    form.Form_Load();
  }
  template <class T>
  T& The(View control) const {
    return dynamic_cast<T&>(*controls.at(Text(control)));
  }
  Text Read(View control) const override {
    if (control.starts_with(u"lbl")) return The<Memory::Label>(control).Caption();
    if (control.starts_with(u"txb")) return The<Memory::TextBox>(control).text;
    const auto& list = The<Memory::List>(control);
    return Text(list.Item(list.index));
  }
  bool IsEnabled(View button) const override {
    Tick();  // which switches buttons on and off
    return The<Memory::CommandButton>(button).Enabled();
  }
  void Set(View field, View value) override {
    if (field.starts_with(u"txb")) return The<Memory::TextBox>(field).SetText(value);
    auto& list = The<Memory::List>(field);
    list.index = list.ListCount() - 1;
    while (list.index >= 0 && list.Item(list.index) != value) --list.index;
    if (field == u"cboMType") return;
    // A click blanks the weekday of its row and hands on the focus.
    const auto row = std::size_t(field.back() < u'3' ? field.back() - u'0' : 2);
    form.lblDayOfWeek[row]->SetCaption(u"Someday");
    Memory::focus = nullptr;
    list.Click();
    EXPECT_TRUE(form.lblDayOfWeek[row]->Caption().empty() && Memory::focus == &form.cmdConvert);
  }
  void Choose(View option) override {
    The<Memory::OptionButton>(option).NoteChosen();
    for (const auto* each : form.optCalendar) EXPECT_EQ(each->FontBold(), each->Value());
  }
  void Push(View button) override { The<Memory::CommandButton>(button).NotePressed(); }
  Box CloseBox() override { return std::exchange(box, {}); }
  void Wait(const std::function<bool()>&) override {}  // all else is there at once
};

}  // namespace

TEST_F(Form, GivesCommands) {
  BringUp();
  GivesCommands();
}

TEST_F(Form, LoadsAndOpensOnToday) {
  Text items;
  for (const auto* list : {form.cboMonth[2], &form.cboYearInMet, &form.cboMType, &form.cboGMet})
    for (int i = 0; i < list->ListCount(); ++i) items += Text(list->Item(i)) + u" ";
  EXPECT_EQ(items,
            u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 "
            u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 "
            u"LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 A B C GMet-1 GMet-2 ");
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_TRUE(Memory::focus == nullptr && Read(u"txbOutput").empty());
  BringUp();
  Enter(2, u"? ? bad");
  Push(u"cmdTBF0");
  EXPECT_EQ(Rows(),
            u"January 31 2026 Saturday | January 31 2026 Saturday | "
            u"GMet-2 A 13 LYC-12 LB-2 13 Saturday");
  DatePr2::SystemDate = [] { return Text(u"12-18-8265"); };
  Push(u"cmdTBF0");
  EXPECT_EQ(CloseBox(), Box(u"Date too late", u"Today's date", 64));
}

TEST_F(Form, ReadStatuses) {
  BringUp();
  const std::tuple<View, int, std::int32_t> years[] = {
      {u"  2024 ", 0, 2024}, {u"0044", 0, 44}, {u"-44", 0, -44},    {u"-", 0, 0},
      {u"99999", 0, 99999},  {u"   ", -1, 77}, {u"1.5", -2, 77},    {u"\t5", -2, 77},
      {u"12-", -3, 77},      {u"--5", -3, 77}, {u"-10000", -4, 77}, {u"99999999999", -4, 77}};
  for (const auto& [text, expected, year] : years) {
    Set(u"txbYearCE1", text);
    EuroDate date{77, 0, 0, 0, 0, 0};  // 77 is not written over
    std::int16_t status = 9;
    form.ReadEuroDate(1, date, status);
    EXPECT_EQ(std::tuple(status, date.year, date.valid), std::tuple(expected, year, expected == 0));
  }
  // Those of the lunar row show in their boxes. Only a program can fill the row like this.
  Choose(u"optCalendar2");
  for (const View words : {u"GMet-2 B 65548 LYC-15 LA-5 24", u"GMet-2 B 12 LYC-15 LA-5 ?"}) {
    Enter(2, words);
    Push(u"cmdConvert");
    EXPECT_TRUE(std::get<0>(CloseBox()).ends_with(words.ends_with(u'?') ? u"-10" : u"-3"));
  }
}

TEST_F(Form, RowsThatNameNoDay) {
  BringUp();
  for (const int row : {0, 1}) Enter(row, u"June 12 2010");
  Enter(2, u"GMet-2 B 12 LYC-15 LB-6 30");  // adds up to that day, and does not exist
  Tick();
  EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
  Enter(0, u"February 30 2010");
  Push(u"cmdTBF1");  // there is nothing to step from
  EXPECT_TRUE(Row(0) == u"February 30 2010 " && box == Box());
}
