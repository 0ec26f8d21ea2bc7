// What must happen whoever uses the window: the form on the toolkit in memory, or the real program.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layout.h"
#include "text_printer.h"

using Text = std::u16string;
using View = std::u16string_view;

// A control is named as in the layout, with its index behind it if it has one: "cboMonth0".
inline Text Indexed(View name, int index) {
  Text text(name);
  if (index != Toolkit::NoIndex) text += static_cast<char16_t>(u'0' + index);
  return text;
}
inline Text NameOf(const Toolkit::StoredControl& row) {
  return Indexed(row.name, row.index);
}

struct Box {
  Text text, title;
  std::optional<Toolkit::Icon> icon;  // nothing where it cannot be told, as from outside
};

// Expects `seen` to become `wanted` while the user waits. What is compared is the value that was
// waited for, or the last one that was seen instead; so `wanted` must not hold before the action
// that leads to it.
#define EXPECT_SEEN(seen, wanted) EXPECT_EQ(Await([&] { return seen; }, wanted), wanted)

// The actions end when the window shows what they have done; they do not judge it.
struct User {
  virtual ~User() = default;
  virtual Text Read(View control) const = 0;
  virtual bool IsEnabled(View button) const = 0;
  virtual Text Focus() const = 0;                // the control that gets the next key
  virtual void Set(View field, View value) = 0;  // a list to an item, or the line in it to a text
  virtual void Choose(View option) = 0;
  virtual void Push(View button) = 0;
  virtual Box CloseBox(View behind) = 0;  // with Enter; the focus comes back to the button `behind`
  virtual void SecondPasses() = 0;        // what happens every second, now
  virtual void WaitUntil(const std::function<bool()>& holds) const = 0;

  // Looks until `see` gives `wanted`, and gives what it saw last.
  template <class See, class Wanted>
  auto Await(See see, const Wanted& wanted) const {
    auto seen = see();
    WaitUntil([&] {
      seen = see();
      return seen == wanted;
    });
    return seen;
  }

  // Row 0, 1 or 2: its fields from the left with a blank behind each.
  void Enter(int row, View words) {
    for (const View field : Fields[row]) {
      const View word = words.substr(0, words.find(u' '));
      words.remove_prefix(std::min(words.size(), word.size() + 1));
      Set(field, word);
    }
  }
  Text FieldsOf(int row) const {
    Text text;
    for (const View field : Fields[row]) text += Read(field) + u" ";
    return text;
  }
  // The same, and the weekday.
  Text Row(int row) const { return FieldsOf(row) + Read(Indexed(u"lblDayOfWeek", row)); }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

  void MovesToDays();
  void RefusesWithABox();

  inline static const std::vector<View> Fields[] = {
      {u"cboMonth0", u"cboDay0", u"txbYearCE0"},
      {u"cboMonth1", u"cboDay1", u"txbYearCE1"},
      {u"cboGMet", u"cboMType", u"txbMetNum", u"cboYearInMet", u"cboMonth2", u"cboDay2"}};

 private:
  // Today in all rows, and then this entry in the row of the calendar chosen.
  void StartFrom(int calendar, View entry) {
    Push(u"cmdTBF0");
    EXPECT_SEEN(Focus(), u"cmdConvert");
    Choose(Indexed(u"optCalendar", calendar));
    Enter(calendar, entry);
    SecondPasses();
    EXPECT_EQ(Read(u"lblSameDay"), u"The dates above do not denote the same day.");
  }
};

