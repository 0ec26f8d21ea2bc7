// What must happen whoever uses the window: the form on the toolkit in memory, or the real program.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <tuple>

#include "layout.h"

using Text = std::u16string;
using View = std::u16string_view;

// The text, the title and the style of a message box.
using Box = std::tuple<Text, Text, int>;

// Expects `seen` to become `wanted` within the time that the user waits, or says what it is then.
#define EXPECT_SEEN(seen, wanted) \
  EXPECT_EQ((Wait([&] { return (seen) == (wanted); }), seen), wanted)

// A control is named as in the layout, with its index behind it if it has one: "cboMonth0".
inline Text Indexed(View name, int index) {
  return Text(name) + Text(index < 0 ? 0 : 1, static_cast<char16_t>(u'0' + index));
}
inline Text NameOf(const Toolkit::StoredControl& row) {
  return Indexed(row.name, row.index);
}

struct User {
  virtual Text Read(View control) const = 0;
  virtual bool IsEnabled(View button) const = 0;
  virtual void Set(View field, View value) = 0;  // a list to an item, or the line in it to a text
  virtual void Choose(View option) = 0;
  virtual void Push(View button) = 0;
  virtual Box CloseBox() = 0;  // the box that is open, closed with Enter
  virtual void Wait(const std::function<bool()>& condition) = 0;

  // Row 0, 1 or 2: its fields from the left with a blank behind each, and then the weekday.
  void Enter(int row, View words) {
    for (const View field : Fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      Set(field, word);
    }
  }
  Text Row(int row) const {
    Text text;
    for (const View field : Fields[row]) text += Read(field) + u" ";
    return text + Read(Indexed(u"lblDayOfWeek", row));
  }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

  void GivesCommands();

  inline static const std::vector<View> Fields[] = {
      {u"cboMonth0", u"cboDay0", u"txbYearCE0"},
      {u"cboMonth1", u"cboDay1", u"txbYearCE1"},
      {u"cboGMet", u"cboMType", u"txbMetNum", u"cboYearInMet", u"cboMonth2", u"cboDay2"}};
};

// Every way through the commands that use a date: what the rows, the pane and the same-day sentence
// are afterwards or, with a style, what box comes up while all stays as it was. A lone x is typed
// into a list.
inline void User::GivesCommands() {
  const Text Lks = u"Invalid input for Lunar Karvel-Sorand date.";
  const Text NoLks = u"Error getting Lunar Karvel-Sorand date", None = u"Invalid input";
  const View Convert = u"cmdConvert", Back = u"cmdTBF1", Forward = u"cmdTBF2";
  const Text may = u"May 7 2010 Friday | May 7 2010 Tuesday | GMet-2 B 12 LYC-15 LA-5 24 Tuesday";
  const Text lines[] = {
      u"2010-05-07 (Friday in 7-day week)\r\n", u"2010-05-07 (Tuesday in 7/8-day week)\r\n",
      u"GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n"};
  struct {
    int calendar;
    View entry, button;
    Text outcome, title;
    int style;
  } const rows[] = {
      // clang-format off
      {0, u"May 7 2010", Convert, may, u"", 0},
      {1, u"May 7 2010", Convert, may, u"", 0},
      {2, u"GMet-2 B 12 LYC-15 LA-5 24", Convert, may, u"", 0},
      {2, u"GMet-1 A 341 LYC-19 LA-13 30", Forward,
       u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday", u"", 0},
      {1, u"December 22 -4693", Forward,
       u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday", u"", 0},
      {0, u"December 18 8265", Back,
       u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday", u"", 0},
      {0, u"May 7 ", Convert, u"Gregorian  date is invalid.", None, 48},
      {1, u"May 7 9-", Convert, u"Solar Karvel-Gregorian  date is invalid.", None, 48},
      {0, u"February 30 2010", Convert, u"The Gregorian date is invalid.", None, 64},
      {1, u"February 29 1900", Convert, u"The Solar Karvel-Sorand date is invalid.", None, 64},
      {0, u"December 18 8265", Convert, NoLks, u"Error", 48},
      {1, u"December 22 -4693", Convert, NoLks, u"Error", 48},
      {2, u"GMet-2 B  LYC-15 LA-5 24", Convert, Lks + u"\r\nError code -1", None, 48},
      {2, u"GMet-2 B x LYC-15 LA-5 24", Convert, Lks + u"\r\nError code -2", None, 48},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", Convert, Lks + u"\r\nError code -3", None, 48},
      {2, u"GMet-2 x 12 LYC-15 LA-5 24", Convert, Lks + u"\r\nMetonic cycle 12 is of type B.", None, 48},
      {2, u"GMet-2 B 12 x LA-5 24", Convert, Lks + u"\r\nError code -5", None, 48},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", Convert, Lks, None, 48},
      {2, u"x B 12 LYC-15 LA-5 24", Convert, Lks, None, 48},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", Back, u"Date too early", u"Back one day", 64},
      {0, u"December 17 8265", Forward, u"Date too late", u"Forward one day", 64},
      {1, u"December 19 8265", Back, u"Date too late", u"Back one day", 64},
      {0, u"January 1 -9999", Forward, u"Date too early", u"Forward one day", 64},
      // clang-format on
  };
  Text pane = Read(u"txbOutput");
  for (const auto& [calendar, entry, button, outcome, title, style] : rows) {
    SCOPED_TRACE(testing::PrintToString(Text(entry)));
    Push(u"cmdTBF0");
    Choose(Indexed(u"optCalendar", calendar));
    Enter(calendar, entry);
    const int can_step = style == 0 || button != Convert || outcome == NoLks ? 2 : 0;
    EXPECT_SEEN(IsEnabled(Back) + IsEnabled(Forward), can_step);
    EXPECT_SEEN(Read(u"lblSameDay"), u"The dates above do not denote the same day.");
    Text expected = style == 0 ? outcome : Rows();
    Push(button);
    if (style != 0) {
      EXPECT_EQ(CloseBox(), Box(outcome, title, style));
      if (button == Convert) expected.resize(expected.rfind(u' ') + 1);  // no lunar weekday
    } else {
      EXPECT_SEEN(Read(u"lblSameDay"), u"The dates above denote the same day.");
      const Text block = u"  " + lines[calendar] + u"= " + lines[calendar == 0 ? 1 : 0] + u"= " +
                         lines[calendar == 2 ? 1 : 2] + u"\r\n";
      if (button == Convert) pane += block;
    }
    EXPECT_SEEN(Rows(), expected);
    EXPECT_SEEN(Read(u"txbOutput"), pane);
  }
}
