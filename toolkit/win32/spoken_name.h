#pragma once

#include <windows.h>

#include <string_view>

namespace Win32 {

// Gives a control that has no caption the name that a screen reader says for it. To be called when
// it is the control that was made last.
void GiveSpokenName(HWND control, std::u16string_view name);

}  // namespace Win32
