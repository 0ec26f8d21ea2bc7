#include "controls.h"

namespace Win32 {

CommandButton::CommandButton(NativeWindow& window, const Toolkit::StoredControl& row)
    : Toolkit::CommandButton(row.text),
      Native(window, row, {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP}) {}

void CommandButton::Notified(WORD code) {
  if (code == BN_CLICKED) NotePressed();
}

void CommandButton::ApplyEnabled() {
  EnableWindow(hwnd_, Enabled());
}

}  // namespace Win32
