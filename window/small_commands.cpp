#include "main_window.h"

void frmMain::optCalendar_Click(std::int16_t Index) {
  for (int option = 0; option < optCalendar.Count; ++option) {
    optCalendar[option].SetFontBold(option == Index);
  }
  FocusConvert();
}

void frmMain::cmdCopy_Click() {
  window.SetClipboardText(txbOutput.Text());
}

void frmMain::cmdClear_Click() {
  txbOutput.SetText(u"");
}

void frmMain::cmdQuit_Click() {
  window.EndProgram();
}

void frmMain::Form_Unload(std::int16_t) {
  cmdQuit_Click();
}
