#include "decimal.h"
#include "main_window.h"

using StrProc::Decimal;

namespace {

// Selects the first item of `combo` with this text. Years and months are found by text, since their
// indexes do not follow their numbers: "LYA-1" and "LYB-1" are both year 1.
void SelectItem(Toolkit::ComboBox& combo, const std::u16string& text) {
  for (int index = 0; index < combo.ListCount(); ++index) {
    if (combo.Item(index) == text) {
      combo.SetListIndex(index);
      return;
    }
  }
}

}  // namespace

void frmMain::ShowLksDate(const Karvel_Sorand::LksDate& date) {
  cboGMet.SetListIndex(date.GMet - 1);
  cboMType.SetListIndex(date.MetType.front() - u'A');
  txbMetNum.SetText(Decimal(date.MetNum));
  SelectItem(cboYearInMet, u"LY" + date.YearType + u"-" + Decimal(date.YearInMet));
  SelectItem(cboMonth[Lunar], u"L" + date.MonthType + u"-" + Decimal(date.Month));
  cboDay[Lunar].SetListIndex(date.Day - 1);
  // Last, since the selections above clear it.
  lblDayOfWeek[Lunar].SetCaption(Karvel_Sorand::LunarWeekdayName(date.Day, date.MonthType));
}

void frmMain::ShowEuroDate(const EuroDate& date, std::int16_t Index) {
  cboMonth[Index].SetListIndex(date.month - 1);
  cboDay[Index].SetListIndex(date.day - 1);
  txbYearCE[Index].SetText(Decimal(date.year));
  // Last, as above. The Solar row has the weekday of the lunar date.
  lblDayOfWeek[Index].SetCaption(Index == Gregorian ? DatePr2::DayOfWeekName(date.jdn, false)
                                                    : lblDayOfWeek[Lunar].Caption());
}
