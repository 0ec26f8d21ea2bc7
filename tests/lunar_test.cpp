#include <gtest/gtest.h>

#include "lks_date.h"

using namespace Karvel_Sorand;

extern std::size_t allocations;  // allocations.cpp

namespace {

// The calendar as a row of counters, each of which turns the next one on when it runs over. It
// knows lengths only, no day numbers and no divisions.
class Odometer {
 public:
  Odometer() { SetTypes(); }

  const LksDate& Date() const { return date_; }

  void NextDay() {
    ++date_.Day;
    if (++weekday_ > week_lengths_[week_]) {
      weekday_ = 1;
      ++week_;
    }
    if (date_.Day <= (date_.MonthType == u"A" ? 30 : 29)) return;
    date_.Day = 1;
    weekday_ = 1;
    week_ = 0;
    if (++date_.Month > (date_.YearType == u"C" ? 13 : 12)) {
      date_.Month = 1;
      if (++date_.YearInMet > 19) {
        date_.YearInMet = 1;
        if (++date_.MetNum > 341) {
          date_.MetNum = 1;
          ++date_.GMet;
        }
      }
    }
    SetTypes();
  }

  std::u16string_view Weekday() const {
    static constexpr std::u16string_view names[] = {u"",          u"Monday",   u"Tuesday",
                                                    u"Wednesday", u"Thursday", u"Friday",
                                                    u"Saturday",  u"Sunday",   u"Lunaday"};
    return names[weekday_];
  }

 private:
  void SetTypes() {
    // Within a block the 16 cycles repeat; the third block is cut short behind a C.
    const int n = date_.MetNum - 1 - (date_.MetNum > 213 ? 213 : 0);
    const char16_t cycle = date_.MetNum == 212   ? u'C'
                           : date_.MetNum == 213 ? u'A'
                                                 : u"ABAABAABAAABAABA"[n % 16];
    char16_t year = u"?BACCBACABACCBACAAAC"[date_.YearInMet];
    if (cycle == u'B' && date_.YearInMet == 1) year = u'A';
    if (cycle == u'C' && date_.YearInMet == 19) year = u'A';
    const bool long_month = date_.Month == 12 ? year == u'B' : date_.Month % 2 == 1;
    date_.MetType = cycle;
    date_.YearType = year;
    date_.MonthType = long_month ? u'A' : u'B';
    week_lengths_[2] = long_month ? 7 : 6;
  }

  LksDate date_{1, {}, 1, {}, 1, {}, 1, 1, 0, 0, {}};
  int weekday_ = 1;
  int week_ = 0;
  int week_lengths_[4] = {7, 8, 7, 8};
};

// The phase of each day, one digit a day from day 1 on.
std::u16string_view Phase(std::int16_t day) {
  static constexpr std::u16string_view names[] = {u"dark moon",
                                                  u"crescent moon (waxing)",
                                                  u"half moon (1st quarter)",
                                                  u"gibbous moon (waxing)",
                                                  u"full moon",
                                                  u"gibbous moon (waning)",
                                                  u"half moon (3rd quarter)",
                                                  u"crescent moon (waning)"};
  return names["011111223333334555555566777777"[day - 1] - '0'];
}

class Lunar : public testing::Test {
 protected:
  static void SetUpTestSuite() { InitLksTables(); }
};

}  // namespace

TEST_F(Lunar, TablesHoldTogether) {
  EXPECT_EQ(MetCycleCount, 341);
  ASSERT_EQ(MetCycleStart.size(), 343u);
  EXPECT_EQ(MetCycleStart[1], 0);
  EXPECT_EQ(MetCycleStart[212], 1464274);
  EXPECT_EQ(MetCycleStart[342], 2366404);
  EXPECT_EQ(GreatCycleDays, 2366404);
  EXPECT_EQ(Gmet2StartJdn - GreatCycleDays, MinLksJdn);
  EXPECT_EQ(Gmet2StartJdn + GreatCycleDays - 1, MaxLksJdn);
  EXPECT_EQ(MetCycleTypes.substr(192, 21), u"ABAABAABAAABAABAABACA");
}

