#include "decimal.h"
#include "main_window.h"

using Karvel_Sorand::LksDate;
using StrProc::Decimal;
using Toolkit::Icon;

namespace {

constexpr std::u16string_view InvalidInput = u"Invalid input";

std::u16string InvalidLksText(const LksDate& date, std::int16_t status) {
  std::u16string text = u"Invalid input for Lunar Karvel-Sorand date.";
  if (status == Karvel_Sorand::LksWrongMetType) {
    const char16_t type = Karvel_Sorand::MetCycleTypes[static_cast<std::size_t>(date.MetNum) - 1];
    text += u"\r\nMetonic cycle " + Decimal(date.MetNum) + u" is of type " + type + u".";
  } else if (status != Karvel_Sorand::LksNoSuchDate) {
    text += u"\r\nError code " + Decimal(status);
  }
  return text;
}

// By row. The two spaces and "Karvel-Sorand" are meant.
constexpr std::u16string_view Unreadable[] = {u"Gregorian  date is invalid.",
                                              u"Solar Karvel-Gregorian  date is invalid."};
constexpr std::u16string_view DoesNotExist[] = {u"The Gregorian date is invalid.",
                                                u"The Solar Karvel-Sorand date is invalid."};

}  // namespace

void frmMain::cmdConvert_Click() {
  LksDate lks{};
  EuroDate euro{};
  lblDayOfWeek[Lunar].SetCaption(u"");
  const Calendar calendar = SelectedCalendar();
  const bool converted =
      calendar == Lunar ? ConvertFromLks(euro, lks) : ConvertFromEuro(calendar, euro, lks);
  if (!converted) return;
  ShowLksDate(lks);
  ShowEuroDate(euro, calendar == Lunar ? Gregorian : Solar);
  ShowEuroDate(euro, calendar == Lunar ? Solar : Gregorian);
  AppendBlock(calendar, euro, lks);
  CheckSameDay(CompareRows);
}

bool frmMain::ConvertFromLks(EuroDate& euro, LksDate& lks) {
  std::int16_t status = 0;
  ReadLksDate(lks, status);
  if (status < 0) {
    window.ShowMessage(InvalidLksText(lks, status), InvalidInput, Icon::Exclamation);
    return false;
  }
  euro.calendar = GregorianCalendar;
  euro.jdn = lks.Jdn;
  DatePr2::JdnToEuroDate(euro);
  return true;
}

bool frmMain::ConvertFromEuro(std::int16_t Index, EuroDate& euro, LksDate& lks) {
  std::int16_t status = 0;
  ReadEuroDate(Index, euro, status);
  if (status < 0) {
    window.ShowMessage(Unreadable[Index], InvalidInput, Icon::Exclamation);
    return false;
  }
  DatePr2::EuroDateToJdn(euro);
  if (euro.valid == 0) {
    window.ShowMessage(DoesNotExist[Index], InvalidInput, Icon::Information);
    return false;
  }
  if (JdnToLksDate(euro.jdn, lks, true) < 0) {
    window.ShowMessage(u"Error getting Lunar Karvel-Sorand date", u"Error", Icon::Exclamation);
    return false;
  }
  return true;
}

void frmMain::AppendBlock(Calendar calendar, const EuroDate& euro, const LksDate& lks) {
  const std::u16string date = DatePr2::DateText(euro, DatePr2::DateOrderYMD, u"-", u"");
  const std::u16string lines[] = {
      date + u" (" + lblDayOfWeek[Gregorian].Caption() + u" in 7-day week)",
      date + u" (" + lblDayOfWeek[Solar].Caption() + u" in 7/8-day week)", lks.Label};
  // The line of the selected calendar first, the others in their order.
  std::u16string block = u"  " + lines[calendar] + u"\r\n";
  for (const Calendar other : {Gregorian, Solar, Lunar}) {
    if (other != calendar) block += u"= " + lines[other] + u"\r\n";
  }
  block += u"\r\n";
  txbOutput.AppendText(block);
  txbOutput.SetSelStart(txbOutput.TextLength());
}

void frmMain::txbYearCE_KeyUp(std::int16_t Index, std::int16_t KeyCode, std::int16_t) {
  if (KeyCode == Toolkit::EnterKey && optCalendar[Index].Value()) cmdConvert_Click();
}

void frmMain::txbMetNum_KeyUp(std::int16_t KeyCode, std::int16_t) {
  if (KeyCode == Toolkit::EnterKey && optCalendar[Lunar].Value()) cmdConvert_Click();
}
