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

class Lunar : public testing::Test {
 protected:
  static void SetUpTestSuite() { InitLksTables(); }

  // The day `jdn` must have the date `expected`, there and back.
  void Check(std::int32_t jdn, const LksDate& expected) {
    ASSERT_EQ(JdnToLksDate(jdn, date_, true), 0) << jdn;
    ASSERT_TRUE(SameLksDate(date_, expected) && date_.Jdn == jdn) << jdn;
    const auto at = static_cast<std::size_t>(expected.Day) - 1;
    const char weekday = (expected.MonthType == u"A" ? WeekdayInA : WeekdayInB)[at];
    ASSERT_EQ(LunarWeekdayName(date_.Day, date_.MonthType), Weekdays[weekday - '0']) << jdn;
    ASSERT_EQ(MoonPhaseName(date_.Day), Phases[PhaseOfDay[at] - '0']) << jdn;
    date_.Jdn = 0;
    ASSERT_TRUE(LksDateToJdn(date_) == jdn && date_.Jdn == jdn) << jdn;
    ASSERT_TRUE(CheckLksDate(date_) == 0 && date_.Valid == LksTrue) << jdn;
  }
  LksDate date_{};
};

}  // namespace

// Walks through the calendar by its lengths alone: all its units, one inside the other.
TEST_F(Lunar, EveryDayThereAndBack) {
  const std::u16string block16 = u"ABAABAABAAABAABA",
                       block64 = block16 + block16 + block16 + block16;
  const std::u16string cycles =
      block64 + block64 + block64 + block16 + u"ABACA" + block64 + block64;
  std::int32_t jdn = 7333;
  date_.Label.reserve(100);
  const char16_t* const memory = date_.Label.data();
  for (std::int16_t gmet = 1; gmet <= 2; ++gmet) {
    for (std::int16_t met = 1; met <= 341; ++met) {
      const char16_t cycle = cycles[std::size_t(met) - 1];
      for (std::int16_t y = 1; y <= 19; ++y) {
        char16_t year = u"?BACCBACABACCBACAAAC"[y];
        if ((cycle == u'B' && y == 1) || (cycle == u'C' && y == 19)) year = u'A';
        for (std::int16_t m = 1; m <= (year == u'C' ? 13 : 12); ++m) {
          const bool is_long = m == 12 ? year == u'B' : m % 2 == 1;
          LksDate date{gmet, {cycle}, met, {year}, y, {is_long ? u'A' : u'B'}, m, 1, 0, 0, {}};
          for (; date.Day <= (is_long ? 30 : 29); ++date.Day) {
            ASSERT_NO_FATAL_FAILURE(Check(jdn++, date));
          }
        }
      }
    }
  }
  EXPECT_EQ(jdn, 4740141);
  EXPECT_EQ(date_.Label.data(), memory);  // a record that is used again allocates nothing
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

TEST_F(Lunar, StatusOfDays) {
  const std::tuple<std::int32_t, bool, int> rows[] = {
      {7332, true, -1}, {4740141, true, -2}, {1721425, false, -3}, {1721426, false, 0}};
  for (const auto& [jdn, before_ce, status] : rows) {
    date_.Label = u"old";
    EXPECT_EQ(JdnToLksDate(jdn, date_, before_ce), status);
    EXPECT_TRUE(date_.Jdn == jdn && date_.Valid == (status == 0 ? LksTrue : LksFalse)) << jdn;
    EXPECT_EQ(date_.Label, status != 0 ? u""
                                       : u"GMet-1 MA-248 LYB-1 LA-1 21 day (Saturday) "
                                         u"21/30 gibbous moon (waning)");
  }
}

TEST_F(Lunar, StatusOfDates) {
  constexpr std::int32_t Unchanged = -1;
  std::tuple<LksDate, int, std::int32_t> rows[] = {
      {{2, u"A", 1, u"B", 1, u"B", 12, 29, -1, 0, {}}, -6, 2374090},
      {{2, u"A", 1, u"B", 1, u"A", 13, 1, -1, 0, {}}, -6, 2374092},
      {{2, u"C", 212, u"A", 19, u"A", 13, 1, -1, 0, {}}, -6, 3844921},
      {{3, u"A", 341, u"C", 19, u"A", 13, 30, -1, 0, {}}, -6, 2373736},
      {{2, u"A", 342, u"A", 1, u"A", 1, 1, -1, 0, {}}, -3, Unchanged},
      {{2, u"@", 1, u"B", 1, u"A", 1, 1, -1, 0, {}}, -4, Unchanged},
      {{2, u"A", 1, u"A", 1, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"", 20, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"B", -5, u"A", 1, 1, -1, 0, {}}, -5, Unchanged},
      {{2, u"A", 1, u"B", 1, u"", 1, 1, -1, 0, {}}, -7, Unchanged},
      {{2, u"A", 1, u"B", 1, u"D", 1, 1, -1, 0, {}}, -7, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 0, 1, -1, 0, {}}, -8, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 14, 1, -1, 0, {}}, -8, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 1, 0, -1, 0, {}}, -10, Unchanged},
      {{2, u"A", 1, u"B", 1, u"A", 1, 31, -1, 0, {}}, -10, Unchanged}};
  for (auto& [date, status, jdn] : rows) {
    EXPECT_EQ(CheckLksDate(date), status) << testing::PrintToString(LksDateLabel(date));
    EXPECT_TRUE(date.Jdn == jdn && date.Valid == LksFalse);
  }
  EXPECT_EQ(LunarWeekdayName(30, u"B"), u"");
  EXPECT_EQ(LunarWeekdayName(0, u"A"), u"");
  EXPECT_EQ(LunarWeekdayName(1, u"C"), u"");
  EXPECT_EQ(WeekdayNumberName(9), u"");
}
