#include <gtest/gtest.h>

#include "decimal.h"
#include "lks_date.h"

using namespace Karvel_Sorand;
using StrProc::Decimal;

struct Lunar : testing::Test {
  Lunar() { InitLksTables(); }
};

// Walks through the calendar by its lengths alone: all its units, one inside the other.
TEST_F(Lunar, EveryDayThereAndBack) {
  const std::u16string block16 = u"ABAABAABAAABAABA";
  const std::u16string block64 = block16 + block16 + block16 + block16;
  const std::u16string cycles =
      block64 + block64 + block64 + block16 + u"ABACA" + block64 + block64;
  const std::u16string years[] = {u"BACCBACABACCBACAAAC", u"AACCBACABACCBACAAAC",
                                  u"BACCBACABACCBACAAAA"};
  std::int32_t jdn = 7333;
  LksDate date, there;
  for (date.GMet = 1; date.GMet <= GreatCycleCount; ++date.GMet) {
    date.MetNum = 0;
    for (const char16_t met_type : cycles) {
      ++date.MetNum;
      date.MetType = met_type;
      date.YearInMet = 0;
      for (const char16_t year_type : years[met_type - u'A']) {
        ++date.YearInMet;
        date.YearType = year_type;
        for (date.Month = 1; date.Month <= (year_type == u'C' ? 13 : 12); ++date.Month) {
          const bool is_long = date.Month == 12 ? year_type == u'B' : date.Month % 2 == 1;
          date.MonthType = is_long ? u'A' : u'B';
          for (date.Day = 1; date.Day <= (is_long ? 30 : 29); ++date.Day) {
            date.Valid = LksFalse;
            ASSERT_FALSE(SameLksDate(there, date)) << jdn;  // yesterday
            ASSERT_EQ(JdnToLksDate(jdn, there, true), 0) << jdn;
            ASSERT_EQ(LksDateToJdn(date), jdn) << testing::PrintToString(date.Label);
            ASSERT_EQ(there.Label, date.Label) << jdn;
            ASSERT_TRUE(there.Jdn == jdn && there.Valid == LksTrue && date.Valid == LksTrue) << jdn;
            ASSERT_EQ(CheckLksDate(date), 0) << jdn;
            ++jdn;
          }
          const std::u16string last_day =
              u"GMet-" + Decimal(date.GMet) + u" M" + met_type + u"-" + Decimal(date.MetNum) +
              u" LY" + year_type + u"-" + Decimal(date.YearInMet) + u" L" + date.MonthType + u"-" +
              Decimal(date.Month) +
              (is_long ? u" 30 day (Lunaday) 30/30" : u" 29 day (Lunaday) 29/29");
          ASSERT_EQ(date.Label, last_day + u" crescent moon (waning)");
        }
      }
    }
  }
  EXPECT_EQ(jdn, MaxLksJdn + 1);
}

TEST_F(Lunar, OfAllCombinationsExactlyTheDaysAreAccepted) {
  std::int32_t accepted = 0;
  LksDate date{};
  for (date.MetType = u'A'; date.MetType <= u"C"; ++date.MetType.front())
    for (date.YearType = u'A'; date.YearType <= u"C"; ++date.YearType.front())
      for (date.MonthType = u'A'; date.MonthType <= u"B"; ++date.MonthType.front())
        for (date.GMet = 1; date.GMet <= GreatCycleCount; ++date.GMet)
          for (date.MetNum = 0; date.MetNum <= 342; ++date.MetNum)
            for (date.YearInMet = 0; date.YearInMet <= 20; ++date.YearInMet)
              for (date.Month = 0; date.Month <= 14; ++date.Month)
                for (date.Day = 0; date.Day <= 31; ++date.Day)
                  if (CheckLksDate(date) == 0) ++accepted;
  EXPECT_EQ(accepted, GreatCycleCount * 2366404);
}

TEST_F(Lunar, DaysOutsideTheCalendar) {
  LksDate date{};
  EXPECT_EQ(JdnToLksDate(1721426, date, false), 0);
  EXPECT_EQ(JdnToLksDate(1721425, date, false), -3);
  EXPECT_EQ(JdnToLksDate(MaxLksJdn + 1, date, true), -2);
  EXPECT_EQ(JdnToLksDate(7332, date, false), -1);
  EXPECT_TRUE(date.Jdn == 7332 && date.Valid == LksFalse && date.Label.empty());
  // Not asked for by anyone, and yet not to be looked up outside the tables.
  LksDate beyond{2, u"A", -9, u"B", -9, u"A", -9, 1, 0, 0, u""};
  EXPECT_EQ(LksDateToJdn(beyond), 2373737);
}

TEST_F(Lunar, WeekdaysAndPhases) {
  std::u16string in_a, in_b, phases, phase;
  for (std::int16_t day = 0; day <= 31; ++day) {
    in_a.append(LunarWeekdayName(day, u"A")).append(u" ");
    in_b.append(LunarWeekdayName(day, u"B")).append(u" ");
    if (MoonPhaseName(day) == phase) continue;
    phase = MoonPhaseName(day);
    phases += Decimal(day) + u" " + phase + u", ";
  }
  const std::u16string week6 = u"Monday Tuesday Wednesday Thursday Friday Saturday ";
  const std::u16string week7 = week6 + u"Sunday ";
  const std::u16string week8 = week7 + u"Lunaday ";
  EXPECT_EQ(in_a, u" " + week7 + week8 + week7 + week8 + u" ");  // no day 0, no day 31
  EXPECT_EQ(in_b, u" " + week7 + week8 + week6 + week8 + u"  ");
  EXPECT_EQ(phases,
            u"0 crescent moon (waxing), 1 dark moon, 2 crescent moon (waxing), "
            u"7 half moon (1st quarter), 9 gibbous moon (waxing), 15 full moon, "
            u"16 gibbous moon (waning), 23 half moon (3rd quarter), 25 crescent moon (waning), ");
}
