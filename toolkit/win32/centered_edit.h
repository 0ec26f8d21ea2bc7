// What single-line edit controls have in common, those of the combo boxes included.
#pragma once

#include <windows.h>

namespace Win32 {

// Keeps the text of an edit control in the vertical middle. To be called once, after it is created.
void CenterText(HWND edit);

// To be called after each change of its font: measures the text again, and removes the margins that
// an edit control adds with outline fonts only. The fields are just wide enough for their texts.
void FitText(HWND edit);

}  // namespace Win32
