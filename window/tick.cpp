#include "main_window.h"

void frmMain::Timer1_Timer() {
  // Compute each state, then set it once: toggling would lose the focus and flicker.
  const auto enable = [this](Toolkit::CommandButton& command, bool enabled) {
    // Disabling the focused button would lose the keyboard. The focus goes to Convert: after Clear
    // and Copy the tab order reaches Quit, where another Space would end the program.
    if (!enabled && command.HasFocus()) cmdConvert.SetFocus();
    command.SetEnabled(enabled);
  };
  const bool has_text = txbOutput.TextLength() > 0;
  enable(cmdClear, has_text);
  enable(cmdCopy, has_text);
  CheckSameDay(CompareRows);
  const bool date_exists = ReadSelectedJdn().has_value();
  for (int step = Back; step < cmdTBF.Count; ++step) enable(cmdTBF[step], date_exists);
}
