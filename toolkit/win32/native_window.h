// The program's one window. It is a dialog of a class of its own, so that the platform's dialog
// manager does the keyboard navigation.
#pragma once

#include "native.h"
#include "win32_toolkit.h"

namespace Win32 {

class NativeWindow : public Toolkit::Window, public Toolkit::Timer {
 public:
  NativeWindow(int client_width, int client_height);

  HWND Hwnd() const { return hwnd_; }
  // The dots per inch that the window is drawn with: those of its monitor, or as many fewer as it
  // takes for the whole window to lie on it.
  int Dpi() const { return dpi_; }
  int MonitorDpi() const { return monitor_dpi_; }
  int Add(Native& control);  // gives the number of the control, which is its row's

  int RunLoop();  // brings the window to the screen and serves it; gives the exit code
  void End();     // ends RunLoop
  void Enable(int milliseconds) override;

  // The control that has the focus, or that gets it when the window is active again.
  HWND Focus() const;
  void SetFocusTo(HWND control);

 private:
  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
  void ApplyCaption() override;
  void ApplyBackColor() override;

  bool IsActive() const { return GetActiveWindow() == hwnd_; }
  bool IsWheelOfAnother(const MSG& message) const;
  void RememberFocus();
  void Activated();
  void GiveFocusBack();
  void FrameDefaultButton(HWND button);
  void Command(WORD id, WORD code, HWND control);
  void ShowIcons();
  HBRUSH PaintGround(HDC dc, HWND control) const;

  // Where the window stands and its controls in it: placement.cpp.
  void Centre();
  void Fit();
  void FitAnew();
  void MoveToDpi(int dpi, const RECT& place);
  void PlaceControls();
  void KeepOffFields();

  int client_width_, client_height_;  // twips
  HWND hwnd_ = nullptr;
  int dpi_ = 96;
  int monitor_dpi_ = 96;
  HMONITOR fitted_monitor_ = nullptr;  // the monitor on which the window was fitted
  RECT fitted_area_ = {};              // the work area that it had then
  bool must_fit_ = true;               // even if both are the same
  bool is_dragged_ = false;
  std::vector<Native*> controls_;
  HWND remembered_focus_ = nullptr;
};

// Posted to the window by Native::PostSettle and Native::PaintLater with the control as WPARAM.
inline constexpr UINT SettleMessage = WM_APP;
inline constexpr UINT PaintMessage = WM_APP + 1;
// Posted by the window to itself: places its controls.
inline constexpr UINT PlaceMessage = WM_APP + 2;

}  // namespace Win32
