#include <gtest/gtest.h>

#include "main_window.h"
#include "memory_toolkit.h"

using Text = std::u16string;
using View = std::u16string_view;

namespace {

constexpr int Convert = -1;  // in place of an index of cmdTBF
constexpr View May7 =
    u"May 7 2010 Friday | May 7 2010 Tuesday | "
    u"GMet-2 B 12 LYC-15 LA-5 24 Tuesday";
constexpr View NewYear =
    u"January 1 2026 Thursday | January 1 2026 Saturday | "
    u"GMet-2 A 13 LYC-12 LA-1 13 Saturday";

class Form : public testing::Test {
 protected:
  Form() {
    DatePr2::SystemDate = [] { return Text(u"01-01-2026"); };
    form.Form_Load();
  }

  MemoryDesktop::TextBox& Box(Toolkit::TextBox& box) {
    return static_cast<MemoryDesktop::TextBox&>(box);
  }
  void Choose(Toolkit::List& list, int index) {
    static_cast<MemoryDesktop::List&>(list).Choose(index);
  }
  void Select(std::size_t calendar) {
    static_cast<MemoryDesktop::OptionButton&>(*form.optCalendar[calendar]).Choose();
  }
  void Press(int button) {
    auto& pressed = button == Convert ? form.cmdConvert : *form.cmdTBF[std::size_t(button)];
    static_cast<MemoryDesktop::CommandButton&>(pressed).Press();
  }

  // The fields of a row from the left; each is a list or a text box.
  struct Field {
    Toolkit::List* list;
    Toolkit::TextBox* box;
  };
  std::vector<Field> Fields(std::size_t row) {
    if (row < 2)
      return {{form.cboMonth[row], {}}, {form.cboDay[row], {}}, {{}, form.txbYearCE[row]}};
    return {{&form.cboGMet, {}},      {&form.cboMType, {}},   {{}, &form.txbMetNum},
            {&form.cboYearInMet, {}}, {form.cboMonth[2], {}}, {form.cboDay[2], {}}};
  }

  // Sets a row as a user would, from the words that `Rows` shows. A word that is no item selects
  // nothing, and "_" empties a text box.
  void Enter(std::size_t row, View words) {
    for (const Field& field : Fields(row)) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      if (field.box) {
        Box(*field.box).text = word == u"_" ? View() : word;
        continue;
      }
      int index = field.list->ListCount() - 1;
      while (index >= 0 && field.list->Item(index) != word) --index;
      Choose(*field.list, index);
    }
  }
  Text Row(std::size_t row) {
    Text text;
    for (const Field& field : Fields(row)) {
      text += field.box ? field.box->Text() : Text(field.list->Item(field.list->ListIndex()));
      text += u" ";
    }
    return text + form.lblDayOfWeek[row]->Caption();
  }
  Text Rows() { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

  Text Items(const Toolkit::List& list) {
    Text items;
    for (int i = 0; i < list.ListCount(); ++i) items += Text(list.Item(i)) + u" ";
    return items;
  }
  bool SaysSameDay() {
    const bool says = form.lblSameDay.Caption() == u"The dates above denote the same day.";
    EXPECT_TRUE(says ||
                form.lblSameDay.Caption() == u"The dates above do not denote the same day.");
    return says;
  }

  MemoryDesktop desk;
  frmMain form{desk, {2, 1}, u"The notice"};
};

class OpenForm : public Form {
 protected:
  OpenForm() { desk.BringUp(); }
};

}  // namespace

