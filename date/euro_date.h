// The Gregorian side: names of months and weekdays, and dates as text. The arithmetic is the
// calendar library's. The form writes dates in the order year, month, day, years ungrouped and
// names unpadded; it does not use the other forms.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "calendar_library.h"

namespace DatePr2 {

// Fills the module values below. To be called once at start-up; they do not change afterwards.
// Until then they are empty or 0: a table at namespace scope that is built from them would silently
// copy that.
void InitDateTables();

// Entries 1 to 12, "January" to "December"; entry 0 is not used.
extern const std::array<std::u16string_view, 13>& MonthNames;

// In which order DateText writes the fields of a date.
extern const std::int16_t& DateOrderMDY;  // 0: month, day, year
extern const std::int16_t& DateOrderDMY;  // 1: day, month, year
extern const std::int16_t& DateOrderYMD;  // 2: year, month, day

// Sets `jdn` and `valid` of `date` from its other fields: euro_date_to_jdn.
inline void EuroDateToJdn(EuroDate& date) {
  euro_date_to_jdn(&date);
}

// Sets `year`, `month` and `day` of `date` from its `jdn` and `calendar`: jdn_to_euro_date.
inline void JdnToEuroDate(EuroDate& date) {
  jdn_to_euro_date(&date);
}

// The English name of weekday `number`, 0 being Sunday; empty for a number outside 0 to 6. With
// `padded`, filled at the right with spaces to nine characters, the length of "Wednesday".
std::u16string WeekdayName(std::int16_t number, bool padded);

// The same for the weekday of day `jdn`.
std::u16string DayOfWeekName(std::int32_t jdn, bool padded);

// `date` as numbers: day and month with two digits at least, the year in plain decimal with a
// leading "-" if negative, in the order `order`, joined by `separator`. A negative year that does
// not come first is in brackets. A year above 9999 or below -9999 is grouped with the first
// character of `thousands_separator`, cut to 8 bits, unless that is empty.
std::u16string DateText(const EuroDate& date, std::int16_t order, std::u16string_view separator,
                        std::u16string_view thousands_separator);

// The number `year_text` with the first character of `separator`, cut to 8 bits, between groups of
// three digits; the text itself if `separator` is empty.
std::u16string SeparateThousands(std::u16string_view year_text, std::u16string_view separator);

// Cuts `text` before its first null character, if it has one.
void TrimAtNul(std::u16string& text);

}  // namespace DatePr2
