#pragma once

#include <windows.h>

#include <string_view>

namespace Win32 {

// Empties the clipboard and puts `text` on it, on behalf of `owner`. While another program holds
// the clipboard it tries again for half a second. On failure it plays the system's warning sound.
void ReplaceClipboard(HWND owner, std::u16string_view text);

}  // namespace Win32
