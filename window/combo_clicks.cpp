#include "main_window.h"

void frmMain::cboGMet_Click() {
  BlankWeekday(Lunar);
}

void frmMain::cboYearInMet_Click() {
  BlankWeekday(Lunar);
}

void frmMain::cboMonth_Click(std::int16_t Index) {
  if (FormLoaded) BlankWeekday(Index);
}

void frmMain::cboDay_Click(std::int16_t Index) {
  if (FormLoaded) BlankWeekday(Index);
}

void frmMain::BlankWeekday(std::int16_t row) {
  lblDayOfWeek[row].SetCaption(u"");
  FocusConvert();
}

void frmMain::FocusConvert() {
  if (cmdConvert.Visible() && cmdConvert.Enabled()) cmdConvert.SetFocus();
}
