#include "main_window.h"

void frmMain::Timer1_Timer() {
  // Each state is worked out, then set once: toggling would lose the focus and flicker.
  const auto enable = [this](Toolkit::CommandButton& command, bool enabled) {
    // A disabled button loses the keyboard. Not to what comes next: after Clear and Copy that is
    // Quit, where another Space would end the program.
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
