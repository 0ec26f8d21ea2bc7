#include "lks_date.h"
#include "text_printer.h"

using namespace Karvel_Sorand;

struct Lunar : testing::Test {
  Lunar() { InitLksTables(); }
};

// Walks through the calendar by its lengths alone: all its units, one inside the other.
TEST_F(Lunar, EveryDayThereAndBack) {
  const std::u16string block16 = u"ABAABAABAAABAABA";
  const std::u16string block64 = block16 + block16 + block16 + block16;
  const std::u16string block21 = block16 + u"ABACA";
  const std::u16string cycles = block64 + block64 + block64 + block21 + block64 + block64;
  const std::u16string_view years[] = {u"BACCBACABACCBACAAAC", u"AACCBACABACCBACAAAC",
                                       u"BACCBACABACCBACAAAA"};
  std::int32_t jdn = 7333;
  LksDate date{};
  LksDate there{};
  for (date.GMet = 1; date.GMet <= 2; ++date.GMet) {
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
            ASSERT_TRUE(SameLksDate(there, date)) << jdn;
            ASSERT_TRUE(there.Jdn == jdn && date.Jdn == jdn) << jdn;
            ASSERT_TRUE(there.Valid == LksTrue && date.Valid == LksTrue) << jdn;
            ASSERT_EQ(CheckLksDate(date), 0) << jdn;
            ++jdn;
          }
        }
      }
    }
  }
  EXPECT_EQ(jdn, 4740141);
}

TEST_F(Lunar, OfAllCombinationsExactlyTheDaysAreAccepted) {
  std::int32_t accepted = 0;
  LksDate date{};
  for (date.MetType = u'A'; date.MetType <= u"C"; ++date.MetType.front())
    for (date.YearType = u'A'; date.YearType <= u"C"; ++date.YearType.front())
      for (date.MonthType = u'A'; date.MonthType <= u"C"; ++date.MonthType.front())
        for (date.GMet = 1; date.GMet <= 2; ++date.GMet)
          for (date.MetNum = 0; date.MetNum <= 342; ++date.MetNum)
            for (date.YearInMet = 1; date.YearInMet <= 19; ++date.YearInMet)
              for (date.Month = 1; date.Month <= 13; ++date.Month)
                for (date.Day = 1; date.Day <= 30; ++date.Day)
                  if (CheckLksDate(date) == 0) ++accepted;
  EXPECT_EQ(accepted, 4732808);
}

TEST_F(Lunar, DaysOutsideTheCalendar) {
  LksDate date{};
  EXPECT_EQ(JdnToLksDate(1721426, date, false), 0);
  EXPECT_EQ(JdnToLksDate(1721425, date, false), -3);
  EXPECT_EQ(JdnToLksDate(4740141, date, true), -2);
  EXPECT_EQ(JdnToLksDate(7332, date, false), -1);
  EXPECT_EQ(date.Jdn, 7332);
  EXPECT_EQ(date.Valid, LksFalse);
  EXPECT_EQ(date.Label, u"");
  // Not asked for by anyone, and yet not to be looked up outside the tables.
  LksDate beyond{2, u"A", -9, u"B", -9, u"A", -9, 1, 0, 0, u""};
  EXPECT_EQ(LksDateToJdn(beyond), 2373737);
}

TEST_F(Lunar, StatusOfDates) {
  // The day stays -1 before the last check.
  const std::tuple<LksDate, std::int16_t, std::int32_t> rows[] = {
      {{2, u"A", 342, u"A", 1, u"A", 1, 1, -1, 1, u""}, -3, -1},
      {{2, u"A", 1, u"A", 1, u"A", 1, 1, -1, 1, u""}, -5, -1},
      {{2, u"A", 1, u"", 20, u"A", 1, 1, -1, 1, u""}, -5, -1},
      {{2, u"A", 1, u"", 0, u"A", 1, 1, -1, 1, u""}, -5, -1},
      {{2, u"A", 1, u"B", 1, u"@", 1, 1, -1, 1, u""}, -7, -1},
      {{2, u"A", 1, u"B", 1, u"D", 1, 1, -1, 1, u""}, -7, -1},
      {{2, u"A", 1, u"B", 1, u"A", 0, 1, -1, 1, u""}, -8, -1},
      {{2, u"A", 1, u"B", 1, u"A", 14, 1, -1, 1, u""}, -8, -1},
      {{2, u"A", 1, u"B", 1, u"A", 1, 0, -1, 1, u""}, -10, -1},
      {{2, u"A", 1, u"B", 1, u"A", 1, 31, -1, 1, u""}, -10, -1},
      {{2, u"A", 1, u"B", 1, u"C", 1, 1, -1, 1, u""}, -6, 2373737},
      {{2, u"A", 1, u"B", 1, u"B", 12, 29, -1, 1, u""}, -6, 2374090},
      {{2, u"A", 1, u"B", 1, u"A", 13, 1, -1, 1, u""}, -6, 2374092},
      {{3, u"A", 341, u"C", 19, u"A", 13, 30, -1, 1, u""}, -6, 2373736},
  };
  for (auto [date, status, jdn] : rows) {
    SCOPED_TRACE(testing::PrintToString(LksDateLabel(date)));
    EXPECT_EQ(CheckLksDate(date), status);
    EXPECT_EQ(date.Jdn, jdn);
    EXPECT_EQ(date.Valid, LksFalse);
  }
}

TEST_F(Lunar, WeekdaysAndPhases) {
  std::u16string in_a;
  std::u16string in_b;
  for (std::int16_t day = 0; day <= 31; ++day) {
    in_a.append(LunarWeekdayName(day, u"A")).append(u" ");
    in_b.append(LunarWeekdayName(day, u"B")).append(u" ");
  }
  const std::u16string week6 = u"Monday Tuesday Wednesday Thursday Friday Saturday ";
  const std::u16string week7 = week6 + u"Sunday ";
  const std::u16string week8 = week7 + u"Lunaday ";
  EXPECT_EQ(in_a, u" " + week7 + week8 + week7 + week8 + u" ");  // no day 0, no day 31
  EXPECT_EQ(in_b, u" " + week7 + week8 + week6 + week8 + u"  ");

  const std::tuple<std::int16_t, std::int16_t, std::u16string_view> phases[] = {
      {0, 0, u"crescent moon (waxing)"},   {1, 1, u"dark moon"},
      {2, 6, u"crescent moon (waxing)"},   {7, 8, u"half moon (1st quarter)"},
      {9, 14, u"gibbous moon (waxing)"},   {15, 15, u"full moon"},
      {16, 22, u"gibbous moon (waning)"},  {23, 24, u"half moon (3rd quarter)"},
      {25, 31, u"crescent moon (waning)"},
  };
  for (const auto& [first_day, last_day, name] : phases) {
    for (std::int16_t day = first_day; day <= last_day; ++day) {
      EXPECT_EQ(MoonPhaseName(day), name) << day;
    }
  }
}
