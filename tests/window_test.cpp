#include "main_window.h"
#include "memory_toolkit.h"

namespace {

// Uses the form on the toolkit in memory.
class Form : public testing::Test, public User {
 protected:
  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-01-2026"); };
    form.Form_Load();
  }
  template <class T>
  T& The(View control) const {
    return dynamic_cast<T&>(*desk.controls.at(Text(control)));
  }
  MemoryDesktop::TextBox& Field(View box) const { return The<MemoryDesktop::TextBox>(box); }
  bool IsEnabled(View button) const { return The<Toolkit::CommandButton>(button).Enabled(); }

  Text Read(View control) const override {
    if (control.starts_with(u"lbl")) return The<Toolkit::Label>(control).Caption();
    if (control.starts_with(u"txb")) return Field(control).text;
    const auto& list = The<Toolkit::List>(control);
    return Text(list.Item(list.ListIndex()));
  }
  void Set(View field, View value) override {
    if (field.starts_with(u"txb")) {
      Field(field).text = value;
      return;
    }
    auto& list = The<MemoryDesktop::List>(field);
    list.index = list.ListCount() - 1;
    while (list.index >= 0 && list.Item(list.index) != value) --list.index;  // "?" selects nothing
    if (list.Click) list.Click();
  }
  void Choose(int calendar) override {
    static_cast<MemoryDesktop::OptionButton&>(*form.optCalendar[std::size_t(calendar)]).Choose();
  }
  void Push(View button) override { The<MemoryDesktop::CommandButton>(button).Press(); }
  Box CloseBox() override {
    EXPECT_EQ(desk.boxes.size(), 1u);
    return desk.boxes.empty() ? Box() : std::exchange(desk.boxes, {}).back();
  }
  bool Sees(const std::function<bool()>& condition) const override { return condition(); }

  MemoryDesktop desk;
  frmMain form{desk, {2, 1}, u"The notice"};
};

struct OpenForm : Form {
  OpenForm() { desk.BringUp(); }
};

}  // namespace

TEST_F(OpenForm, RefusesWithABox) {
  RefusesWithABox(*this);
}
TEST_F(OpenForm, ConvertsFromEachCalendar) {
  ConvertsFromEachCalendar(*this);
}
TEST_F(OpenForm, StepsFromTheSelectedCalendar) {
  StepsFromTheSelectedCalendar(*this);
}

TEST_F(Form, LoadsAndOpensOnToday) {
  const auto items = [this](View list) {
    Text all;
    for (int i = 0; i < The<Toolkit::List>(list).ListCount(); ++i) {
      all += Text(The<Toolkit::List>(list).Item(i)) + u" ";
    }
    return all;
  };
  EXPECT_EQ(items(u"cboMonth2"),
            u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ");
  EXPECT_EQ(items(u"cboYearInMet"),
            u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 "
            u"LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ");
  EXPECT_EQ(form.cboMonth[1]->ListCount() + form.cboDay[1]->ListCount(), 43);
  EXPECT_EQ(items(u"cboMType") + items(u"cboGMet"), u"A B C GMet-1 GMet-2 ");
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_TRUE(desk.focus == nullptr && Read(u"txbOutput").empty());

  desk.BringUp();
  const Text today =
      u"January 1 2026 Thursday | January 1 2026 Saturday | "
      u"GMet-2 A 13 LYC-12 LA-1 13 Saturday";
  EXPECT_EQ(Rows(), today);
  desk.BringUp();  // coming back from another program is not a start
  EXPECT_EQ(Read(u"txbOutput"),
            u"  2026-01-01 (Thursday in 7-day week)\r\n= 2026-01-01 (Saturday in 7/8-day week)\r\n"
            u"= GMet-2 MA-13 LYC-12 LA-1 13 day (Saturday) 13/30 gibbous moon (waxing)\r\n\r\n");
  EXPECT_EQ(Field(u"txbOutput").selection.start, form.txbOutput.TextLength());
  const int touches = desk.touches;
  Push(u"cmdConvert");
  EXPECT_EQ(desk.touches, touches + 8);  // three weekdays, away and back; the block and the caret

  Choose(2);
  Enter(2, u"? ? bad");
  Push(u"cmdTBF0");
  EXPECT_EQ(Rows(), today);
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
    EXPECT_TRUE(status == expected && date.year == year) << testing::PrintToString(Text(text));
    EXPECT_TRUE(date.valid == (status == 0 ? 1 : 0) && date.calendar == 71);
  }
  const std::pair<View, int> dates[] = {{u"GMet-2 B  LYC-15 LA-5 24", -1},
                                        {u"GMet-2 B 65548 LYC-15 LA-5 24", -3},
                                        {u"GMet-2 B 99999999999 LYC-15 LA-5 24", -3},
                                        {u"GMet-2 ? 12 LYC-15 LA-5 24", -4},
                                        {u"GMet-2 B 12 ? LA-5 24", -5},
                                        {u"? B 12 LYC-15 LA-5 24", -6},
                                        {u"GMet-2 B 12 LYC-15 LA-5 ?", -10},
                                        {u"GMet-2 B 012 LYC-15 LA-5 24", 0}};
  for (const auto& [words, expected] : dates) {
    Enter(2, words);
    Karvel_Sorand::LksDate date{};
    std::int16_t status = 9;
    form.ReadLksDate(date, status);
    EXPECT_TRUE(status == expected && date.Valid == (status == 0 ? -1 : 0)) << expected;
  }
}