TEST_F(Form, LoadsAndOpensOnToday) {
  EXPECT_EQ(desk.MainWindow().Caption(), u"Tandem Karvel-Sorand Calendar, Version 2.1");
  EXPECT_EQ(Items(*form.cboMonth[1]),
            u"January February March April May June July August "
            u"September October November December ");
  EXPECT_EQ(Items(*form.cboMonth[2]),
            u"LA-1 LB-2 LA-3 LB-4 LA-5 LB-6 LA-7 LB-8 LA-9 LB-10 LA-11 LA-12 LB-12 LA-13 ");
  EXPECT_EQ(Items(form.cboYearInMet),
            u"LYA-1 LYB-1 LYA-2 LYC-3 LYC-4 LYB-5 LYA-6 LYC-7 LYA-8 LYB-9 LYA-10 LYC-11 LYC-12 "
            u"LYB-13 LYA-14 LYC-15 LYA-16 LYA-17 LYA-18 LYA-19 LYC-19 ");
  EXPECT_EQ(form.cboDay[0]->ListCount() + form.cboDay[1]->ListCount(), 62);
  EXPECT_EQ(Items(form.cboMType) + Items(form.cboGMet), u"A B C GMet-1 GMet-2 ");
  EXPECT_EQ(Rows(), u"January 1  Monday | January 1  Lunaday | GMet-2 A 301 LYA-1 LA-1 1 ");
  EXPECT_TRUE(desk.interval == 1000 && desk.focus == nullptr && form.txbOutput.Text().empty());

  desk.BringUp();
  EXPECT_EQ(Rows(), NewYear);
  EXPECT_TRUE(SaysSameDay());
  const Text pane = form.txbOutput.Text();
  EXPECT_EQ(pane,
            u"  2026-01-01 (Thursday in 7-day week)\r\n"
            u"= 2026-01-01 (Saturday in 7/8-day week)\r\n"
            u"= GMet-2 MA-13 LYC-12 LA-1 13 day (Saturday) 13/30 gibbous moon (waxing)\r\n\r\n");
  EXPECT_EQ(desk.focus, &form.cmdConvert);
  EXPECT_TRUE(form.optCalendar[0]->FontBold());

  // Coming back from another program is not a start.
  Choose(*form.cboDay[0], 4);
  desk.BringUp();
  EXPECT_EQ(form.cboDay[0]->ListIndex(), 4);
  EXPECT_EQ(form.txbOutput.Text(), pane);
}

TEST_F(Form, OpensOutsideTheRange) {
  DatePr2::SystemDate = [] { return Text(u"12-18-8265"); };
  desk.BringUp();
  ASSERT_EQ(desk.boxes.size(), 2u);
  EXPECT_EQ(desk.boxes[0].text + desk.boxes[0].title, u"Date too lateToday's date");
  EXPECT_EQ(desk.boxes[1].text, u"Gregorian  date is invalid.");
}

TEST_F(OpenForm, ReadsYears) {
  constexpr std::int32_t NotWritten = 77;
  struct {
    View text;
    std::int16_t status;
    std::int32_t year;
  } const rows[] = {{u"  2024 ", 0, 2024},
                    {u"0044", 0, 44},
                    {u"-44", 0, -44},
                    {u"-", 0, 0},
                    {u"-9999", 0, -9999},
                    {u"99999", 0, 99999},
                    {u"", -1, NotWritten},
                    {u"   ", -1, NotWritten},
                    {u"20a4", -2, NotWritten},
                    {u"20 24", -2, NotWritten},
                    {u"1.5", -2, NotWritten},
                    {u"\t5", -2, NotWritten},
                    {u"12-", -3, NotWritten},
                    {u"--5", -3, NotWritten},
                    {u"1-2", -3, NotWritten},
                    {u"100000", -4, NotWritten},
                    {u"-10000", -4, NotWritten},
                    {u"99999999999999999999", -4, NotWritten}};
  for (const auto& row : rows) {
    for (std::int16_t index = 0; index <= 1; ++index) {
      Enter(std::size_t(index), u"February 31 _");
      Box(*form.txbYearCE[std::size_t(index)]).text = row.text;
      EuroDate date{NotWritten, 0, 0, 0, 0, 0};
      std::int16_t status = 9;
      form.ReadEuroDate(index, date, status);
      EXPECT_EQ(status, row.status) << testing::PrintToString(Text(row.text));
      EXPECT_EQ(date.year, row.year);
      EXPECT_EQ(date.valid, row.status == 0 ? 1 : 0);
      EXPECT_TRUE(date.month == 2 && date.day == 31 && date.calendar == 71);
    }
  }
}

