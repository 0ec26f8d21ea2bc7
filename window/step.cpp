#include "decimal.h"
#include "main_window.h"
#include "today.h"

using Toolkit::Icon;

// The day that a step leads to; none if the date that it starts from cannot be read or does not
// exist.
std::optional<std::int32_t> frmMain::TargetOfStep(Step step) {
  if (step == Today) return DatePr2::TodayJdn();
  const std::optional<std::int32_t> from = ReadSelectedJdn();
  if (!from) return std::nullopt;
  switch (step) {  // without a default, so that the compiler names a missing step
    case Today:
      break;
    case Back:
      return *from - 1;
    case Forward:
      return *from + 1;
  }
  return std::nullopt;
}

void frmMain::cmdTBF_Click(std::int16_t Index) {
  // An index that is none of the steps moves forward.
  const Step step = Index >= Today && Index < cmdTBF.Count ? static_cast<Step>(Index) : Forward;
  const std::optional<std::int32_t> target = TargetOfStep(step);
  if (!target) return;

  // Check the target, not the direction: Forward may still land before the range.
  const std::u16string& title = cmdTBF[step].Caption();
  if (*target < Karvel_Sorand::MinLksJdn) {
    return window.ShowMessage(u"Date too early", title, Icon::Information);
  }
  if (*target > Karvel_Sorand::MaxLksJdn) {
    return window.ShowMessage(u"Date too late", title, Icon::Information);
  }

  EuroDate euro{};
  euro.calendar = GregorianCalendar;
  euro.jdn = *target;
  DatePr2::JdnToEuroDate(euro);
  Karvel_Sorand::LksDate lks{};
  const std::int16_t status = JdnToLksDate(*target, lks, true);
  if (status >= 0) {
    ShowLksDate(lks);
  } else {
    window.ShowMessage(u"Error " + StrProc::Decimal(status) + u" when getting LKS date", u"Error",
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
