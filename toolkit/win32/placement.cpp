// Where the window stands, how large it is drawn, and where its controls stand in it.
#include <algorithm>
#include <utility>

#include "native_window.h"

namespace Win32 {

namespace {

constexpr int LowestDpi = 60;  // what is drawn smaller cannot be read

HMONITOR MonitorOf(HWND window) {
  return MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST);
}

RECT WorkArea(HMONITOR monitor) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

// The place next to `wanted` where something of that length lies between the two ends. If it is too
// long it begins at the first of them, where the title bar is.
int Between(LONG first, LONG last, int length, LONG wanted) {
  return std::max(first, std::min(wanted, last - length));
}

}  // namespace

void NativeWindow::Centre() {
  const RECT area = WorkArea(MonitorOf(hwnd_));
  RECT outer;
  GetWindowRect(hwnd_, &outer);
  const int width = outer.right - outer.left;
  const int height = outer.bottom - outer.top;
  SetWindowPos(hwnd_, nullptr,
               Between(area.left, area.right, width, (area.left + area.right - width) / 2),
               Between(area.top, area.bottom, height, (area.top + area.bottom - height) / 2), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Draws the window at the largest scale, up to that of its monitor, at which the whole of it lies
// in the work area, and moves it there. Does nothing if it need not and has been fitted to just
// this area; a window that is dragged must not change its size, which could bring it back to the
// monitor that it comes from, and a minimised or maximised one is on its way to its own size.
void NativeWindow::Fit() {
  const HMONITOR monitor = MonitorOf(hwnd_);
  const RECT area = WorkArea(monitor);
  if (is_dragged_ || IsIconic(hwnd_) || IsZoomed(hwnd_)) return;
  if (!must_fit_ && EqualRect(&area, &fitted_area_)) return;
  // Moved to another monitor it may lie across both; on its own the area has changed.
  bool may_stay = !must_fit_ && monitor != fitted_monitor_;
  must_fit_ = false;
  fitted_monitor_ = monitor;
  fitted_area_ = area;
  // What the frame adds is seen once the window is larger than its frame, so the first size of a
  // new window is a guess.
  for (int tries = 0; tries < 2; ++tries) {
    RECT outer;
    RECT client;
    GetWindowRect(hwnd_, &outer);
    GetClientRect(hwnd_, &client);
    const int frame_width = outer.right - outer.left - client.right;
    const int frame_height = outer.bottom - outer.top - client.bottom;
    const auto width = [&] { return frame_width + Pixels(client_width_, dpi_); };
    const auto height = [&] { return frame_height + Pixels(client_height_, dpi_); };
    const auto has_room = [&] {
      return width() <= area.right - area.left && height() <= area.bottom - area.top;
    };
    const int dpi_before = std::exchange(dpi_, monitor_dpi_);
    while (dpi_ > LowestDpi && !has_room()) --dpi_;
    if (may_stay && dpi_ == dpi_before && has_room()) return;
    may_stay = false;
    SetWindowPos(hwnd_, nullptr, Between(area.left, area.right, width(), outer.left),
                 Between(area.top, area.bottom, height(), outer.top), width(), height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  PlaceControls();
}

// After a change of the theme or the scale: at once, and again when the native
// controls have heard of it, too. They may then measure themselves anew.
void NativeWindow::FitAnew() {
  must_fit_ = true;
  Fit();
  PostMessageW(hwnd_, PlaceMessage, 0, 0);
}

void NativeWindow::MoveToDpi(int dpi, const RECT& place) {
  // A dragged window is fitted when it is let go. Until then it grows or shrinks with the place.
  dpi_ = MulDiv(dpi_, dpi, monitor_dpi_);
  monitor_dpi_ = dpi;
  ShowIcons();
  // The whole place at once: a window that is resized where it was may change its monitor again.
  SetWindowPos(hwnd_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  if (is_dragged_) PlaceControls();
  FitAnew();
}

void NativeWindow::PlaceControls() {
  for (Native* const control : controls_) control->Place();
  KeepOffFields();
  RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Some labels and options reach a few pixels into a field beside them, and would paint their ground
// over its border: they are cut back to where they do not.
void NativeWindow::KeepOffFields() {
  for (Native* const ground : controls_) {
    if (ground->Kind() != Toolkit::Kind::Label && ground->Kind() != Toolkit::Kind::OptionButton)
      continue;
    const RECT rect = ground->StoredPlace();
    HRGN region = nullptr;
    for (const Native* const field : controls_) {
      if (field->Kind() != Toolkit::Kind::TextBox && field->Kind() != Toolkit::Kind::List) continue;
      const RECT cut = field->StoredPlace();
      RECT common;
      if (!IntersectRect(&common, &rect, &cut)) continue;
      if (!region) region = CreateRectRgnIndirect(&rect);
      const HRGN taken = CreateRectRgnIndirect(&cut);
      CombineRgn(region, region, taken, RGN_DIFF);
      DeleteObject(taken);
    }
    if (region) OffsetRgn(region, -rect.left, -rect.top);
    ground->CutTo(region);
  }
}

}  // namespace Win32
