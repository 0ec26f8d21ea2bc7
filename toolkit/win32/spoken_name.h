#pragma once

#include <windows.h>

namespace Win32 {

// Gives a control that has no caption, and the line to type in that it may hold, the name that a
// screen reader says for it. `name` ends with a zero and lives as long as the control.
void GiveSpokenName(HWND control, const wchar_t* name);

}  // namespace Win32
