#include <windows.h>

#include <cwchar>

#include "native.h"
#include "win32_toolkit.h"

namespace Win32 {

std::u16string LocalDate() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t text[32];
  const int length =
      std::swprintf(text, std::size(text), L"%02d-%02d-%d", now.wMonth, now.wDay, now.wYear);
  return {text, text + length};
}

}  // namespace Win32
