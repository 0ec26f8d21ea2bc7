#include "clipboard.h"

#include <cstring>

namespace Win32 {

namespace {

constexpr int Tries = 11;
constexpr DWORD Pause = 50;  // milliseconds between two tries

bool Open(HWND owner) {
  for (int tries_left = Tries; !OpenClipboard(owner); Sleep(Pause)) {
    if (--tries_left == 0) return false;
  }
  return true;
}

// The text in memory that the clipboard can own; null if there is no memory.
HGLOBAL CopyForClipboard(std::u16string_view text) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t));
  if (!memory) return nullptr;
  auto* const copy = static_cast<char16_t*>(GlobalLock(memory));
  std::memcpy(copy, text.data(), text.size() * sizeof(char16_t));
  copy[text.size()] = u'\0';
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void ReplaceClipboard(HWND owner, std::u16string_view text) {
  const HGLOBAL memory = CopyForClipboard(text);
  const bool is_open = memory && Open(owner);
  // The clipboard owns the memory once it has taken it.
  const bool is_taken = is_open && EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, memory);
  if (is_open) CloseClipboard();
  if (is_taken) return;
  GlobalFree(memory);
  MessageBeep(MB_ICONWARNING);
}

}  // namespace Win32
