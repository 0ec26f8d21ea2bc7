#include "controls.h"

namespace Win32 {

// The class draws with the region of the window around it, not its own, unless the style clips
// children.
Label::Label(NativeWindow& window, const Toolkit::StoredControl& row)
    : Toolkit::Label(row.text),
      Native(window, row,
             {L"STATIC", (row.properties.centred ? DWORD{SS_CENTER} : DWORD{SS_LEFT}) |
                             SS_NOPREFIX | WS_GROUP | WS_CLIPCHILDREN}) {}

void Label::ApplyBackColor() {
  InvalidateRect(hwnd_, nullptr, TRUE);
}

void Label::ApplyCaption() {
  PaintLater();
  SetWindowTextW(hwnd_, Wide(Caption()));
}

}  // namespace Win32