TEST_F(Lunar, EveryDayThereAndBack) {
  Odometer odometer;
  LksDate date{};
  std::int32_t days = 0;
  std::size_t allocations_before = 0;
  for (std::int32_t jdn = 7333; jdn <= 4740140; ++jdn, ++days, odometer.NextDay()) {
    ASSERT_EQ(JdnToLksDate(jdn, date, true), 0) << jdn;
    ASSERT_TRUE(SameLksDate(date, odometer.Date())) << jdn;
    ASSERT_EQ(date.Jdn, jdn);
    ASSERT_EQ(LunarWeekdayName(date.Day, date.MonthType), odometer.Weekday()) << jdn;
    ASSERT_EQ(MoonPhaseName(date.Day), Phase(date.Day)) << jdn;
    date.Jdn = 0;
    date.Valid = LksFalse;
    ASSERT_EQ(LksDateToJdn(date), jdn);
    ASSERT_EQ(date.Valid, LksTrue);
    ASSERT_EQ(CheckLksDate(date), 0) << jdn;
    ASSERT_EQ(date.Jdn, jdn);
    if (jdn == 7333 + 400) allocations_before = allocations;
  }
  EXPECT_EQ(days, 4732808);
  EXPECT_EQ(odometer.Date().GMet, 3);
  // The label may have had to grow for a longer one, never for each day.
  EXPECT_LE(allocations, allocations_before + 2);
}

TEST_F(Lunar, OfAllCombinationsExactlyTheDaysAreAccepted) {
  std::int32_t accepted = 0;
  LksDate date{};
  // Counts through all fields at once, the day fastest.
  for (std::int32_t n = 0; n < 2 * 343 * 3 * 19 * 3 * 13 * 3 * 30; ++n) {
    std::int32_t rest = n;
    const auto digit = [&rest](std::int32_t base) {
      const std::int32_t value = rest % base;
      rest /= base;
      return static_cast<std::int16_t>(value);
    };
    date.Day = static_cast<std::int16_t>(digit(30) + 1);
    date.MonthType = u"ABC"[digit(3)];
    date.Month = static_cast<std::int16_t>(digit(13) + 1);
    date.YearType = u"ABC"[digit(3)];
    date.YearInMet = static_cast<std::int16_t>(digit(19) + 1);
    date.MetType = u"ABC"[digit(3)];
    date.MetNum = digit(343);
    date.GMet = static_cast<std::int16_t>(digit(2) + 1);
    if (CheckLksDate(date) == 0) ++accepted;
  }
  EXPECT_EQ(accepted, 4732808);
}

TEST_F(Lunar, StatusOfDaysOutside) {
  struct {
    std::int32_t jdn;
    bool before_ce;
    std::int16_t status;
  } const rows[] = {{7332, true, -1},       {-2147483647, true, -1}, {4740141, true, -2},
                    {2147483647, true, -2}, {1721425, false, -3},    {1721426, false, 0},
                    {7332, false, -1},      {4740141, false, -2}};
  for (const auto& row : rows) {
    LksDate date{};
    date.Label = u"old";
    date.Month = 9;
    EXPECT_EQ(JdnToLksDate(row.jdn, date, row.before_ce), row.status) << row.jdn;
    EXPECT_EQ(date.Jdn, row.jdn);
    EXPECT_EQ(date.Valid, row.status == 0 ? LksTrue : LksFalse);
    EXPECT_EQ(date.Label.empty(), row.status != 0);
    EXPECT_EQ(date.Month == 9, row.status != 0);
  }
}

