// Waits until tandem.exe shows its first screen and prints the text of the pane. Ends with 1 if
// that does not happen within a minute.
#include <cstdio>

#include "desk.h"

int main() {
  Text pane;
  const auto shown = [&pane] {
    const HWND window = FindWindowW(L"TandemWindow", nullptr);
    if (window) pane = Desk::TextOf(GetDlgItem(window, 100));
    return !pane.empty();
  };
  if (!Desk::Wait(shown, 60000)) return 1;
  Sleep(500);  // until what was written is drawn, too
  std::printf("%ls", Desk::Wide(pane));
}
