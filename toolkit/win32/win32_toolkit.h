// The toolkit on the Win32 API, for callers that do not include <windows.h>.
#pragma once

#include <memory>
#include <string>

#include "toolkit.h"

namespace Win32 {

// By these another program finds the window and its controls. The IDs follow the rows of the
// layout; 1 and 2 are OK and Cancel of a dialog, so they begin higher.
inline constexpr wchar_t WindowClass[] = L"TandemWindow";
inline constexpr int FirstControlId = 100;

// The program's one window, with a client area of this size in twips, not on the screen yet.
std::unique_ptr<Toolkit::Window> NewWindow(int client_width, int client_height);

// Today's local date as a text of the form mm-dd-yyyy.
std::u16string LocalDate();

}  // namespace Win32
