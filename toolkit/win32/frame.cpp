#include "controls.h"

namespace Win32 {

Frame::Frame(NativeWindow& window, const Toolkit::StoredControl& row)
    : Native(window, row, {L"BUTTON", BS_GROUPBOX | WS_GROUP}) {}

void Frame::ApplyBackColor() {
  InvalidateRect(hwnd_, nullptr, TRUE);
}

}  // namespace Win32