// Every refusal of a command: its box, and that nothing else has changed.
TEST_F(OpenForm, RefusesWithABox) {
  const Text lunar = u"Invalid input for Lunar Karvel-Sorand date.";
  const View input = u"Invalid input";
  struct {
    std::size_t calendar;
    View entry;
    int button;
    Text text;
    View title;
    int style;
  } const rows[] = {
      {0, u"May 7 _", Convert, u"Gregorian  date is invalid.", input, 48},
      {0, u"May 7 9-", Convert, u"Gregorian  date is invalid.", input, 48},
      {1, u"May 7 x", Convert, u"Solar Karvel-Gregorian  date is invalid.", input, 48},
      {1, u"May 7 1111111111111", Convert, u"Solar Karvel-Gregorian  date is invalid.", input, 48},
      {0, u"February 30 2010", Convert, u"The Gregorian date is invalid.", input, 64},
      {1, u"February 29 1900", Convert, u"The Solar Karvel-Sorand date is invalid.", input, 64},
      {0, u"December 18 8265", Convert, u"Error getting Lunar Karvel-Sorand date", u"Error", 48},
      {1, u"December 22 -4693", Convert, u"Error getting Lunar Karvel-Sorand date", u"Error", 48},
      {2, u"GMet-2 B _ LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -1", input, 48},
      {2, u"GMet-2 B -1 LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -2", input, 48},
      {2, u"GMet-2 B 0 LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -3", input, 48},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -3", input, 48},
      {2, u"GMet-2 B 65548 LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -3", input, 48},
      {2, u"GMet-2 B 99999999999 LYC-15 LA-5 24", Convert, lunar + u"\r\nError code -3", input, 48},
      {2, u"GMet-2 A 12 LYC-15 LA-5 24", Convert, lunar + u"\r\nMetonic cycle 12 is of type B.",
       input, 48},
      {2, u"GMet-2 ? 12 LYC-15 LA-5 24", Convert, lunar + u"\r\nMetonic cycle 12 is of type B.",
       input, 48},
      {2, u"GMet-2 B 12 LYB-1 LA-5 24", Convert, lunar + u"\r\nError code -5", input, 48},
      {2, u"GMet-2 B 12 ? LA-5 24", Convert, lunar + u"\r\nError code -5", input, 48},
      {2, u"? B 12 LYC-15 LA-5 24", Convert, lunar, input, 48},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", Convert, lunar, input, 48},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", 1, u"Date too early", u"Back one day", 64},
      {0, u"December 17 8265", 2, u"Date too late", u"Forward one day", 64},
      {1, u"December 19 8265", 1, u"Date too late", u"Back one day", 64},
      {0, u"January 1 -9999", 2, u"Date too early", u"Forward one day", 64},
  };
  for (const auto& row : rows) {
    Press(0);
    Select(row.calendar);
    Enter(row.calendar, row.entry);
    if (row.button == Convert) form.lblDayOfWeek[2]->SetCaption(u"");  // Convert blanks it
    const Text pane = form.txbOutput.Text();
    const Text before = Rows();
    desk.boxes.clear();
    Press(row.button);
    ASSERT_EQ(desk.boxes.size(), 1u) << testing::PrintToString(Text(row.entry));
    EXPECT_EQ(desk.boxes[0].text, row.text);
    EXPECT_EQ(desk.boxes[0].title, row.title);
    EXPECT_EQ(static_cast<int>(desk.boxes[0].icon), row.style);
    EXPECT_EQ(form.txbOutput.Text(), pane);
    EXPECT_EQ(Rows(), before);
  }
}