TEST_F(OpenForm, TickKeepsSentenceAndCommandsInStep) {
  const View may = u"May 7 2010", june = u"June 12 2010", none = u"February 30 2010";
  const View bad = u"May 7 ", far = u"May 7 9000", lunar = u"GMet-2 B 12 LYC-15 LA-5 24";
  const View adds_up_to_june = u"GMet-2 B 12 LYC-15 LB-6 30";
  const std::tuple<View, View, View, int, bool, bool> rows[] = {
      {may, may, lunar, 0, true, true},
      {may, june, lunar, 1, false, true},
      {june, june, lunar, 2, false, true},
      {june, june, adds_up_to_june, 0, true, true},
      {june, june, adds_up_to_june, 2, true, false},
      {bad, may, lunar, 0, false, false},
      {bad, may, lunar, 1, false, true},
      {none, none, u"GMet-2 B  LYC-15", 0, false, false},
      {far, far, lunar, 0, false, true}};
  for (const auto& [gregorian, solar, lunar_date, calendar, same, step] : rows) {
    Enter(0, gregorian);
    Enter(1, solar);
    Enter(2, lunar_date);
    Choose(calendar);
    Set(u"txbOutput", same ? u" " : u"");
    desk.Second();
    EXPECT_EQ(Read(u"lblSameDay"), same ? u"The dates above denote the same day."
                                        : u"The dates above do not denote the same day.");
    EXPECT_TRUE(IsEnabled(u"cmdTBF1") == step && IsEnabled(u"cmdTBF2") == step);
    EXPECT_TRUE(IsEnabled(u"cmdCopy") == same && IsEnabled(u"cmdClear") == same);
    const int touches = desk.touches;
    desk.Second();
    EXPECT_EQ(desk.touches, touches);
  }
}

TEST_F(OpenForm, NewSelectionBlanksItsWeekday) {
  const std::pair<View, int> lists[] = {{u"cboMonth0", 0}, {u"cboDay0", 0},   {u"cboMonth1", 1},
                                        {u"cboDay1", 1},   {u"cboMonth2", 2}, {u"cboDay2", 2},
                                        {u"cboGMet", 2},   {u"cboMType", 3},  {u"cboYearInMet", 2}};
  for (const auto& [list, row] : lists) {
    Push(u"cmdTBF0");
    desk.focus = nullptr;
    Set(list, Text(The<Toolkit::List>(list).Item(1)));
    for (int label = 0; label <= 2; ++label) EXPECT_EQ(Row(label).ends_with(u' '), label == row);
    EXPECT_EQ(desk.focus == &form.cmdConvert, row < 3);
  }
}

TEST_F(OpenForm, EnterConvertsInTheSelectedRow) {
  const std::tuple<int, View, std::int16_t, bool> rows[] = {
      {0, u"txbYearCE0", 13, true}, {0, u"txbYearCE1", 13, false}, {1, u"txbYearCE1", 13, true},
      {2, u"txbMetNum", 13, true},  {0, u"txbMetNum", 13, false},  {0, u"txbYearCE0", 10, false}};
  for (const auto& [calendar, field, key, converts] : rows) {
    desk.focus = nullptr;
    form.optCalendar[std::size_t(calendar)]->Select();
    EXPECT_EQ(desk.focus, &form.cmdConvert);
    for (int i = 0; i <= 2; ++i) {
      EXPECT_EQ(form.optCalendar[std::size_t(i)]->FontBold(), i == calendar);
    }
    const Text before = Read(u"txbOutput");
    Field(field).KeyUp(key, 0);
    EXPECT_EQ(Read(u"txbOutput") != before, converts);
  }
  Choose(0);
  for (const View nowhere : {u"February 30 2010", u"May 7 "}) {  // nothing to step from
    Enter(0, nowhere);
    const Text before = Rows();
    Push(u"cmdTBF1");
    EXPECT_TRUE(Rows() == before && desk.boxes.empty());
  }
}
