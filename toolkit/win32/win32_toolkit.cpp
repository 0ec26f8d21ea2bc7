#include "win32_toolkit.h"

#include <cwchar>
#include <iterator>

#include "native_window.h"

namespace Win32 {

std::unique_ptr<Toolkit::Window> NewWindow(int client_width, int client_height) {
  return std::make_unique<NativeWindow>(client_width, client_height);
}

std::u16string LocalDate() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t text[32];
  const int length =
      std::swprintf(text, std::size(text), L"%02d-%02d-%d", now.wMonth, now.wDay, now.wYear);
  return {text, text + length};
}

}  // namespace Win32
