#include <cstddef>

#include "lks_internal.h"

namespace Karvel_Sorand {

namespace {

std::int16_t FirstFailedCheck(LksDate& date) {
  if (date.MetNum < 1 || date.MetNum > MetCycleCount) return LksWrongMetNum;
  const auto cycle = static_cast<std::size_t>(date.MetNum);
  if (date.MetType != std::u16string_view(MetCycleTypes).substr(cycle - 1, 1))
    return LksWrongMetType;

  if (date.YearInMet < 1 || date.YearInMet > YearsInMetCycle) return LksWrongYear;
  const std::u16string_view pattern = YearsOf(date.MetType).types;
  if (date.YearType != pattern.substr(static_cast<std::size_t>(date.YearInMet) - 1, 1))
    return LksWrongYear;

  // "C" is the type of no month; the last check refuses it.
  if (date.MonthType < u"A" || date.MonthType > u"C") return LksWrongMonthType;
  if (date.Month < 1 || date.Month > MostMonths) return LksWrongMonth;
  if (date.Day < 1 || date.Day > 30) return LksWrongDay;

  // No checks of month length, type or month 13 of their own: a date that does not exist adds up to
  // a day that has another date.
  LksDate other{};
  JdnToLksFields(LksDateToJdn(date), other, true);
  return SameLksDate(date, other) ? 0 : LksNoSuchDate;
}

}  // namespace

std::int16_t CheckLksDate(LksDate& date) {
  const std::int16_t status = FirstFailedCheck(date);
  date.Valid = status == 0 ? LksTrue : LksFalse;
  return status;
}

bool SameLksDate(const LksDate& a, const LksDate& b) {
  return a.GMet == b.GMet && a.MetType == b.MetType && a.MetNum == b.MetNum &&
         a.YearType == b.YearType && a.YearInMet == b.YearInMet && a.MonthType == b.MonthType &&
         a.Month == b.Month && a.Day == b.Day;
}

}  // namespace Karvel_Sorand
