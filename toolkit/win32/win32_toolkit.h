// The toolkit on the Win32 API, for a program that need not know what that is.
#pragma once

#include <memory>
#include <string>

#include "toolkit.h"

namespace Win32 {

// By these a program finds the window and its controls from outside. The controls are numbered as
// the rows of the layout; 1 and 2 are OK and Cancel to a dialog, so they begin higher.
inline constexpr wchar_t WindowClass[] = L"TandemWindow";
inline constexpr int FirstControlId = 100;

// A window whose client area has this size in twips. It is not on the screen yet. One a program.
std::unique_ptr<Toolkit::Window> NewWindow(int client_width, int client_height);

// Today's local date as a text of the form mm-dd-yyyy.
std::u16string LocalDate();

}  // namespace Win32