// What all rows are when a command has moved to a day, and the block that the pane has gained.
inline void User::MovesToDays() {
  const View Convert = u"cmdConvert", Back = u"cmdTBF1", Forward = u"cmdTBF2";
  const View May7 = u"May 7 2010 Friday | May 7 2010 Tuesday | GMet-2 B 12 LYC-15 LA-5 24 Tuesday";
  const struct {
    int calendar;
    View entry, button, rows, block;
  } moves[] = {
      {0, u"May 7 2010", Convert, May7,
       u"  2010-05-07 (Friday in 7-day week)\r\n"
       u"= 2010-05-07 (Tuesday in 7/8-day week)\r\n"
       u"= GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n\r\n"},
      {1, u"May 7 2010", Convert, May7,
       u"  2010-05-07 (Tuesday in 7/8-day week)\r\n"
       u"= 2010-05-07 (Friday in 7-day week)\r\n"
       u"= GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n\r\n"},
      {2, u"GMet-2 B 12 LYC-15 LA-5 24", Convert, May7,
       u"  GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n"
       u"= 2010-05-07 (Friday in 7-day week)\r\n"
       u"= 2010-05-07 (Tuesday in 7/8-day week)\r\n\r\n"},
      {2, u"GMet-1 A 341 LYC-19 LA-13 30", Forward,
       u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday",
       u""},
      {1, u"December 22 -4693", Forward,
       u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday",
       u""},
      {0, u"December 18 8265", Back,
       u"December 17 8265 Sunday | December 17 8265 Lunaday | "
       u"GMet-2 A 341 LYC-19 LA-13 30 Lunaday",
       u""},
  };
  for (const auto& move : moves) {
    SCOPED_TRACE(testing::PrintToString(move.entry) + " " + testing::PrintToString(move.button));
    StartFrom(move.calendar, move.entry);
    EXPECT_TRUE(IsEnabled(Back));
    EXPECT_TRUE(IsEnabled(Forward));
    const Text pane = Read(u"txbOutput");
    Push(move.button);
    EXPECT_SEEN(Rows(), move.rows);
    EXPECT_EQ(Read(u"txbOutput"), pane + Text(move.block));
    EXPECT_EQ(Read(u"lblSameDay"), u"The dates above denote the same day.");
    EXPECT_EQ(Focus(), u"cmdConvert");
  }
}

// Which box comes up where a command cannot do it, while all stays as it was. A lone x is typed
// into a list.
inline void User::RefusesWithABox() {
  const View Convert = u"cmdConvert", Back = u"cmdTBF1", Forward = u"cmdTBF2";
  const View NoLks = u"Error getting Lunar Karvel-Sorand date";
  const auto Exclamation = Toolkit::Icon::Exclamation, Information = Toolkit::Icon::Information;
  const struct {
    int calendar;
    View entry;
    bool can_step;
    View button, text, title;
    Toolkit::Icon icon;
  } refusals[] = {
      // clang-format off
      {0, u"May 7 ", false, Convert, u"Gregorian  date is invalid.", u"Invalid input", Exclamation},
      {1, u"May 7 9-", false, Convert, u"Solar Karvel-Gregorian  date is invalid.", u"Invalid input", Exclamation},
      {0, u"February 30 2010", false, Convert, u"The Gregorian date is invalid.", u"Invalid input", Information},
      {1, u"February 29 1900", false, Convert, u"The Solar Karvel-Sorand date is invalid.", u"Invalid input", Information},
      {0, u"December 18 8265", true, Convert, NoLks, u"Error", Exclamation},
      {1, u"December 22 -4693", true, Convert, NoLks, u"Error", Exclamation},
      {2, u"GMet-2 B  LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -1", u"Invalid input", Exclamation},
      {2, u"GMet-2 B x LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -2", u"Invalid input", Exclamation},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -3", u"Invalid input", Exclamation},
      {2, u"GMet-2 x 12 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nMetonic cycle 12 is of type B.", u"Invalid input", Exclamation},
      {2, u"GMet-2 B 12 x LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.\r\nError code -5", u"Invalid input", Exclamation},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Exclamation},
      {2, u"x B 12 LYC-15 LA-5 24", false, Convert, u"Invalid input for Lunar Karvel-Sorand date.", u"Invalid input", Exclamation},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", true, Back, u"Date too early", u"Back one day", Information},
      {0, u"December 17 8265", true, Forward, u"Date too late", u"Forward one day", Information},
      {1, u"December 19 8265", true, Back, u"Date too late", u"Back one day", Information},
      {0, u"January 1 -9999", true, Forward, u"Date too early", u"Forward one day", Information},
      // clang-format on
  };
  for (const auto& refusal : refusals) {
    SCOPED_TRACE(testing::PrintToString(refusal.entry));
    StartFrom(refusal.calendar, refusal.entry);
    EXPECT_EQ(IsEnabled(Back), refusal.can_step);
    EXPECT_EQ(IsEnabled(Forward), refusal.can_step);
    const Text solar_rows = Row(0) + Row(1), lunar_fields = FieldsOf(2), pane = Read(u"txbOutput");
    Push(refusal.button);
    const Box box = CloseBox(refusal.button);
    EXPECT_EQ(box.text, refusal.text);
    EXPECT_EQ(box.title, refusal.title);
    EXPECT_EQ(box.icon.value_or(refusal.icon), refusal.icon);
    EXPECT_EQ(Row(0) + Row(1), solar_rows);
    EXPECT_EQ(FieldsOf(2), lunar_fields);
    EXPECT_EQ(Read(u"txbOutput"), pane);
    if (refusal.button == Convert) {
      EXPECT_EQ(Read(u"lblDayOfWeek2"), u"");
    }
  }
}
