#include "main_window.h"

using namespace Toolkit;

namespace {

using Controls = std::vector<std::unique_ptr<Control>>;

Controls NewControls(Desktop& desktop) {
  Controls controls;
  for (const StoredControl& row : Layout::Rows) controls.push_back(desktop.NewControl(row));
  return controls;
}

template <class T>
T& Find(const Controls& controls, ControlRow<T> which) {
  return static_cast<T&>(*controls[which.row]);
}

template <class Group>
Group FindGroup(const Controls& controls, GroupRows<Group> which) {
  Group group;
  for (int index = 0; index < Group::Count; ++index) {
    Control* const control = controls[which.rows[index]].get();
    group.members[index] = static_cast<typename Group::Member*>(control);
  }
  return group;
}

}  // namespace

frmMain::frmMain(Desktop& its_desktop, ProgramVersion its_version, std::u16string_view notice)
    : controls(NewControls(its_desktop)),
      desktop(its_desktop),
      window(desktop.MainWindow()),
      Timer1(desktop.MainTimer()),
      Frame1(Find<Frame>(controls, u"Frame1")),
      txbOutput(Find<TextBox>(controls, u"txbOutput")),
      lblCopyright(Find<Label>(controls, u"lblCopyright")),
      cmdTBF(FindGroup<decltype(cmdTBF)>(controls, u"cmdTBF")),
      cmdCopy(Find<CommandButton>(controls, u"cmdCopy")),
      cmdClear(Find<CommandButton>(controls, u"cmdClear")),
      cmdQuit(Find<CommandButton>(controls, u"cmdQuit")),
      cmdConvert(Find<CommandButton>(controls, u"cmdConvert")),
      optCalendar(FindGroup<decltype(optCalendar)>(controls, u"optCalendar")),
      cboMonth(FindGroup<decltype(cboMonth)>(controls, u"cboMonth")),
      cboDay(FindGroup<decltype(cboDay)>(controls, u"cboDay")),
      txbYearCE(FindGroup<decltype(txbYearCE)>(controls, u"txbYearCE")),
      lblDayOfWeek(FindGroup<decltype(lblDayOfWeek)>(controls, u"lblDayOfWeek")),
      cboGMet(Find<List>(controls, u"cboGMet")),
      cboMType(Find<List>(controls, u"cboMType")),
      cboYearInMet(Find<List>(controls, u"cboYearInMet")),
      txbMetNum(Find<TextBox>(controls, u"txbMetNum")),
      lblM(Find<Label>(controls, u"lblM")),
      lblDash(Find<Label>(controls, u"lblDash")),
      lblSameDay(Find<Label>(controls, u"lblSameDay")),
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
  // The commands that the tick disables. Behind two of them comes Quit, and one more Space there
  // would end the program: the focus goes where every command leaves it.
  cmdClear.FocusHeir = &cmdConvert;
  cmdCopy.FocusHeir = &cmdConvert;
  for (int step = Back; step < cmdTBF.Count; ++step) cmdTBF[step].FocusHeir = &cmdConvert;
}

Calendar frmMain::SelectedCalendar() const {
  return optCalendar[Gregorian].Value() ? Gregorian : optCalendar[Solar].Value() ? Solar : Lunar;
}
