#include "main_window.h"

namespace {

std::vector<std::unique_ptr<Toolkit::Control>> NewControls(Toolkit::Window& window) {
  std::vector<std::unique_ptr<Toolkit::Control>> controls;
  for (const Toolkit::ControlTemplate& row : Layout::Rows) {
    controls.push_back(window.NewControl(row));
  }
  return controls;
}

}  // namespace

frmMain::frmMain(Toolkit::Window& its_window, ProgramVersion its_version,
                 std::u16string_view notice)
    : controls(NewControls(its_window)),
      window(its_window),
      version(its_version),
      copyright(notice) {
  WireEvents();
}

void frmMain::WireEvents() {
  window.Activate = [this] { Form_Activate(); };
  window.Unload = [this] { Form_Unload(0); };
  Timer1.Tick = [this] { Timer1_Timer(); };
  for (std::int16_t i = 0; i < optCalendar.Count; ++i) {
    optCalendar[i].Click = [this, i] { optCalendar_Click(i); };
    cboMonth[i].Click = [this, i] { cboMonth_Click(i); };
    cboDay[i].Click = [this, i] { cboDay_Click(i); };
  }
  for (std::int16_t i = 0; i < txbYearCE.Count; ++i) {
    txbYearCE[i].KeyUp = [this, i](std::int16_t key, std::int16_t shift) {
      txbYearCE_KeyUp(i, key, shift);
    };
  }
  for (std::int16_t i = 0; i < cmdTBF.Count; ++i) {
    cmdTBF[i].Click = [this, i] { cmdTBF_Click(i); };
  }
  txbMetNum.KeyUp = [this](std::int16_t key, std::int16_t shift) { txbMetNum_KeyUp(key, shift); };
  cboGMet.Click = [this] { cboGMet_Click(); };
  cboYearInMet.Click = [this] { cboYearInMet_Click(); };
  cmdConvert.Click = [this] { cmdConvert_Click(); };
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdClear.Click = [this] { cmdClear_Click(); };
  cmdQuit.Click = [this] { cmdQuit_Click(); };
}

frmMain::Calendar frmMain::SelectedCalendar() const {
  return optCalendar[Gregorian].Value() ? Gregorian : optCalendar[Solar].Value() ? Solar : Lunar;
}