TEST_F(OpenForm, ConvertsFromEachCalendar) {
  const Text lines[] = {
      u"2010-05-07 (Friday in 7-day week)\r\n", u"2010-05-07 (Tuesday in 7/8-day week)\r\n",
      u"GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n"};
  const View entries[] = {u"May 7 2010", u"May 7 2010", u"GMet-2 B 12 LYC-15 LA-5 24"};
  Text pane = u"by hand";
  Box(form.txbOutput).text = pane;
  for (const std::size_t calendar : {0u, 1u, 2u}) {
    Press(0);  // all rows elsewhere
    Select(calendar);
    Enter(calendar, entries[calendar]);
    Press(Convert);
    pane += u"  " + lines[calendar] + u"= " + lines[calendar == 0 ? 1 : 0] + u"= " +
            lines[calendar == 2 ? 1 : 2] + u"\r\n";
    EXPECT_EQ(form.txbOutput.Text(), pane);
    EXPECT_EQ(Box(form.txbOutput).selection.start, form.txbOutput.TextLength());
    EXPECT_EQ(Rows(), May7);
    EXPECT_TRUE(SaysSameDay());
  }
}

TEST_F(OpenForm, StepsFromTheSelectedCalendar) {
  const View last =
      u"December 17 8265 Sunday | December 17 8265 Lunaday | "
      u"GMet-2 A 341 LYC-19 LA-13 30 Lunaday";
  struct {
    std::size_t calendar;
    View entry;
    int button;
    View rows;
  } const steps[] = {
      {2, u"GMet-1 A 341 LYC-19 LA-13 30", 2,
       u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday"},
      {0, u"December 31 2010", 2,
       u"January 1 2011 Saturday | January 1 2011 Friday | GMet-2 B 12 LYC-15 LA-13 27 Friday"},
      {1, u"December 22 -4693", 2,
       u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday"},
      {0, u"December 18 8265", 1, last},
      {0, u"January 1 _", 1, u"January 1  "},             // nothing happens
      {1, u"February 30 2010", 2, u"February 30 2010 "},  // nor here
      {1, u"? ? bad", 0, NewYear},
  };
  const Text pane = form.txbOutput.Text();
  for (const auto& step : steps) {
    Select(step.calendar);
    Enter(step.calendar, step.entry);
    Press(step.button);
    const bool stepped = step.rows.find(u'|') != View::npos;
    EXPECT_EQ(stepped ? Rows() : Row(step.calendar), step.rows);
    EXPECT_TRUE(!stepped || SaysSameDay());
    EXPECT_TRUE(form.optCalendar[step.calendar]->Value());
  }
  EXPECT_EQ(form.txbOutput.Text(), pane);
  EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(OpenForm, TickKeepsSentenceAndCommandsInStep) {
  const View may = u"May 7 2010", june = u"June 12 2010", nowhere = u"February 30 2010";
  const View lunar_may = u"GMet-2 B 12 LYC-15 LA-5 24";
  const View adds_up_to_june = u"GMet-2 B 12 LYC-15 LB-6 30";
  struct {
    View gregorian, solar, lunar;
    std::size_t calendar;
    bool same, step;
  } const rows[] = {
      {may, may, lunar_may, 0, true, true},
      {may, june, lunar_may, 1, false, true},
      {june, june, lunar_may, 2, false, true},
      {june, june, adds_up_to_june, 0, true, true},
      {june, june, adds_up_to_june, 2, true, false},
      {u"May 7 _", may, lunar_may, 0, false, false},
      {u"May 7 _", may, lunar_may, 1, false, true},
      {nowhere, nowhere, lunar_may, 0, false, false},
      {nowhere, nowhere, u"GMet-2 B _ LYC-15 LA-5 24", 2, false, false},
      {u"May 7 9000", u"May 7 9000", lunar_may, 0, false, true},
  };
  for (const auto& row : rows) {
    Enter(0, row.gregorian);
    Enter(1, row.solar);
    Enter(2, row.lunar);
    Select(row.calendar);
    Box(form.txbOutput).text = row.same ? u" " : u"";
    desk.Second();
    EXPECT_EQ(SaysSameDay(), row.same);
    EXPECT_TRUE(form.cmdTBF[1]->Enabled() == row.step && form.cmdTBF[2]->Enabled() == row.step);
    EXPECT_TRUE(form.cmdCopy.Enabled() == row.same && form.cmdClear.Enabled() == row.same);
    const int touches = desk.touches;
    desk.Second();
    EXPECT_EQ(desk.touches, touches);
  }
  EXPECT_TRUE(form.CheckSameDay(1) && SaysSameDay());
  EXPECT_FALSE(form.CheckSameDay(0) || SaysSameDay());
}

TEST_F(OpenForm, NewSelectionBlanksItsWeekday) {
  const std::pair<Toolkit::List*, std::size_t> lists[] = {
      {form.cboMonth[0], 0}, {form.cboDay[0], 0},     {form.cboMonth[1], 1},
      {form.cboDay[1], 1},   {form.cboMonth[2], 2},   {form.cboDay[2], 2},
      {&form.cboGMet, 2},    {&form.cboYearInMet, 2}, {&form.cboMType, 3}};
  for (const auto& [list, row] : lists) {
    Press(0);
    desk.focus = nullptr;
    Choose(*list, 1);
    for (std::size_t label = 0; label <= 2; ++label) {
      EXPECT_EQ(form.lblDayOfWeek[label]->Caption().empty(), label == row);
    }
    EXPECT_EQ(desk.focus == &form.cmdConvert, row < 3);
  }
}

TEST_F(OpenForm, EnterConvertsWhereItWentDown) {
  struct {
    std::size_t calendar;
    Toolkit::TextBox* box;
    std::int16_t key;
    bool converts;
  } const rows[] = {{0, form.txbYearCE[0], 13, true}, {0, form.txbYearCE[1], 13, false},
                    {1, form.txbYearCE[1], 13, true}, {2, &form.txbMetNum, 13, true},
                    {0, &form.txbMetNum, 13, false},  {0, form.txbYearCE[0], 10, false}};
  for (const auto& row : rows) {
    Select(row.calendar);
    MemoryDesktop::TextBox& box = Box(*row.box);
    const std::int32_t before = form.txbOutput.TextLength();
    box.Up(row.key);  // it went down elsewhere
    box.Down(row.key, true);
    box.Up(row.key);  // and was held down when the focus came here
    box.Down(row.key);
    box.Leave();
    box.Up(row.key);  // and the focus was away in between
    box.Down(row.key);
    EXPECT_EQ(form.txbOutput.TextLength(), before);
    box.Up(row.key);
    EXPECT_EQ(form.txbOutput.TextLength() > before, row.converts);
  }
}

TEST_F(OpenForm, TrimmingLeavesTheCaretOnItsCharacter) {
  using Selection = Toolkit::TextBox::Selection;
  struct {
    View text;
    Selection before;
    View trimmed;
    Selection after;
  } const rows[] = {{u"  20 24 ", {4, 6}, u"20 24", {2, 4}},
                    {u" 5", {0, 0}, u"5", {0, 0}},
                    {u"12   ", {5, 5}, u"12", {2, 2}},
                    {u"   ", {1, 3}, u"", {0, 0}},
                    {u"1 2", {1, 2}, u"1 2", {1, 2}}};
  MemoryDesktop::TextBox& box = Box(*form.txbYearCE[0]);
  for (const auto& row : rows) {
    box.text = row.text;
    box.selection = row.before;
    desk.Second();
    EXPECT_EQ(box.text, row.trimmed);
    EXPECT_EQ(box.selection, row.after) << testing::PrintToString(box.text);
  }
}

TEST_F(OpenForm, SelectingFromCodeRaisesTheClick) {
  for (const std::size_t chosen : {1u, 1u, 2u, 0u}) {
    desk.focus = nullptr;
    form.optCalendar[chosen]->Select();
    for (std::size_t i = 0; i <= 2; ++i) {
      EXPECT_EQ(form.optCalendar[i]->FontBold(), i == chosen);
    }
    EXPECT_EQ(desk.focus, &form.cmdConvert);
  }
  form.cmdTBF[1]->SetFocus();
  form.cmdTBF[1]->SetEnabled(false);
  EXPECT_NE(desk.focus, form.cmdTBF[1]);
}
