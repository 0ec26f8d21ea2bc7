// Waits until tandem.exe shows its first screen and prints the text of the pane. Ends with 1 if
// that does not happen within a minute.
#include <windows.h>

#include <cstdio>
#include <iterator>

#include "win32_toolkit.h"

int main() {
  constexpr int PaneId = Win32::FirstControlId;  // the first row of the layout
  constexpr DWORD DrawingTime = 500;             // milliseconds until a text is on the screen
  wchar_t pane[1000] = L"";
  for (const DWORD start = GetTickCount(); !pane[0]; Sleep(10)) {
    const HWND box = GetDlgItem(FindWindowW(Win32::WindowClass, nullptr), PaneId);
    if (box) SendMessageW(box, WM_GETTEXT, std::size(pane), reinterpret_cast<LPARAM>(pane));
    if (GetTickCount() - start > 60000) {
      std::puts("No first screen after a minute");
      return 1;
    }
  }
  Sleep(DrawingTime);
  std::printf("%ls", pane);
}
