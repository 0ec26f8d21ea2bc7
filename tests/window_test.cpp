#include "main_window.h"
#include "memory_toolkit.h"

namespace {

// Uses the form on the toolkit in memory.
struct Form : testing::Test, User, Memory::Desktop {
  frmMain form{*this, {2, 1}, u"The notice"};
  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-01-2026"); };
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
    EXPECT_EQ(form.lblDayOfWeek[row]->Caption(), u"");
    EXPECT_EQ(Memory::focus, &form.cmdConvert);
  }
  void Choose(View option) override { The<Memory::OptionButton>(option).NoteChosen(); }
  void Push(View button) override { The<Memory::CommandButton>(button).NotePressed(); }
  Box CloseBox() override {
    EXPECT_EQ(boxes.size(), 1u);
    return boxes.empty() ? Box() : std::exchange(boxes, {}).back();
  }
  void Wait(const std::function<bool()>&) override { Tick(); }
};

struct OpenForm : Form {
  OpenForm() { BringUp(); }
};

}  // namespace

TEST_F(OpenForm, GivesCommands) {
  GivesCommands();
}

TEST_F(Form, LoadsAndOpensOnToday) {
  Text items;
  for (const View list : {u"cboMonth2", u"cboYearInMet", u"cboMType", u"cboGMet"}) {
    const auto& of = The<Memory::List>(list);
    for (int i = 0; i < of.ListCount(); ++i) items += Text(of.Item(i)) + u" ";
  }
  EXPECT_EQ(items,
            u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 "
            u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 "
            u"LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 A B C GMet-1 GMet-2 ");
  EXPECT_EQ(form.cboMonth[1]->ListCount() + form.cboDay[1]->ListCount(), 43);
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_TRUE(Memory::focus == nullptr && Read(u"txbOutput").empty());
  BringUp();
  Enter(2, u"? ? bad");
  Push(u"cmdTBF0");
  EXPECT_EQ(Rows(),
            u"January 1 2026 Thursday | January 1 2026 Saturday | "
            u"GMet-2 A 13 LYC-12 LA-1 13 Saturday");
  Memory::focus = nullptr;
  Push(u"cmdTBF0");
  EXPECT_EQ(Memory::focus, &form.cmdConvert);  // also when all selections are what they were
  DatePr2::SystemDate = [] { return Text(u"12-18-8265"); };
  Push(u"cmdTBF0");
  EXPECT_EQ(CloseBox(), Box(u"Date too late", u"Today's date", 64));
}

TEST_F(OpenForm, ReadStatuses) {
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
  // The other statuses of the lunar row bring up a box of their own.
  const std::pair<View, int> dates[] = {{u"GMet-2 B 65548 LYC-15 LA-5 24", -3},
                                        {u"GMet-2 B 12 LYC-15 LA-5 ?", -10}};
  for (const auto& [words, expected] : dates) {
    Enter(2, words);
    Karvel_Sorand::LksDate date{};
    std::int16_t status = 9;
    form.ReadLksDate(date, status);
    EXPECT_TRUE(status == expected && date.Valid == 0) << expected;
  }
}

TEST_F(OpenForm, RowsThatNameNoDay) {
  for (const int row : {0, 1}) Enter(row, u"June 12 2010");
  Enter(2, u"GMet-2 B 12 LYC-15 LB-6 30");  // adds up to that day, and does not exist
  Tick();
  EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
  Enter(0, u"February 30 2010");
  const Text before = Rows();
  // There is nothing to step from, and Enter counts in the selected row only.
  Push(u"cmdTBF1");
  form.txbYearCE_KeyUp(1, Toolkit::EnterKey, 0);
  form.txbMetNum_KeyUp(Toolkit::EnterKey, 0);
  EXPECT_TRUE(Rows() == before && boxes.empty());
  form.optCalendar[1]->Select();
  for (const std::size_t i : {0, 1, 2}) EXPECT_EQ(form.optCalendar[i]->FontBold(), i == 1);
}
