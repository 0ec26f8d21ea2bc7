// Today's date. These are inline so that only a program that asks for today must define SystemDate.
#pragma once

#include <string>
#include <string_view>

#include "decimal.h"
#include "euro_date.h"

namespace DatePr2 {

// The local date of the system as a text of the form mm-dd-yyyy. The program defines it at its
// entry point, a test defines its own.
std::u16string SystemDate();

// Fills `date` with the system's local date, asking for it at every call.
inline void GetToday(EuroDate& date) {
  const std::u16string text = SystemDate();
  const std::u16string_view today = text;
  date.month = StrProc::DecimalValue(today.substr(0, 2));
  date.day = StrProc::DecimalValue(today.substr(3, 2));
  date.year = StrProc::DecimalValue(today.substr(6));
  date.calendar = GregorianCalendar;
  EuroDateToJdn(date);
}

// The JDN of today.
inline std::int32_t TodayJdn() {
  EuroDate date{};
  GetToday(date);
  return date.jdn;
}

}  // namespace DatePr2
