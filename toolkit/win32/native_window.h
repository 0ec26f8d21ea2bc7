// The program's one window. It is a dialog of its own class, so that the dialog manager does the
// keyboard navigation.
#pragma once

#include "native.h"
#include "win32_toolkit.h"

namespace Win32 {

class NativeWindow : public Toolkit::Window {
 public:
  NativeWindow(int client_width, int client_height);

  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::ControlTemplate& row) override;
  int Run() override;
  void ShowMessage(std::u16string_view text, std::u16string_view title,
                   Toolkit::Icon icon) override;
  void SetClipboardText(std::u16string_view text) override;
  void EndProgram() override;
  void StartTimer(int milliseconds) override;

  HWND Hwnd() const { return hwnd_; }
  // The dots per inch that the window is drawn with: those of its monitor, or fewer where it would
  // not fit.
  int Dpi() const { return dpi_; }
  int MonitorDpi() const { return monitor_dpi_; }
  int Add(NativeControl& control);  // returns the ID of the control, by its row

  // False while a message box is open: the command that shows it is not done yet.
  bool IsEnabled() const { return IsWindowEnabled(hwnd_) != FALSE; }

  // Runs `step` from the message loop, even that of a message box, in the order of the calls; at
  // once if the message queue is full.
  void Defer(Toolkit::Event step);

  // The focused control, or the one that gets the focus when the window is active again.
  HWND Focus() const;
  void SetFocusTo(HWND control);

 private:
  static LRESULT CALLBACK WndProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);
  void ApplyCaption() override;

  // The control with this handle; null for any other handle, which another program may send.
  NativeControl* ControlOf(HWND hwnd) const;
  void RunDeferred();

  bool IsActive() const { return GetActiveWindow() == hwnd_; }
  bool IsWheelForUnfocusedCombo(const MSG& message) const;
  void SaveFocus();
  void Activated();
  void RestoreFocus();
  void SetDefaultButton(HWND button);
  void OnCommand(WORD id, WORD code, HWND sender);
  void ShowIcons();
  HBRUSH BackgroundBrush(HDC dc, HWND hwnd) const;

  // Size and position, of the window and of its controls: placement.cpp.
  void Center();
  SIZE NonClientSize() const;
  void Fit();
  void Refit();
  void HandleDpiChange(int dpi, const RECT& bounds);
  void PlaceControls();
  void ClipAroundFields();

  int client_width_, client_height_;  // twips
  HWND hwnd_ = nullptr;
  int dpi_ = USER_DEFAULT_SCREEN_DPI;
  int monitor_dpi_ = USER_DEFAULT_SCREEN_DPI;
  HMONITOR fitted_monitor_ = nullptr;  // where the window was last fitted
  RECT fitted_area_ = {};              // the work area there; empty if the window must be fitted
  bool is_dragged_ = false;
  std::vector<NativeControl*> controls_;
  std::vector<Toolkit::Event> deferred_;
  HWND last_focus_ = nullptr;
};

// Posted by the window to itself: runs what was deferred.
inline constexpr UINT DeferredMessage = WM_APP;

}  // namespace Win32
