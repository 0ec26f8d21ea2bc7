#include <array>
#include <cstddef>

#include "lks_date.h"

namespace Karvel_Sorand {

std::u16string_view WeekdayNumberName(std::int16_t n) {
  static constexpr std::array<std::u16string_view, 8> Names = {
      u"Monday", u"Tuesday",  u"Wednesday", u"Thursday",
      u"Friday", u"Saturday", u"Sunday",    u"Lunaday"};
  if (n < 1 || n > 8) return {};
  return Names[static_cast<std::size_t>(n) - 1];
}

std::u16string_view LunarWeekdayName(std::int16_t day, std::u16string_view monthType) {
  if (monthType != u"A" && monthType != u"B") return {};
  // The last day before each of the four weeks; the third week of a month of type B has six days.
  const std::int16_t before_4th = monthType == u"A" ? 22 : 21;
  const int before = day <= 7 ? 0 : day <= 15 ? 7 : day <= before_4th ? 15 : before_4th;
  return WeekdayNumberName(static_cast<std::int16_t>(day - before));
}

std::int16_t MonthLength(std::u16string_view monthType) {
  return monthType == u"A" ? 30 : 29;
}

}  // namespace Karvel_Sorand
