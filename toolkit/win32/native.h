// What all controls have in common: the native window of each, its creation, bounds and font.
#pragma once

#include <windows.h>

#include <string_view>

#include "toolkit.h"

namespace Win32 {

// A char16_t is a wchar_t here. The text must be null-terminated.
inline const wchar_t* Wide(const char16_t* text) {
  return reinterpret_cast<const wchar_t*>(text);
}
inline const wchar_t* Wide(const std::u16string& text) {
  return Wide(text.c_str());
}
// The text of a row of the layout, which is null-terminated.
inline const wchar_t* WideLiteral(std::u16string_view text) {
  return Wide(text.data());
}

inline int Pixels(int twips, int dpi) {
  return MulDiv(twips, dpi, 1440);
}

// A function of a library in the system's folder, never of one beside the program; null where it is
// missing, as on older versions of Windows.
template <class Function>
Function SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE loaded = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return loaded ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)))
                : nullptr;
}

// Returns `window`; if creation failed, reports it and exits with code 1.
HWND RequireWindow(HWND window);

// The dots per inch of the window's monitor, or of the system before Windows 10.
int DpiOf(HWND window);

// The font for a control at `dpi`; created once, kept for the life of the program.
HFONT FontAt(const Toolkit::Font& font, bool bold, int dpi);

// The text of a window.
std::u16string TextOf(HWND window);

// The height in pixels of a line of text in the font of a control.
int LineHeight(HWND control);

class NativeWindow;

class NativeControl {
 public:
  struct Style {
    const wchar_t* window_class;
    DWORD style;
    DWORD ex_style = 0;
  };
  NativeControl(NativeWindow& window, const Toolkit::ControlTemplate& row, Style style);
  virtual ~NativeControl() = default;
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  HWND Hwnd() const { return hwnd_; }
  Toolkit::Kind Kind() const { return row_.kind; }
  bool ContainsFocus() const;  // also true for a child, such as the edit field of a combo box

  RECT LayoutBounds() const;    // those of its row, in pixels of the client area
  virtual void Place();         // moves it there and sets its font
  void SetRegion(HRGN region);  // draws nothing outside; null removes the region

  virtual void OnCommand(WORD) {}  // a notification that came with WM_COMMAND
  virtual void Draw(const DRAWITEMSTRUCT&) {}

 protected:
  void UseFont(bool bold);
  // Draws nothing until the message in hand is done, and then once, however many changes there are.
  void SuspendRedraw();
  LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return SendMessageW(hwnd_, message, wparam, lparam);
  }

  NativeWindow& window_;
  const Toolkit::ControlTemplate& row_;
  HWND hwnd_;

 private:
  void ResumeRedraw();

  bool is_redraw_suspended_ = false;
  bool has_region_ = false;
};

}  // namespace Win32
