#include "decimal.h"
#include "main_window.h"

using Toolkit::Icon;

void frmMain::cmdTBF_Click(std::int16_t Index) {
  std::int32_t target = 0;
  if (Index == 0) {
    target = DatePr2::TodayJdn();
  } else {
    if (!ReadSelectedJdn(target)) return;
    target += Index == 1 ? -1 : 1;
  }

  // The target counts, not the direction: from a day before the range, Forward too leads to one.
  const std::u16string& title = cmdTBF[static_cast<std::size_t>(Index)]->Caption();
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
  ShowEuroDate(euro, 0);
  ShowEuroDate(euro, 1);
  CheckSameDay(-1);
}

void frmMain::Form_Activate() {
  cmdTBF_Click(0);
  cmdConvert_Click();
}
