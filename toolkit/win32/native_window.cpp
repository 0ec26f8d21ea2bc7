#include "native_window.h"

#include <commctrl.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <map>
#include <utility>

#include "clipboard.h"

namespace Win32 {

namespace {

constexpr DWORD WindowStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr UINT_PTR TimerId = 1;

// A background brush; created once, kept for the life of the program. It must be a real brush: a
// themed button may use it with another device context than that of the message.
HBRUSH BrushOf(Toolkit::Color color) {
  static std::map<Toolkit::Color, HBRUSH> brushes;
  HBRUSH& made = brushes[color];
  if (!made) made = CreateSolidBrush(static_cast<COLORREF>(color));
  return made;
}

bool IsPushButton(HWND window) {
  const LRESULT code = SendMessageW(window, WM_GETDLGCODE, 0, 0);
  return (code & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
}

// Sees the messages of the window and of message boxes before the dialog manager does. The repeats
// of an Enter that is held must not press the button, OK included, that it has led to.
LRESULT CALLBACK FilterEnterRepeats(int code, WPARAM wparam, LPARAM lparam) {
  const auto& message = *reinterpret_cast<const MSG*>(lparam);
  if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN && message.wParam == VK_RETURN &&
      (HIWORD(message.lParam) & KF_REPEAT) && IsPushButton(message.hwnd)) {
    return TRUE;
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

NativeWindow::NativeWindow(int client_width, int client_height)
    : client_width_(client_width), client_height_(client_height) {
  // Loads the version of the common controls that the manifest asks for.
  constexpr INITCOMMONCONTROLSEX Classes = {sizeof Classes, ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&Classes);
  WNDCLASSEXW window_class = {};
  window_class.cbSize = sizeof window_class;
  window_class.lpfnWndProc = WndProc;
  window_class.cbWndExtra = DLGWINDOWEXTRA;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  window_class.lpszClassName = WindowClass;
  RegisterClassExW(&window_class);

  // A dialog is made from a template, here without controls. After the header come, as texts, the
  // menu (none), the class and the caption (empty).
  struct alignas(DWORD) {
    DLGTEMPLATE header;
    WORD menu;
    wchar_t class_name[std::size(WindowClass)];
    WORD caption;
  } dialog = {{WindowStyle, 0, 0, 0, 0, 0, 0}, 0, {}, 0};
  std::copy(std::begin(WindowClass), std::end(WindowClass), dialog.class_name);
  hwnd_ = RequireWindow(
      CreateDialogIndirectParamW(window_class.hInstance, &dialog.header, nullptr, nullptr, 0));
  SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  // The dialog manager would scale the controls by itself, from rounded pixels.
  using Change = BOOL(WINAPI*)(HWND, UINT, UINT);
  if (const auto set_behavior =
          SystemFunction<Change>(L"user32.dll", "SetDialogDpiChangeBehavior")) {
    set_behavior(hwnd_, DDC_DISABLE_ALL, DDC_DISABLE_ALL);
  }
  SetWindowsHookExW(WH_MSGFILTER, FilterEnterRepeats, nullptr, GetCurrentThreadId());
  monitor_dpi_ = DpiOf(hwnd_);
  ShowIcons();
  Fit();
}

int NativeWindow::Add(NativeControl& control) {
  controls_.push_back(&control);
  return FirstControlId + static_cast<int>(controls_.size()) - 1;
}

int NativeWindow::Run() {
  PlaceControls();
  Center();
  ShowWindow(hwnd_, SW_SHOWDEFAULT);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (IsWheelForUnfocusedCombo(message)) continue;
    if (!IsDialogMessageW(hwnd_, &message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    SaveFocus();
  }
  return static_cast<int>(message.wParam);
}

void NativeWindow::ShowMessage(std::u16string_view text, std::u16string_view title,
                               Toolkit::Icon icon) {
  using Toolkit::Icon;
  static_assert(MB_ICONEXCLAMATION + 0u == static_cast<UINT>(Icon::Exclamation) &&
                MB_ICONINFORMATION + 0u == static_cast<UINT>(Icon::Information));
  MessageBoxW(hwnd_, Wide(std::u16string(text)), Wide(std::u16string(title)),
              MB_OK | static_cast<UINT>(icon));
}

void NativeWindow::SetClipboardText(std::u16string_view text) {
  ReplaceClipboard(hwnd_, text);
}

void NativeWindow::EndProgram() {
  DestroyWindow(hwnd_);
}

void NativeWindow::StartTimer(int milliseconds) {
  SetTimer(hwnd_, TimerId, static_cast<UINT>(milliseconds), nullptr);
}

NativeControl* NativeWindow::ControlOf(HWND hwnd) const {
  const auto found = std::ranges::find(controls_, hwnd, &NativeControl::Hwnd);
  return found == controls_.end() ? nullptr : *found;
}

void NativeWindow::Defer(Toolkit::Event step) {
  deferred_.push_back(std::move(step));
  if (!PostMessageW(hwnd_, DeferredMessage, 0, 0)) RunDeferred();
}

void NativeWindow::RunDeferred() {
  for (const Toolkit::Event& step : std::exchange(deferred_, {})) step();
}

HWND NativeWindow::Focus() const {
  const HWND focus = GetFocus();
  return IsActive() && focus ? focus : last_focus_;
}

void NativeWindow::SetFocusTo(HWND control) {
  if (Focus() == control) return;
  last_focus_ = control;
  // Through the dialog manager, so that the right button gets the default frame.
  if (IsActive()) {
    SendMessageW(hwnd_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
  }
}

// The wheel goes to the window under the pointer. A combo box that is not focused must not take it:
// its choice would change, and the focus move, while the user works elsewhere.
bool NativeWindow::IsWheelForUnfocusedCombo(const MSG& message) const {
  if (message.message != WM_MOUSEWHEEL) return false;
  const NativeControl* control = ControlOf(message.hwnd);
  if (!control) control = ControlOf(GetParent(message.hwnd));  // of an edit field
  return control && control->Kind() == Toolkit::Kind::ComboBox && !control->ContainsFocus();
}

void NativeWindow::SaveFocus() {
  const HWND focus = GetFocus();
  if (focus && IsChild(hwnd_, focus)) last_focus_ = focus;
}

LRESULT CALLBACK NativeWindow::WndProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const self = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (!self) return DefDlgProcW(hwnd, message, wparam, lparam);
  return self->OnMessage(message, wparam, lparam);
}

LRESULT NativeWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_ACTIVATE:
      // The dialog manager would restore the focus to a control that was disabled meanwhile,
      // leaving none focused. Its other work is done here as well.
      if (LOWORD(wparam) != WA_INACTIVE) {
        Activated();
      } else {
        SaveFocus();
        SetDefaultButton(nullptr);
      }
      return 0;
    case WM_SETFOCUS:
      if (last_focus_) RestoreFocus();
      return 0;
    case WM_SIZE:
      // There is no button for it, but a shortcut or another program can maximise the window.
      if (wparam == SIZE_MAXIMIZED) ShowWindow(hwnd_, SW_RESTORE);
      if (wparam == SIZE_RESTORED) Fit();
      // While minimised it could not focus a control.
      if (wparam == SIZE_RESTORED && IsActive() && !IsChild(hwnd_, GetFocus())) RestoreFocus();
      break;
    case WM_GETMINMAXINFO:
      // The system would cut the window to the size of the screen.
      reinterpret_cast<MINMAXINFO*>(lparam)->ptMaxTrackSize = {SHRT_MAX, SHRT_MAX};
      return 0;
    case WM_ENTERSIZEMOVE:
      is_dragged_ = true;
      break;
    case WM_EXITSIZEMOVE:
      is_dragged_ = false;
      Fit();
      break;
    case WM_MOVE:
    case WM_DISPLAYCHANGE:
      Fit();
      break;
    case WM_DPICHANGED:
      HandleDpiChange(LOWORD(wparam), *reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_SETTINGCHANGE:  // also for the work area
      Fit();
      if (wparam != SPI_SETNONCLIENTMETRICS && wparam != SPI_SETHIGHCONTRAST) break;
      [[fallthrough]];
    case WM_THEMECHANGED:
      Refit();
      break;
    case WM_COMMAND:
      OnCommand(LOWORD(wparam), HIWORD(wparam), reinterpret_cast<HWND>(lparam));
      return 0;
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
      if (NativeControl* const control = ControlOf(item.hwndItem)) control->Draw(item);
      return TRUE;
    }
    case DeferredMessage:
      RunDeferred();
      return 0;
    case WM_TIMER:
      if (wparam == TimerId && IsEnabled()) Toolkit::Raise(Tick);
      return 0;
    case WM_CLOSE:
      Toolkit::Raise(Unload);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      if (const HBRUSH brush =
              BackgroundBrush(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam))) {
        return reinterpret_cast<LRESULT>(brush);
      }
      break;
    case WM_ERASEBKGND: {
      if (BackColor() == DefaultColor) break;
      RECT client;
      GetClientRect(hwnd_, &client);
      FillRect(reinterpret_cast<HDC>(wparam), &client, BrushOf(BackColor()));
      return TRUE;
    }
    default:
      break;
  }
  return DefDlgProcW(hwnd_, message, wparam, lparam);
}

void NativeWindow::Activated() {
  if (!last_focus_) last_focus_ = GetNextDlgTabItem(hwnd_, nullptr, FALSE);
  RestoreFocus();
  NoteActivated();
}

void NativeWindow::RestoreFocus() {
  ::SetFocus(last_focus_);
  SetDefaultButton(last_focus_);
}

// Gives only this button the default frame; no button if it is none.
void NativeWindow::SetDefaultButton(HWND button) {
  for (const NativeControl* const control : controls_) {
    if (control->Kind() != Toolkit::Kind::CommandButton) continue;
    const HWND hwnd = control->Hwnd();
    const bool is_framed = (SendMessageW(hwnd, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
    if (is_framed == (hwnd == button)) continue;
    SendMessageW(hwnd, BM_SETSTYLE, is_framed ? BS_PUSHBUTTON : BS_DEFPUSHBUTTON, TRUE);
  }
}

// Sets the icons of the task bar and the title bar, in their sizes at the monitor's DPI.
void NativeWindow::ShowIcons() {
  for (const auto& [kind, size] : {std::pair{ICON_BIG, 32}, std::pair{ICON_SMALL, 16}}) {
    const int pixels = MulDiv(size, monitor_dpi_, USER_DEFAULT_SCREEN_DPI);
    const HANDLE icon =
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1), IMAGE_ICON, pixels, pixels, 0);
    const LRESULT before =
        SendMessageW(hwnd_, WM_SETICON, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(icon));
    DestroyIcon(reinterpret_cast<HICON>(before));
  }
}

void NativeWindow::OnCommand(WORD id, WORD code, HWND sender) {
  // IDOK is Enter while no button has the default frame, as after a click with the mouse: it
  // presses the focused button. IDCANCEL, Escape, has no sender and does nothing.
  NativeControl* const control = ControlOf(id == IDOK ? Focus() : sender);
  if (!control || (id == IDOK && control->Kind() != Toolkit::Kind::CommandButton)) return;
  control->OnCommand(code);
}

HBRUSH NativeWindow::BackgroundBrush(HDC dc, HWND hwnd) const {
  const NativeControl* const control = ControlOf(hwnd);
  const auto* colored = dynamic_cast<const Toolkit::Colored*>(control);
  // A themed button lets the background show at its edge.
  if (control && control->Kind() == Toolkit::Kind::CommandButton) colored = this;
  if (!colored || colored->BackColor() == DefaultColor) return nullptr;
  // Black, since the yellow is the same under every theme.
  SetTextColor(dc, Black);
  SetBkColor(dc, static_cast<COLORREF>(colored->BackColor()));
  return BrushOf(colored->BackColor());
}

void NativeWindow::ApplyCaption() {
  SetWindowTextW(hwnd_, Wide(Caption()));
}

}  // namespace Win32
