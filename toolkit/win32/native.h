// What all the controls have in common: the native window behind each, how it is made, where it
// stands and which font it has.
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

// A function of a library in the system's own folder; null where it is missing, as on older
// versions of Windows. A library of that name beside the program is not looked at.
template <class Function>
Function SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE loaded = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return loaded ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)))
                : nullptr;
}

// Gives back the window that was to be made. If it could not be made there is no program: it says
// so and ends with exit code 1.
HWND RequireWindow(HWND window);

// The dots per inch that the window is drawn with.
int DpiOf(HWND window);

// The font for a control at `dpi`; made once, kept for the life of the program.
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
  bool ContainsFocus() const;  // also when a part of it has the focus, such as the line of a list

  RECT LayoutBounds() const;    // where its row has the control, in pixels of the client area
  virtual void Place();         // puts it there, and gives it its font
  void SetRegion(HRGN region);  // draws nothing outside it; null takes the cut back

  virtual void OnCommand(WORD) {}  // a notification that came with WM_COMMAND
  virtual void Draw(const DRAWITEMSTRUCT&) {}

 protected:
  void UseFont(bool bold);
  // Draws nothing until the message in hand is done with, and then once, however many changes there
  // are.
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
