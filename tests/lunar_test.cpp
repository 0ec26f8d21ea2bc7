#include <gtest/gtest.h>

#include "decimal.h"
#include "lks_date.h"

using namespace Karvel_Sorand;

struct Lunar : testing::Test {
  Lunar() { InitLksTables(); }
};

// Walks through all units of the calendar by their lengths, one inside the other.
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
        }
      }
    }
  }
  EXPECT_EQ(jdn, MaxLksJdn + 1);
}

TEST_F(Lunar, RefusesDatesAndAddsThemUp) {
  const struct {
    LksDate date;
    int status;
    std::int32_t jdn;  // 0 where the check ends before it
  } rows[] = {
      {{2, u"A", 1, u"A", 1, u"A", 1, 1, 0, 0, {}}, -5, 0},
      {{2, u"A", 1, u"B", 20, u"A", 1, 1, 0, 0, {}}, -5, 0},
      {{2, u"A", 1, u"B", 1, u"D", 1, 1, 0, 0, {}}, -7, 0},
      {{2, u"A", 1, u"B", 1, u"C", 1, 1, 0, 0, {}}, -6, 2373737},
      {{2, u"A", 1, u"B", 1, u"A", 14, 1, 0, 0, {}}, -8, 0},
      {{2, u"A", 1, u"B", 1, u"A", 1, 31, 0, 0, {}}, -10, 0},
      {{2, u"A", 1, u"B", 1, u"B", 2, 30, 0, 0, {}}, -6, 2373796},
      {{2, u"A", 1, u"B", 1, u"A", 13, 1, 0, 0, {}}, -6, 2374092},
      {{3, u"A", 341, u"C", 19, u"A", 13, 30, 0, 0, {}}, -6, 2373736},
  };
  for (LksDate date; const auto& row : rows) {
    date = row.date;
    SCOPED_TRACE(testing::PrintToString(LksDateLabel(date)));
    EXPECT_EQ(CheckLksDate(date), row.status);
    EXPECT_EQ(date.Jdn, row.jdn);
    EXPECT_EQ(date.Valid, LksFalse);
  }
}

TEST_F(Lunar, WeekdaysAndPhases) {
  std::u16string in_a, in_b, phases, phase;
  for (std::int16_t day = 0; day <= 31; ++day) {
    in_a.append(LunarWeekdayName(day, u"A")).append(u" ");
    in_b.append(LunarWeekdayName(day, u"B")).append(u" ");
    if (MoonPhaseName(day) == phase) continue;
    phase = MoonPhaseName(day);
    phases += StrProc::Decimal(day) + u" " + phase + u", ";
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
