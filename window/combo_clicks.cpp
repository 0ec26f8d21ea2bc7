#include "main_window.h"

void frmMain::cboGMet_Click() {
  ClearWeekday(Lunar);
}

void frmMain::cboYearInMet_Click() {
  ClearWeekday(Lunar);
}

void frmMain::cboMonth_Click(std::int16_t Index) {
  if (FormLoaded) ClearWeekday(Index);
}

void frmMain::cboDay_Click(std::int16_t Index) {
  if (FormLoaded) ClearWeekday(Index);
}

void frmMain::ClearWeekday(std::int16_t row) {
  lblDayOfWeek[row].SetCaption(u"");
  FocusConvert();
}

void frmMain::FocusConvert() {
  if (cmdConvert.Visible() && cmdConvert.Enabled()) cmdConvert.SetFocus();
}
