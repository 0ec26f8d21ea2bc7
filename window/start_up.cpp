#include "decimal.h"
#include "main_window.h"

using StrProc::Decimal;

namespace {

constexpr Toolkit::Color Yellow = 0xE8F0;  // red 240, green 232, blue 0

void FillComboBox(Toolkit::ComboBox& combo, const std::vector<std::u16string>& items,
                  int selected) {
  combo.Clear();
  for (const std::u16string& item : items) combo.AddItem(item);
  combo.SetListIndex(selected);
}

std::vector<std::u16string> Numbers(int last) {
  std::vector<std::u16string> items;
  for (int number = 1; number <= last; ++number) items.push_back(Decimal(number));
  return items;
}

// All pairs of month type and month number. Month 12 can be of either type.
std::vector<std::u16string> LunarMonths() {
  std::vector<std::u16string> items;
  for (int i = 0; i <= 4; ++i) {
    items.push_back(u"LA-" + Decimal(2 * i + 1));
    items.push_back(u"LB-" + Decimal(2 * i + 2));
  }
  for (const char16_t* const item : {u"LA-11", u"LA-12", u"LB-12", u"LA-13"}) items.push_back(item);
  return items;
}

// All pairs of year type and year number. Years 2 to 18 have the same type in every cycle; years 1
// and 19 can be of two types each.
std::vector<std::u16string> YearsOfMetCycle() {
  std::vector<std::u16string> items = {u"LYA-1", u"LYB-1"};
  for (int year = 2; year <= 18; ++year) {
    const char16_t type = Karvel_Sorand::YearTypesOfA[static_cast<std::size_t>(year) - 1];
    items.push_back(std::u16string(u"LY") + type + u"-" + Decimal(year));
  }
  items.push_back(u"LYA-19");
  items.push_back(u"LYC-19");
  return items;
}

std::vector<std::u16string> GreatCycles() {
  std::vector<std::u16string> items;
  for (int cycle = 1; cycle <= Karvel_Sorand::GreatCycleCount; ++cycle) {
    items.push_back(u"GMet-" + Decimal(cycle));
  }
  return items;
}

}  // namespace

void frmMain::Form_Load() {
  FormLoaded = false;
  window.SetCaption(u"Tandem Karvel-Sorand Calendar, Version " + Decimal(version.major_number) +
                    u"." + Decimal(version.minor_number));
  lblCopyright.SetCaption(copyright);

  window.SetBackColor(Yellow);
  const Toolkit::Color color = window.BackColor();
  Frame1.SetBackColor(color);
  lblCopyright.SetBackColor(color);
  for (const Calendar index : {Gregorian, Solar, Lunar}) {
    optCalendar[index].SetBackColor(color);
    lblDayOfWeek[index].SetBackColor(color);
  }
  lblSameDay.SetBackColor(color);
  lblM.SetBackColor(color);
  lblDash.SetBackColor(color);

  optCalendar[Gregorian].Select();
  DatePr2::InitDateTables();
  Karvel_Sorand::InitLksTables();
  FillDateLists();

  txbYearCE[Gregorian].SetText(u"");
  txbYearCE[Solar].SetText(u"");
  txbOutput.SetText(u"");
  Timer1.StartTimer(Layout::Timer1Interval);
  FormLoaded = true;
}

void frmMain::FillDateLists() {
  const auto& months = DatePr2::MonthNames;
  const std::vector<std::u16string> month_items(months.begin() + 1, months.end());
  FillComboBox(cboMonth[Gregorian], month_items, 0);
  FillComboBox(cboMonth[Solar], month_items, 0);
  FillComboBox(cboMonth[Lunar], LunarMonths(), 0);
  FillComboBox(cboYearInMet, YearsOfMetCycle(), 0);
  FillComboBox(cboDay[Gregorian], Numbers(31), 0);
  FillComboBox(cboDay[Solar], Numbers(31), 0);
  FillComboBox(cboDay[Lunar], Numbers(30), 0);
  FillComboBox(cboMType, {u"A", u"B", u"C"}, 0);
  FillComboBox(cboGMet, GreatCycles(), 1);  // GMet-2, in which we live
}
