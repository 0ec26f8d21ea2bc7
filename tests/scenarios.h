// What must happen whoever uses the window: the form on the toolkit in memory, or the real program.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <tuple>

using Text = std::u16string;
using View = std::u16string_view;

// The text, the title and the style of a message box.
using Box = std::tuple<Text, Text, int>;

// A control is named as in the layout, with its index behind it if it has one: "cboMonth0".
class User {
 public:
  virtual ~User() = default;
  virtual Text Read(View control) const = 0;
  virtual void Set(View field, View value) = 0;  // a list to an item, a text box to a text
  virtual void Choose(int calendar) = 0;
  virtual void Push(View button) = 0;
  virtual Box CloseBox() = 0;  // the box that is open, closed with Enter
  virtual bool Sees(const std::function<bool()>& condition) const = 0;  // now, or in a while

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
    return text + Read(u"lblDayOfWeek" + Text(1, static_cast<char16_t>(u'0' + row)));
  }
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }

 private:
  inline static const std::vector<View> Fields[] = {
      {u"cboMonth0", u"cboDay0", u"txbYearCE0"},
      {u"cboMonth1", u"cboDay1", u"txbYearCE1"},
      {u"cboGMet", u"cboMType", u"txbMetNum", u"cboYearInMet", u"cboMonth2", u"cboDay2"}};
};

// Every refusal: its box, and that nothing else has changed.
inline void RefusesWithABox(User& user) {
  const View Lks = u"Invalid input for Lunar Karvel-Sorand date.", Solar = u"Solar Karvel-";
  const View Invalid = u"Invalid input", Convert = u"cmdConvert";
  struct {
    int calendar;
    View entry, button, text, more, title;
    int style;
  } const rows[] = {
      // clang-format off
      {0, u"May 7 ", Convert, u"Gregorian  date is invalid.", u"", Invalid, 48},
      {1, u"May 7 9-", Convert, Solar, u"Gregorian  date is invalid.", Invalid, 48},
      {0, u"February 30 2010", Convert, u"The Gregorian date is invalid.", u"", Invalid, 64},
      {1, u"February 29 1900", Convert, u"The Solar Karvel-Sorand", u" date is invalid.", Invalid, 64},
      {0, u"December 18 8265", Convert, u"Error getting Lunar Karvel-Sorand date", u"", u"Error", 48},
      {1, u"December 22 -4693", Convert, u"Error getting Lunar Karvel-Sorand date", u"", u"Error", 48},
      {2, u"GMet-2 B  LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -1", Invalid, 48},
      {2, u"GMet-2 B x LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -2", Invalid, 48},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -3", Invalid, 48},
      {2, u"GMet-2 A 12 LYC-15 LA-5 24", Convert, Lks, u"\r\nMetonic cycle 12 is of type B.", Invalid, 48},
      {2, u"GMet-2 B 12 LYB-1 LA-5 24", Convert, Lks, u"\r\nError code -5", Invalid, 48},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", Convert, Lks, u"", Invalid, 48},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", u"cmdTBF1", u"Date too early", u"", u"Back one day", 64},
      {0, u"December 17 8265", u"cmdTBF2", u"Date too late", u"", u"Forward one day", 64},
      {1, u"December 19 8265", u"cmdTBF1", u"Date too late", u"", u"Back one day", 64},
      {0, u"January 1 -9999", u"cmdTBF2", u"Date too early", u"", u"Forward one day", 64},
      // clang-format on
  };
  const Text pane = user.Read(u"txbOutput");
  for (const auto& [calendar, entry, button, text, more, title, style] : rows) {
    user.Push(u"cmdTBF0");
    user.Choose(calendar);
    user.Enter(calendar, entry);
    Text rows_before = user.Rows();
    if (button == Convert) rows_before.resize(rows_before.rfind(u' ') + 1);  // no lunar weekday
    user.Push(button);
    EXPECT_EQ(user.CloseBox(), Box(Text(text).append(more), title, style));
    EXPECT_EQ(user.Rows(), rows_before);
    EXPECT_EQ(user.Read(u"txbOutput"), pane);
  }
}

inline void ConvertsFromEachCalendar(User& user) {
  const Text lines[] = {
      u"2010-05-07 (Friday in 7-day week)\r\n", u"2010-05-07 (Tuesday in 7/8-day week)\r\n",
      u"GMet-2 MB-12 LYC-15 LA-5 24 day (Tuesday) 24/30 half moon (3rd quarter)\r\n"};
  const View entries[] = {u"May 7 2010", u"May 7 2010", u"GMet-2 B 12 LYC-15 LA-5 24"};
  Text pane = user.Read(u"txbOutput");
  for (const int calendar : {0, 1, 2}) {
    user.Push(u"cmdTBF0");  // all rows elsewhere
    user.Choose(calendar);
    user.Enter(calendar, entries[calendar]);
    user.Push(u"cmdConvert");
    pane += u"  " + lines[calendar] + u"= " + lines[calendar == 0 ? 1 : 0] + u"= " +
            lines[calendar == 2 ? 1 : 2] + u"\r\n";
    EXPECT_TRUE(user.Sees([&] { return user.Read(u"txbOutput") == pane; }));
    EXPECT_EQ(user.Rows(),
              u"May 7 2010 Friday | May 7 2010 Tuesday | "
              u"GMet-2 B 12 LYC-15 LA-5 24 Tuesday");
    EXPECT_EQ(user.Read(u"lblSameDay"), u"The dates above denote the same day.");
  }
}

inline void StepsFromTheSelectedCalendar(User& user) {
  struct {
    int calendar;
    View entry, button, rows;
  } const steps[] = {
      // clang-format off
      {2, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2",
       u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday"},
      {0, u"December 31 2010", u"cmdTBF2",
       u"January 1 2011 Saturday | January 1 2011 Friday | GMet-2 B 12 LYC-15 LA-13 27 Friday"},
      {1, u"December 22 -4693", u"cmdTBF2",
       u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday"},
      {0, u"December 18 8265", u"cmdTBF1",
       u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday"},
      // clang-format on
  };
  for (const auto& [calendar, entry, button, rows] : steps) {
    user.Choose(calendar);
    user.Enter(calendar, entry);
    user.Push(button);
    EXPECT_TRUE(user.Sees([&, rows = rows] { return user.Rows() == rows; })) << user.Rows().size();
    EXPECT_EQ(user.Read(u"lblSameDay"), u"The dates above denote the same day.");
  }
}
