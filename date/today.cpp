#include "decimal.h"
#include "euro_date.h"

namespace DatePr2 {

std::u16string (*SystemDate)() = nullptr;

void EuroDateToJdn(EuroDate& date) {
  euro_date_to_jdn(&date);
}

void JdnToEuroDate(EuroDate& date) {
  jdn_to_euro_date(&date);
}

void GetToday(EuroDate& date) {
  const std::u16string text = SystemDate();
  const std::u16string_view today = text;
  date.month = StrProc::DecimalValue(today.substr(0, 2));
  date.day = StrProc::DecimalValue(today.substr(3, 2));
  date.year = StrProc::DecimalValue(today.substr(6));
  date.calendar = GregorianCalendar;
  EuroDateToJdn(date);
}

std::int32_t TodayJdn() {
  EuroDate date{};
  GetToday(date);
  return date.jdn;
}

}  // namespace DatePr2
