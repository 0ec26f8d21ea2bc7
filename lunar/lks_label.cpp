#include "lks_steps.h"

#include "decimal.h"

namespace Karvel_Sorand {

using StrProc::AppendDecimal;

void WriteLksDateLabel(const LksDate& date, std::u16string& label) {
  label = u"GMet-";
  AppendDecimal(label, date.GMet);
  label.append(u" M").append(date.MetType).append(u"-");
  AppendDecimal(label, date.MetNum);
  label.append(u" LY").append(date.YearType).append(u"-");
  AppendDecimal(label, date.YearInMet);
  label.append(u" L").append(date.MonthType).append(u"-");
  AppendDecimal(label, date.Month);
  label.append(u" ");
  AppendDecimal(label, date.Day);
  label.append(u" day (").append(LunarWeekdayName(date.Day, date.MonthType)).append(u") ");
  AppendDecimal(label, date.Day);
  label.append(u"/");
  AppendDecimal(label, MonthLength(date.MonthType));
  label.append(u" ").append(MoonPhaseName(date.Day));
}

std::u16string LksDateLabel(const LksDate& date) {
  std::u16string label;
  WriteLksDateLabel(date, label);
  return label;
}

}  // namespace Karvel_Sorand