TEST_F(Lunar, StatusOfDatesThatDoNotExist) {
  constexpr std::int32_t Unchanged = -1;
  struct {
    LksDate date;
    std::int16_t status;
    std::int32_t jdn;
  } rows[] = {
      {{2, u"A", 1, u"B", 1, u"B", 12, 29, -1, 0, {}}, -6, 2374090},
      {{2, u"A", 1, u"A", 2, u"B", 12, 30, -1, 0, {}}, -6, 2374446},
      {{2, u"A", 1, u"A", 2, u"A", 13, 1, -1, 0, {}}, -6, 2374446},
      {{2, u"C", 212, u"A", 19, u"A", 13, 1, -1, 0, {}}, -6, 3844921},
      {{2, u"A", 1, u"B", 1, u"C", 1, 1, -1, 0, {}}, -6, 2373737},
      {{3, u"A", 341, u"C", 19, u"A", 13, 30, -1, 0, {}}, -6, 2373736},
      {{0, u"A", 1, u"B", 1, u"A", 1, 1, -1, 0, {}}, -6, 7333},
      {{2, u"A", 0, u"A", 1, u"A", 1, 1, -1, 0, {}}, -3, Unchanged},
      {{2, u"A", -32768, u"A", 1, u"A", 1, 1, -1, 0, {}}, -3, Unchanged},
      {{2, u"A", 342, u"A", 1, u"A", 1, 1, -1, 0, {}}, -3, Unchanged},
      {{2, u"A", 2, u"A", 1, u"A", 1, 1, -1, 0, {}}, -4, Unchanged},
      {{2, u"@", 1, u"B", 1, u"A", 1, 1, -1, 0, {}}, -4, Unchanged},
      {{2, u"A", 1, u"A", 1, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"", 20, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"B", 0, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"B", -5, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"B", 1, u"", 1, 1, -1, 0, {}}, -7, Unchanged},
      {{2, u"A", 1, u"B", 1, u"D", 1, 1, -1, 0, {}}, -7, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 0, 1, -1, 0, {}}, -8, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 14, 1, -1, 0, {}}, -8, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 1, 0, -1, 0, {}}, -10, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 1, 31, -1, 0, {}}, -10, Unchanged},
  };
  for (auto& row : rows) {
    EXPECT_EQ(CheckLksDate(row.date), row.status) << LksDateLabel(row.date).size();
    EXPECT_EQ(row.date.Jdn, row.jdn);
    EXPECT_EQ(row.date.Valid, LksFalse);
  }
}

TEST_F(Lunar, Labels) {
  struct {
    std::int32_t jdn;
    std::u16string_view label;
  } const rows[] = {
      {7687, u"GMet-1 MA-1 LYB-1 LA-12 30 day (Lunaday) 30/30 crescent moon (waning)"},
      {2374476, u"GMet-2 MA-1 LYC-3 LB-2 1 day (Monday) 1/29 dark moon"},
      {2451545, u"GMet-2 MB-12 LYC-4 LA-13 26 day (Thursday) 26/30 crescent moon (waning)"},
      {3844920, u"GMet-2 MC-212 LYA-19 LB-12 29 day (Lunaday) 29/29 crescent moon (waning)"},
  };
  for (const auto& row : rows) {
    LksDate date{};
    JdnToLksDate(row.jdn, date, true);
    EXPECT_EQ(date.Label, row.label);
  }
  // Outside the calendar a name is empty, or that of the nearest row.
  EXPECT_EQ(WeekdayNumberName(0), u"");
  EXPECT_EQ(WeekdayNumberName(9), u"");
  EXPECT_EQ(LunarWeekdayName(30, u"B"), u"");
  EXPECT_EQ(LunarWeekdayName(0, u"A"), u"");
  EXPECT_EQ(LunarWeekdayName(1, u"C"), u"");
  EXPECT_EQ(MonthLength(u"C"), 29);
  EXPECT_EQ(MoonPhaseName(0), u"crescent moon (waxing)");
}
