// Where the window is, how large it is drawn, and where its controls are.
#include <algorithm>

#include "native_window.h"

namespace Win32 {

namespace {

constexpr int MinDpi = 60;  // smaller is illegible

HMONITOR MonitorOf(HWND window) {
  return MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST);
}

RECT WorkArea(HMONITOR monitor) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

// The position nearest `wanted` that keeps `length` inside; `first` if it is too long, where the
// title bar is.
int ClampPosition(LONG first, LONG last, int length, LONG wanted) {
  return std::max(first, std::min(wanted, last - length));
}

}  // namespace

void NativeWindow::Center() {
  const RECT area = WorkArea(MonitorOf(hwnd_));
  RECT outer;
  GetWindowRect(hwnd_, &outer);
  const int width = outer.right - outer.left;
  const int height = outer.bottom - outer.top;
  SetWindowPos(hwnd_, nullptr,
               ClampPosition(area.left, area.right, width, (area.left + area.right - width) / 2),
               ClampPosition(area.top, area.bottom, height, (area.top + area.bottom - height) / 2),
               0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// What the frame adds to the client area, which is the same for a window of any size.
SIZE NativeWindow::NonClientSize() const {
  constexpr LONG AnySize = 10000;
  RECT client = {0, 0, AnySize, AnySize};
  SendMessageW(hwnd_, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&client));
  return {AnySize - (client.right - client.left), AnySize - (client.bottom - client.top)};
}

// Draws the window at the largest DPI, up to that of its monitor, at which it fits the work area,
// and moves it inside. Not while it is dragged, when another size could return it to the monitor
// that it comes from, nor while it is minimised or maximised.
void NativeWindow::Fit() {
  const HMONITOR monitor = MonitorOf(hwnd_);
  const RECT area = WorkArea(monitor);
  if (is_dragged_ || IsIconic(hwnd_) || IsZoomed(hwnd_) || EqualRect(&area, &fitted_area_)) return;
  const bool has_moved = fitted_monitor_ && monitor != fitted_monitor_;
  fitted_monitor_ = monitor;
  fitted_area_ = area;

  const SIZE frame = NonClientSize();
  const auto width = [&](int dpi) { return frame.cx + Pixels(client_width_, dpi); };
  const auto height = [&](int dpi) { return frame.cy + Pixels(client_height_, dpi); };
  const auto fits = [&](int dpi) {
    return width(dpi) <= area.right - area.left && height(dpi) <= area.bottom - area.top;
  };
  int dpi = monitor_dpi_;
  while (dpi > MinDpi && !fits(dpi)) --dpi;
  // The user may leave the window across the edge of two monitors.
  if (has_moved && dpi == dpi_ && fits(dpi)) return;
  dpi_ = dpi;
  RECT outer;
  GetWindowRect(hwnd_, &outer);
  SetWindowPos(hwnd_, nullptr, ClampPosition(area.left, area.right, width(dpi), outer.left),
               ClampPosition(area.top, area.bottom, height(dpi), outer.top), width(dpi),
               height(dpi), SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  PlaceControls();
}

// Refits after a change of theme or DPI, and places the controls again once they have heard of it:
// they may measure themselves again.
void NativeWindow::Refit() {
  fitted_monitor_ = nullptr;
  fitted_area_ = {};
  Fit();
  Defer([this] { PlaceControls(); });
}

void NativeWindow::HandleDpiChange(int dpi, const RECT& bounds) {
  // A dragged window is fitted when it is released. Until then it grows or shrinks with its bounds.
  dpi_ = MulDiv(dpi_, dpi, monitor_dpi_);
  monitor_dpi_ = dpi;
  ShowIcons();
  // Position and size at once: resized where it was, the window may change its monitor again.
  SetWindowPos(hwnd_, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
               bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
  if (is_dragged_) PlaceControls();
  Refit();
}

void NativeWindow::PlaceControls() {
  for (NativeControl* const control : controls_) control->Place();
  ClipAroundFields();
  RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Some labels and option buttons reach a few pixels into the field beside them and would paint
// their background over its border.
void NativeWindow::ClipAroundFields() {
  for (NativeControl* const label : controls_) {
    if (label->Kind() != Toolkit::Kind::Label && label->Kind() != Toolkit::Kind::OptionButton)
      continue;
    const RECT rect = label->LayoutBounds();
    HRGN region = nullptr;
    for (const NativeControl* const field : controls_) {
      if (field->Kind() != Toolkit::Kind::TextBox && field->Kind() != Toolkit::Kind::ComboBox)
        continue;
      const RECT field_rect = field->LayoutBounds();
      RECT common;
      if (!IntersectRect(&common, &rect, &field_rect)) continue;
      if (!region) region = CreateRectRgnIndirect(&rect);
      const HRGN taken = CreateRectRgnIndirect(&field_rect);
      CombineRgn(region, region, taken, RGN_DIFF);
      DeleteObject(taken);
    }
    if (region) OffsetRgn(region, -rect.left, -rect.top);
    label->SetRegion(region);
  }
}

}  // namespace Win32
