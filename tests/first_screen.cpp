// Waits until tandem.exe shows its first screen and prints the text of the pane. Ends with 1 if that
// does not happen within a while.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

constexpr DWORD Patience = 60000;  // milliseconds
constexpr int PaneId = 100;

HWND FindTandem() {
  HWND found = nullptr;
  EnumWindows(
      [](HWND window, LPARAM result) -> BOOL {
        wchar_t caption[64];
        GetWindowTextW(window, caption, 64);
        if (std::wstring(caption).find(L"Tandem Karvel-Sorand Calendar") != 0) return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace

int main() {
  wchar_t text[1024] = {};
  const DWORD start = GetTickCount();
  do {
    if (GetTickCount() - start > Patience) return 1;
    Sleep(100);
    if (const HWND window = FindTandem()) {
      SendMessageW(GetDlgItem(window, PaneId), WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    }
  } while (!text[0]);
  std::printf("%ls", text);
  Sleep(500);  // until what was written is drawn, too
}
