#include <algorithm>
#include <limits>

#include "decimal.h"
#include "main_window.h"
#include "str_proc.h"

using StrProc::DecimalValue;

namespace {

// The number of the selected item of `combo`, counted from 1; 0 if nothing is selected.
template <class Number>
Number SelectedNumber(const Toolkit::ComboBox& combo) {
  return static_cast<Number>(combo.ListIndex() + 1);
}

frmMain::YearStatus StatusOfYear(std::u16string_view text) {
  if (text.empty()) return frmMain::YearEmpty;
  if (!StrProc::IsAllDigitsOr(text, u"-")) return frmMain::YearNotDigits;
  return text.find(u'-', 1) == text.npos ? frmMain::YearAccepted : frmMain::YearMinusInside;
}

// The number at the start of `text`, or the largest that a field of the record holds, which the
// check of the date refuses.
std::int16_t FieldNumber(std::u16string_view text) {
  constexpr std::int32_t Most = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::min(DecimalValue(text), Most));
}

// Splits an item such as "LYC-15" or "LA-11": after `prefix` characters come the letter of the
// type, a dash, and the number.
void SplitItem(std::u16string_view item, std::size_t prefix, std::u16string& type,
               std::int16_t& number) {
  type.assign(1, item[prefix]);
  number = FieldNumber(item.substr(prefix + 2));
}

}  // namespace

void frmMain::ReadEuroDate(std::int16_t Index, EuroDate& date, std::int16_t& status) {
  date.calendar = GregorianCalendar;
  date.month = SelectedNumber<std::int32_t>(cboMonth[Index]);
  date.day = SelectedNumber<std::int32_t>(cboDay[Index]);
  const std::u16string text = txbYearCE[Index].TrimText();
  status = StatusOfYear(text);
  date.valid = status == YearAccepted ? 1 : 0;
  if (status == YearAccepted) date.year = DecimalValue(text);
}

void frmMain::ReadLksDate(Karvel_Sorand::LksDate& date, std::int16_t& status) {
  date.Valid = Karvel_Sorand::LksFalse;
  date.GMet = SelectedNumber<std::int16_t>(cboGMet);
  // With no type selected this is the character before "A", the type of no cycle.
  date.MetType.assign(1, static_cast<char16_t>(u'A' + cboMType.ListIndex()));
  const std::u16string text = txbMetNum.TrimText();
  if (text.empty()) {
    status = MetNumEmpty;
    return;
  }
  if (!StrProc::IsAllDigits(text)) {
    status = MetNumNotDigits;
    return;
  }
  date.MetNum = FieldNumber(text);

  const std::u16string_view year = cboYearInMet.Item(cboYearInMet.ListIndex());
  const std::u16string_view month = cboMonth[Lunar].Item(cboMonth[Lunar].ListIndex());
  if (year.empty() || month.empty()) {
    status = Karvel_Sorand::LksWrongYear;
    return;
  }
  SplitItem(year, 2, date.YearType, date.YearInMet);
  SplitItem(month, 1, date.MonthType, date.Month);
  date.Day = SelectedNumber<std::int16_t>(cboDay[Lunar]);
  status = CheckLksDate(date);
}

std::optional<std::int32_t> frmMain::ReadSelectedJdn() {
  std::int16_t status = 0;
  if (SelectedCalendar() == Lunar) {
    Karvel_Sorand::LksDate date{};
    ReadLksDate(date, status);
    if (status < 0) return std::nullopt;
    return LksDateToJdn(date);
  }
  EuroDate date{};
  ReadEuroDate(SelectedCalendar(), date, status);
  if (status < 0) return std::nullopt;
  DatePr2::EuroDateToJdn(date);
  if (date.valid == 0) return std::nullopt;
  return date.jdn;
}
