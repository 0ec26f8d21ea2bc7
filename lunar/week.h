// The 7/8-day week. It starts afresh on a Monday with every month, so the weekday follows from the
// day of the month and the month's type alone. A month of type A (30 days) has weeks of 7, 8, 7
// and 8 days, a month of type B (29 days) of 7, 8, 6 and 8. The eighth day of a week is Lunaday.
#pragma once

#include <cstdint>
#include <string_view>

namespace Karvel_Sorand {

// The name of weekday `n`, 1 being Monday, 7 Sunday and 8 Lunaday; empty for any other number.
std::u16string_view WeekdayNumberName(std::int16_t n);

// The weekday of day `day` of a month of type `monthType`; empty where there is no such day, and
// for a type other than "A" and "B".
std::u16string_view LunarWeekdayName(std::int16_t day, std::u16string_view monthType);

// The days of a month: 30 for type "A", 29 for any other text.
std::int16_t MonthLength(std::u16string_view monthType);

}  // namespace Karvel_Sorand
