#include "decimal.h"
#include "main_window.h"
#include "today.h"

using Toolkit::Icon;

void frmMain::cmdTBF_Click(std::int16_t Index) {
  std::int32_t target = 0;
  if (Index == Today) {
    target = DatePr2::TodayJdn();
  } else {
    if (!ReadSelectedJdn(target)) return;
    target += Index == Back ? -1 : 1;
  }

  // The target counts, not the direction: from a day before the range Forward, too, may lead to a
  // day before the range.
  const std::u16string& title = cmdTBF[Index].Caption();
  if (target < Karvel_Sorand::MinLksJdn) {
    return desktop.ShowMessage(u"Date too early", title, Icon::Information);
  }
  if (target > Karvel_Sorand::MaxLksJdn) {
    return desktop.ShowMessage(u"Date too late", title, Icon::Information);
  }

  EuroDate euro{};
  euro.calendar = GregorianCalendar;
  euro.jdn = target;
  DatePr2::JdnToEuroDate(euro);
  Karvel_Sorand::LksDate lks{};
  const std::int16_t status = JdnToLksDate(target, lks, true);
  if (status >= 0) {
    ShowLksDate(lks);
  } else {
    desktop.ShowMessage(u"Error " + StrProc::Decimal(status) + u" when getting LKS date", u"Error",
                        Icon::Exclamation);
  }
  ShowEuroDate(euro, Gregorian);
  ShowEuroDate(euro, Solar);
  CheckSameDay(CompareRows);
}

void frmMain::Form_Activate() {
  cmdTBF_Click(Today);
  cmdConvert_Click();
}
