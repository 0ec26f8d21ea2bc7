#include "main_window.h"

using namespace Toolkit;

namespace {

std::vector<std::unique_ptr<Control>> NewControls(Desktop& desktop) {
  std::vector<std::unique_ptr<Control>> controls;
  for (const StoredControl& row : StoredLayout()) controls.push_back(desktop.NewControl(row));
  return controls;
}

}  // namespace

template <class T>
T& frmMain::Find(std::u16string_view name, int index) {
  std::size_t row = 0;
  while (StoredLayout()[row].name != name || StoredLayout()[row].index != index) ++row;
  return static_cast<T&>(*controls[row]);
}

template <class T, int count>
std::array<T*, count> frmMain::FindGroup(std::u16string_view name) {
  std::array<T*, count> group;
  for (int index = 0; index < count; ++index) {
    group[static_cast<std::size_t>(index)] = &Find<T>(name, index);
  }
  return group;
}

frmMain::frmMain(Desktop& its_desktop, ProgramVersion its_version, std::u16string_view notice)
    : controls(NewControls(its_desktop)),
      desktop(its_desktop),
      window(desktop.MainWindow()),
      Timer1(desktop.MainTimer()),
      Frame1(Find<Frame>(u"Frame1")),
      txbOutput(Find<TextBox>(u"txbOutput")),
      lblCopyright(Find<Label>(u"lblCopyright")),
      cmdTBF(FindGroup<CommandButton, 3>(u"cmdTBF")),
      cmdCopy(Find<CommandButton>(u"cmdCopy")),
      cmdClear(Find<CommandButton>(u"cmdClear")),
      cmdQuit(Find<CommandButton>(u"cmdQuit")),
      cmdConvert(Find<CommandButton>(u"cmdConvert")),
      optCalendar(FindGroup<OptionButton, 3>(u"optCalendar")),
      cboMonth(FindGroup<List, 3>(u"cboMonth")),
      cboDay(FindGroup<List, 3>(u"cboDay")),
      txbYearCE(FindGroup<TextBox, 2>(u"txbYearCE")),
      lblDayOfWeek(FindGroup<Label, 3>(u"lblDayOfWeek")),
      cboGMet(Find<List>(u"cboGMet")),
      cboMType(Find<List>(u"cboMType")),
      cboYearInMet(Find<List>(u"cboYearInMet")),
      txbMetNum(Find<TextBox>(u"txbMetNum")),
      lblM(Find<Label>(u"lblM")),
      lblDash(Find<Label>(u"lblDash")),
      lblSameDay(Find<Label>(u"lblSameDay")),
      version(its_version),
      copyright(notice) {
  WireEvents();
}

void frmMain::WireEvents() {
  window.Activate = [this] { Form_Activate(); };
  window.Unload = [this] { Form_Unload(); };
  Timer1.Tick = [this] { Timer1_Timer(); };
  for (std::int16_t i = 0; i < 3; ++i) {
    const auto at = static_cast<std::size_t>(i);
    optCalendar[at]->Click = [this, i] { optCalendar_Click(i); };
    cmdTBF[at]->Click = [this, i] { cmdTBF_Click(i); };
    cboMonth[at]->Click = [this, i] { cboMonth_Click(i); };
    cboDay[at]->Click = [this, i] { cboDay_Click(i); };
  }
  for (std::int16_t i = 0; i < 2; ++i) {
    txbYearCE[static_cast<std::size_t>(i)]->KeyUp =
        [this, i](std::int16_t key, std::int16_t shift) { txbYearCE_KeyUp(i, key, shift); };
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
  for (auto* command : {&cmdClear, &cmdCopy, cmdTBF[1], cmdTBF[2]})
    command->FocusHeir = &cmdConvert;
}

std::int16_t frmMain::SelectedCalendar() const {
  return optCalendar[0]->Value() ? 0 : optCalendar[1]->Value() ? 1 : 2;
}
