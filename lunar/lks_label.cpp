#include "decimal.h"
#include "lks_steps.h"

namespace Karvel_Sorand {

namespace {

using namespace std::string_view_literals;

// A literal is to come as ""sv, which carries its length; a bare one is counted every time.
void Append(std::u16string& text, std::u16string_view piece) {
  text.append(piece);
}

// The numbers of the calendar have three digits at most: written in place they take a fraction of
// the time.
void Append(std::u16string& text, std::int16_t number) {
  if (number < 0 || number > 999) return Append(text, StrProc::Decimal(number));
  if (number > 99) text.push_back(static_cast<char16_t>(u'0' + number / 100));
  if (number > 9) text.push_back(static_cast<char16_t>(u'0' + number / 10 % 10));
  text.push_back(static_cast<char16_t>(u'0' + number % 10));
}

template <typename... Pieces>
void AppendAll(std::u16string& text, const Pieces&... pieces) {
  (Append(text, pieces), ...);
}

// The end of a label, such as " 16 day (Monday) 16/30 gibbous moon (waning)".
std::u16string DayText(std::int16_t day, std::u16string_view month_type) {
  std::u16string text;
  AppendAll(text, u" "sv, day, u" day ("sv, LunarWeekdayName(day, month_type), u") "sv, day, u"/"sv,
            MonthLength(month_type), u" "sv, MoonPhaseName(day));
  return text;
}

// Those of the days 0 to 30.
std::vector<std::u16string> DayTexts(std::u16string_view month_type) {
  std::vector<std::u16string> texts;
  for (std::int16_t day = 0; day <= 30; ++day) texts.push_back(DayText(day, month_type));
  return texts;
}

}  // namespace

void WriteLksDateLabel(const LksDate& date, std::u16string& label) {
  label.clear();
  label.reserve(100);  // more than any label of the calendar needs
  AppendAll(label, u"GMet-"sv, date.GMet, u" M"sv, date.MetType, u"-"sv, date.MetNum, u" LY"sv,
            date.YearType, u"-"sv, date.YearInMet, u" L"sv, date.MonthType, u"-"sv, date.Month);

  // The rest depends on the day and the month's type alone, so there it stands ready.
  static const std::vector<std::u16string> TextsInA = DayTexts(u"A");
  static const std::vector<std::u16string> TextsInB = DayTexts(u"B");
  const bool is_a = date.MonthType == u"A";
  const auto day = static_cast<std::size_t>(date.Day);  // a negative one lies beyond the table
  if (day < TextsInA.size() && (is_a || date.MonthType == u"B")) {
    label.append((is_a ? TextsInA : TextsInB)[day]);
  } else {
    label.append(DayText(date.Day, date.MonthType));
  }
}

std::u16string LksDateLabel(const LksDate& date) {
  std::u16string label;
  WriteLksDateLabel(date, label);
  return label;
}

}  // namespace Karvel_Sorand
