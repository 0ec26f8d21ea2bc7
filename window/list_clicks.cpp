#include "main_window.h"

void frmMain::cboGMet_Click() {
  lblDayOfWeek[Lunar].SetCaption(u"");
  FocusConvert();
}

void frmMain::cboYearInMet_Click() {
  lblDayOfWeek[Lunar].SetCaption(u"");
  FocusConvert();
}

void frmMain::cboMonth_Click(std::int16_t Index) {
  if (!FormLoaded) return;
  lblDayOfWeek[Index].SetCaption(u"");
  FocusConvert();
}

void frmMain::cboDay_Click(std::int16_t Index) {
  if (!FormLoaded) return;
  lblDayOfWeek[Index].SetCaption(u"");
  FocusConvert();
}

void frmMain::FocusConvert() {
  if (cmdConvert.Visible() && cmdConvert.Enabled()) cmdConvert.SetFocus();
}
