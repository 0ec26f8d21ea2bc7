#include <gtest/gtest.h>

#include "lks_date.h"

using namespace Karvel_Sorand;

namespace {

constexpr std::u16string_view Weekdays[] = {u"Monday", u"Tuesday",  u"Wednesday", u"Thursday",
                                            u"Friday", u"Saturday", u"Sunday",    u"Lunaday"};
constexpr std::u16string_view Phases[] = {
    u"dark moon", u"crescent moon (waxing)", u"half moon (1st quarter)", u"gibbous moon (waxing)",
    u"full moon", u"gibbous moon (waning)",  u"half moon (3rd quarter)", u"crescent moon (waning)"};
// The phase and the weekday of each day, one digit a day from day 1 on.
constexpr char PhaseOfDay[] = "011111223333334555555566777777";
constexpr char WeekdayInA[] = "012345601234567012345601234567";
constexpr char WeekdayInB[] = "01234560123456701234501234567";

struct Lunar : testing::Test {
  Lunar() { InitLksTables(); }
};

}  // namespace

// Walks through the calendar by its lengths alone: all its units, one inside the other.
TEST_F(Lunar, EveryDayThereAndBack) {
  const std::u16string block16 = u"ABAABAABAAABAABA",
                       block64 = block16 + block16 + block16 + block16;
  const std::u16string cycles =
      block64 + block64 + block64 + block16 + u"ABACA" + block64 + block64;
  std::int32_t jdn = 7333;
  LksDate date{}, there{};
  there.Label.reserve(100);
  const char16_t* const memory = there.Label.data();
  for (date.GMet = 1; date.GMet <= 2; ++date.GMet) {
    for (date.MetNum = 1; date.MetNum <= 341; ++date.MetNum) {
      date.MetType = cycles[std::size_t(date.MetNum) - 1];
      for (date.YearInMet = 1; date.YearInMet <= 19; ++date.YearInMet) {
        date.YearType = u"?BACCBACABACCBACAAAC"[date.YearInMet];
        if (date.YearInMet == (date.MetType == u"B" ? 1 : date.MetType == u"C" ? 19 : 0))
          date.YearType = u"A";
        for (date.Month = 1; date.Month <= (date.YearType == u"C" ? 13 : 12); ++date.Month) {
          const bool is_long = date.Month == 12 ? date.YearType == u"B" : date.Month % 2 == 1;
          date.MonthType = is_long ? u"A" : u"B";
          for (date.Day = 1; date.Day <= (is_long ? 30 : 29); ++date.Day, ++jdn) {
            ASSERT_TRUE(JdnToLksDate(jdn, there, true) == 0 && SameLksDate(there, date)) << jdn;
            ASSERT_TRUE(LksDateToJdn(date) == jdn && CheckLksDate(date) == 0) << jdn;
            ASSERT_TRUE(there.Jdn == jdn && there.Valid == LksTrue) << jdn;
            ASSERT_TRUE(date.Jdn == jdn && date.Valid == LksTrue) << jdn;
            const auto at = static_cast<std::size_t>(date.Day) - 1;
            const char weekday = (is_long ? WeekdayInA : WeekdayInB)[at];
            ASSERT_EQ(LunarWeekdayName(date.Day, date.MonthType), Weekdays[weekday - '0']) << jdn;
            ASSERT_EQ(MoonPhaseName(date.Day), Phases[PhaseOfDay[at] - '0']) << jdn;
          }
        }
      }
    }
  }
  EXPECT_EQ(there.Label.data(), memory);  // a record that is used again allocates nothing
  EXPECT_EQ(JdnToLksDate(1721426, there, false), 0);
  EXPECT_EQ(there.Label, u"GMet-1 MA-248 LYB-1 LA-1 21 day (Saturday) 21/30 gibbous moon (waning)");
  EXPECT_EQ(JdnToLksDate(7332, there, true), -1);
  EXPECT_TRUE(there.Valid == LksFalse && there.Label.empty() && there.Jdn == 7332);
  EXPECT_EQ(JdnToLksDate(jdn, there, true), -2);
  EXPECT_EQ(JdnToLksDate(1721425, there, false), -3);
}

TEST_F(Lunar, OfAllCombinationsExactlyTheDaysAreAccepted) {
  const std::u16string types[] = {u"A", u"B", u"C"};
  std::int32_t accepted = 0;
  LksDate date{};
  for (int of_types = 0; of_types < 27; ++of_types) {
    date.MetType = types[of_types / 9], date.YearType = types[of_types / 3 % 3];
    date.MonthType = types[of_types % 3];
    for (date.GMet = 1; date.GMet <= 2; ++date.GMet)
      for (date.MetNum = 0; date.MetNum <= 342; ++date.MetNum)
        for (date.YearInMet = 1; date.YearInMet <= 19; ++date.YearInMet)
          for (date.Month = 1; date.Month <= 13; ++date.Month)
            for (date.Day = 1; date.Day <= 30; ++date.Day)
              if (CheckLksDate(date) == 0) ++accepted;
  }
  EXPECT_EQ(accepted, 4732808);
}

TEST_F(Lunar, StatusOfDates) {
  std::tuple<LksDate, int, std::int32_t> rows[] = {
      {{2, u"A", 1, u"B", 1, u"B", 12, 29, -1, 0, {}}, -6, 2374090},
      {{2, u"A", 1, u"", 20, u"A", 1, 1, -1, 0, {}}, -5, -1},
      {{2, u"A", 1, u"", 0, u"A", 1, 1, -1, 0, {}}, -5, -1},
      {{2, u"A", 1, u"B", 1, u"D", 1, 1, -1, 0, {}}, -7, -1},
      {{2, u"A", 1, u"B", 1, u"A", 14, 1, -1, 0, {}}, -8, -1},
      {{2, u"A", 1, u"B", 1, u"A", 0, 1, -1, 0, {}}, -8, -1},
      {{2, u"A", 1, u"B", 1, u"A", 1, 31, -1, 0, {}}, -10, -1}};
  for (auto& [date, status, jdn] : rows) {  // the day stays -1 before the last check
    EXPECT_EQ(CheckLksDate(date), status) << testing::PrintToString(LksDateLabel(date));
    EXPECT_TRUE(date.Jdn == jdn && date.Valid == LksFalse);
  }
  EXPECT_TRUE(LunarWeekdayName(30, u"B").empty() && LunarWeekdayName(0, u"A").empty());
}
