#include "main_window.h"

void frmMain::Timer1_Timer() {
  // Each state is worked out before it is set once: a button that were switched off and on again
  // would lose the focus and flicker every second.
  const bool has_text = txbOutput.TextLength() > 0;
  cmdClear.SetEnabled(has_text);
  cmdCopy.SetEnabled(has_text);
  CheckSameDay(CompareRows);
  std::int32_t jdn = 0;
  const bool can_step = ReadSelectedJdn(jdn);
  for (int step = Back; step < cmdTBF.Count; ++step) cmdTBF[step].SetEnabled(can_step);
}
