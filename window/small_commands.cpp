#include "main_window.h"

void frmMain::optCalendar_Click(std::int16_t Index) {
  for (std::int16_t option = 0; option <= 2; ++option) {
    optCalendar[static_cast<std::size_t>(option)]->SetFontBold(option == Index);
  }
  FocusConvert();
}

void frmMain::cmdCopy_Click() {
  desktop.SetClipboardText(txbOutput.Text());
}

void frmMain::cmdClear_Click() {
  txbOutput.SetText(u"");
}

void frmMain::cmdQuit_Click() {
  desktop.EndProgram();
}

void frmMain::Form_Unload() {
  cmdQuit_Click();
}
