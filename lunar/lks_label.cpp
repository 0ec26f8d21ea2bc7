#include <charconv>
#include <iterator>

#include "lks_date.h"

namespace Karvel_Sorand {

namespace {

using namespace std::string_view_literals;

void Append(std::u16string& text, std::u16string_view piece) {
  text.append(piece);
}

void Append(std::u16string& text, std::int16_t number) {
  char digits[6];  // the longest is "-32768"
  text.append(std::begin(digits), std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

// Literals come as ""sv: a bare one would be measured at every call.
template <typename... Pieces>
std::u16string Join(const Pieces&... pieces) {
  std::u16string text;
  text.reserve(100);  // more than any label of the calendar needs
  (Append(text, pieces), ...);
  return text;
}

}  // namespace

std::u16string LksDateLabel(const LksDate& date) {
  return Join(u"GMet-"sv, date.GMet, u" M"sv, date.MetType, u"-"sv, date.MetNum, u" LY"sv,
              date.YearType, u"-"sv, date.YearInMet, u" L"sv, date.MonthType, u"-"sv, date.Month,
              u" "sv, date.Day, u" day ("sv, LunarWeekdayName(date.Day, date.MonthType), u") "sv,
              date.Day, u"/"sv, MonthLength(date.MonthType), u" "sv, MoonPhaseName(date.Day));
}

}  // namespace Karvel_Sorand
