#include <gtest/gtest.h>

#include "user.h"

namespace {

const std::vector<View> Fields[] = {
    {u"cboMonth0", u"cboDay0", u"txbYearCE0"},
    {u"cboMonth1", u"cboDay1", u"txbYearCE1"},
    {u"cboGMet", u"cboMType", u"txbMetNum", u"cboYearInMet", u"cboMonth2", u"cboDay2"}};
const View Weekdays[] = {u"lblDayOfWeek0", u"lblDayOfWeek1", u"lblDayOfWeek2"};
const View Same = u"The dates above denote the same day.";

std::string Ascii(View text) {
  return {text.begin(), text.end()};
}

}  // namespace

void User::Enter(int row, View words) {
  for (const View field : Fields[row]) {
    const View word = words.substr(0, words.find(u' '));
    words.remove_prefix(std::min(words.size(), word.size() + 1));
    Set(field, word);
  }
}

Text User::Row(int row) const {
  Text text;
  for (const View field : Fields[row]) text += Read(field) + u" ";
  return text + Read(Weekdays[row]);
}

// Every refusal: its box, and that nothing else has changed.
void RefusesWithABox(User& user) {
  const View Lks = u"Invalid input for Lunar Karvel-Sorand date.";
  const View Invalid = u"Invalid input", Convert = u"cmdConvert", Back = u"cmdTBF1",
             Next = u"cmdTBF2";
  struct {
    int calendar;
    View entry, button, text, more, title;
    int style;
  } const rows[] = {
      // clang-format off
      {0, u"May 7 ", Convert, u"Gregorian  date is invalid.", u"", Invalid, 48},
      {0, u"May 7 9-", Convert, u"Gregorian  date is invalid.", u"", Invalid, 48},
      {1, u"May 7 x", Convert, u"Solar Karvel-Gregorian  date is invalid.", u"", Invalid, 48},
      {0, u"February 30 2010", Convert, u"The Gregorian date is invalid.", u"", Invalid, 64},
      {1, u"February 29 1900", Convert, u"The Solar Karvel-Sorand date is invalid.", u"", Invalid, 64},
      {0, u"December 18 8265", Convert, u"Error getting Lunar Karvel-Sorand date", u"", u"Error", 48},
      {1, u"December 22 -4693", Convert, u"Error getting Lunar Karvel-Sorand date", u"", u"Error", 48},
      {2, u"GMet-2 B  LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -1", Invalid, 48},
      {2, u"GMet-2 B x LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -2", Invalid, 48},
      {2, u"GMet-2 B 400 LYC-15 LA-5 24", Convert, Lks, u"\r\nError code -3", Invalid, 48},
      {2, u"GMet-2 A 12 LYC-15 LA-5 24", Convert, Lks, u"\r\nMetonic cycle 12 is of type B.", Invalid, 48},
      {2, u"GMet-2 B 12 LYB-1 LA-5 24", Convert, Lks, u"\r\nError code -5", Invalid, 48},
      {2, u"GMet-2 B 12 LYC-15 LB-6 30", Convert, Lks, u"", Invalid, 48},
      {2, u"GMet-1 A 1 LYB-1 LA-1 1", Back, u"Date too early", u"", u"Back one day", 64},
      {0, u"December 17 8265", Next, u"Date too late", u"", u"Forward one day", 64},
      {1, u"December 19 8265", Back, u"Date too late", u"", u"Back one day", 64},
      {0, u"January 1 -9999", Next, u"Date too early", u"", u"Forward one day", 64},
      // clang-format on
  };
  const Text pane = user.Read(u"txbOutput");
  for (const auto& row : rows) {
    user.Push(u"cmdTBF0");
    user.Choose(row.calendar);
    user.Enter(row.calendar, row.entry);
    Text expected = user.Rows();
    if (row.button == Convert) expected.resize(expected.rfind(u' ') + 1);  // no lunar weekday
    user.Push(row.button);
    EXPECT_EQ(user.CloseBox(),
              (MessageBoxSeen{Text(row.text) + Text(row.more), Text(row.title), row.style}))
        << Ascii(row.entry);
    EXPECT_EQ(user.Rows(), expected);
    EXPECT_EQ(user.Read(u"txbOutput"), pane);
  }
}

void ConvertsFromEachCalendar(User& user) {
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
    EXPECT_EQ(user.Read(u"lblSameDay"), Same);
  }
}

void StepsFromTheSelectedCalendar(User& user) {
  struct {
    int calendar;
    View entry, button, rows;
  } const steps[] = {
      // clang-format off
      {2, u"GMet-1 A 341 LYC-19 LA-13 30", u"cmdTBF2",
       u"December 20 1786 Wednesday | December 20 1786 Monday | GMet-2 A 1 LYB-1 LA-1 1 Monday"},
      {2, u"GMet-2 A 1 LYB-1 LA-1 1", u"cmdTBF1",
       u"December 19 1786 Tuesday | December 19 1786 Lunaday | GMet-1 A 341 LYC-19 LA-13 30 Lunaday"},
      {0, u"December 31 2010", u"cmdTBF2",
       u"January 1 2011 Saturday | January 1 2011 Friday | GMet-2 B 12 LYC-15 LA-13 27 Friday"},
      {1, u"December 22 -4693", u"cmdTBF2",
       u"December 23 -4693 Friday | December 23 -4693 Monday | GMet-1 A 1 LYB-1 LA-1 1 Monday"},
      {0, u"December 18 8265", u"cmdTBF1",
       u"December 17 8265 Sunday | December 17 8265 Lunaday | GMet-2 A 341 LYC-19 LA-13 30 Lunaday"},
      // clang-format on
  };
  const Text pane = user.Read(u"txbOutput");
  for (const auto& [calendar, entry, button, rows] : steps) {
    user.Choose(calendar);
    user.Enter(calendar, entry);
    user.Push(button);
    EXPECT_TRUE(user.Sees([&, rows = rows] { return user.Rows() == rows; })) << Ascii(entry);
    EXPECT_EQ(user.Read(u"lblSameDay"), Same);
  }
  EXPECT_EQ(user.Read(u"txbOutput"), pane);
}
