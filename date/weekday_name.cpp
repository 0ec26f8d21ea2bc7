#include <cstddef>

#include "euro_date.h"

namespace DatePr2 {

std::u16string WeekdayName(std::int16_t number, bool padded) {
  static constexpr std::array<std::u16string_view, 7> Names = {
      u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
  constexpr std::size_t LongestName = 9;
  std::u16string name;
  if (number >= 0 && number <= 6) name = Names[static_cast<std::size_t>(number)];
  if (padded) name.resize(LongestName, u' ');
  return name;
}

std::u16string DayOfWeekName(std::int32_t jdn, bool padded) {
  return WeekdayName(static_cast<std::int16_t>(euro_day_of_week(jdn)), padded);
}

}  // namespace DatePr2
