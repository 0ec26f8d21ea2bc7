#include "native.h"

#include <cstddef>
#include <map>
#include <tuple>

#include "native_window.h"

namespace Win32 {

namespace {

// Bitmap fonts have only a few sizes. At other DPIs the outline font of the same design replaces
// them.
const char16_t* FaceAt(std::u16string_view face, int dpi) {
  constexpr int DpiOfBitmaps = USER_DEFAULT_SCREEN_DPI;
  return face == u"MS Sans Serif" && dpi != DpiOfBitmaps ? u"Microsoft Sans Serif" : face.data();
}

// Screen readers take the name of a text box or a combo box from the STATIC control before it. This
// one is invisible and has no ID.
void CreateAccessibleName(HWND window, std::u16string_view name) {
  constexpr INT_PTR NoId = 0xFFFF;
  RequireWindow(CreateWindowExW(0, L"STATIC", WideLiteral(name), WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0,
                                window, reinterpret_cast<HMENU>(NoId), GetModuleHandleW(nullptr),
                                nullptr));
}

}  // namespace

HWND RequireWindow(HWND window) {
  if (window) return window;
  MessageBoxW(nullptr, L"Tandem cannot make its window.", L"Tandem", MB_OK | MB_ICONERROR);
  ExitProcess(1);
}

int DpiOf(HWND window) {
  // Windows 7 and 8 have one DPI for everything. Windows 8.1 has one for each monitor: this is that
  // of the primary monitor at sign-in, and WM_DPICHANGED reports any other.
  static const auto get_dpi = SystemFunction<UINT(WINAPI*)(HWND)>(L"user32.dll", "GetDpiForWindow");
  if (get_dpi) return static_cast<int>(get_dpi(window));
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

HFONT FontAt(const Toolkit::Font& font, bool bold, int dpi) {
  static std::map<std::tuple<std::u16string_view, int, bool>, HFONT> fonts;
  const char16_t* const face = FaceAt(font.face, dpi);
  const int height = Pixels(font.height, dpi);
  HFONT& made = fonts[{face, height, bold}];
  if (!made) {
    made = CreateFontW(-height, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, Wide(face));
  }
  return made;
}

std::u16string TextOf(HWND window) {
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)), u'\0');
  // May be shorter than announced.
  const int length = GetWindowTextW(window, reinterpret_cast<wchar_t*>(text.data()),
                                    static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

int LineHeight(HWND control) {
  const HDC dc = GetDC(control);
  SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics;
  GetTextMetricsW(dc, &metrics);
  ReleaseDC(control, dc);
  return metrics.tmHeight;
}

NativeControl::NativeControl(NativeWindow& window, const Toolkit::ControlTemplate& row, Style style)
    : window_(window), row_(row) {
  if (!row.accessible_name.empty()) CreateAccessibleName(window.Hwnd(), row.accessible_name);
  const RECT bounds = LayoutBounds();  // moving it later would show at start-up
  hwnd_ = RequireWindow(CreateWindowExW(
      style.ex_style, style.window_class, WideLiteral(row.text),
      WS_CHILD | WS_VISIBLE | style.style, bounds.left, bounds.top, bounds.right - bounds.left,
      bounds.bottom - bounds.top, window.Hwnd(),
      reinterpret_cast<HMENU>(INT_PTR{window.Add(*this)}), GetModuleHandleW(nullptr), nullptr));
}

bool NativeControl::ContainsFocus() const {
  const HWND focus = GetFocus();
  return focus == hwnd_ || IsChild(hwnd_, focus);
}

RECT NativeControl::LayoutBounds() const {
  const int dpi = window_.Dpi();
  const Toolkit::Bounds bounds = BoundsOf(row_);
  const int left = Pixels(bounds.left, dpi);
  const int top = Pixels(bounds.top, dpi);
  return {left, top, left + Pixels(bounds.width, dpi), top + Pixels(bounds.height, dpi)};
}

void NativeControl::Place() {
  const RECT place = LayoutBounds();
  SetWindowPos(hwnd_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  UseFont(false);
}

void NativeControl::SetRegion(HRGN region) {
  // SetWindowRgn is slow enough to show at start-up.
  if (!region && !has_region_) return;
  has_region_ = region != nullptr;
  SetWindowRgn(hwnd_, region, FALSE);  // takes ownership
}

void NativeControl::UseFont(bool bold) {
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(FontAt(row_.font, bold, window_.Dpi())), TRUE);
}

void NativeControl::SuspendRedraw() {
  if (is_redraw_suspended_ || !IsWindowVisible(hwnd_)) return;
  is_redraw_suspended_ = true;
  Send(WM_SETREDRAW, FALSE);
  window_.Defer([this] { ResumeRedraw(); });
}

void NativeControl::ResumeRedraw() {
  is_redraw_suspended_ = false;
  Send(WM_SETREDRAW, TRUE);
  RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace Win32
