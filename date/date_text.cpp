#include <cstddef>

#include "decimal.h"
#include "euro_date.h"

namespace DatePr2 {

namespace {

std::u16string TwoDigits(std::int32_t number) {
  std::u16string text = StrProc::Decimal(number);
  if (text.size() < 2) text.insert(0, 1, u'0');
  return text;
}

}  // namespace

std::u16string DateText(const EuroDate& date, std::int16_t order, std::u16string_view separator,
                        std::u16string_view thousands_separator) {
  const std::u16string day = TwoDigits(date.day);
  const std::u16string month = TwoDigits(date.month);
  std::u16string year = StrProc::Decimal(date.year);
  if (date.year > 9999 || date.year < -9999) year = SeparateThousands(year, thousands_separator);
  if (date.year < 0 && order != DateOrderYMD) year = u"(" + year + u")";

  const auto join = [separator](std::u16string first, const std::u16string& second,
                                const std::u16string& third) {
    return first.append(separator).append(second).append(separator).append(third);
  };
  if (order == DateOrderYMD) return join(year, month, day);
  if (order == DateOrderDMY) return join(day, month, year);
  return join(month, day, year);
}

std::u16string SeparateThousands(std::u16string_view year_text, std::u16string_view separator) {
  if (separator.empty()) return std::u16string(year_text);
  std::string number;  // digits and "-" only, the same codes in 8 bits
  for (const char16_t c : year_text) number.push_back(static_cast<char>(c));
  std::string buffer(20, ' ');
  separate_thousands(number.c_str(), separator.front(), buffer.data());
  std::u16string text;
  for (const char c : buffer) text.push_back(static_cast<unsigned char>(c));
  TrimAtNul(text);
  return text;
}

void TrimAtNul(std::u16string& text) {
  const std::size_t end = text.find(u'\0');
  if (end != text.npos) text.resize(end);
}

}  // namespace DatePr2
