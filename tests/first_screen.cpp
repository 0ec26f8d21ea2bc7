// Waits until tandem.exe shows its first screen and prints the text of the pane. Ends with 1 if
// that does not happen within a minute.
#include <cstdio>

#include "desk.h"

int main() {
  constexpr int PaneId = 100;
  Text pane;
  const bool shown = Desk::Wait(
      [&] {
        const HWND window = Desk::FindTandem();
        if (window) pane = Desk::TextOf(GetDlgItem(window, PaneId));
        return !pane.empty();
      },
      60000);
  Sleep(500);  // until what was written is drawn, too
  std::printf("%ls", reinterpret_cast<const wchar_t*>(pane.c_str()));
  return shown ? 0 : 1;
}
