#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "centered_edit.h"
#include "controls.h"

namespace Win32 {

namespace {

constexpr WPARAM NoLimit = 0x7FFFFFFE;  // the largest that an edit control takes
constexpr WPARAM CtrlA = 1;             // the character that Ctrl+A types

NativeControl::Style StyleOf(const Toolkit::ControlTemplate& row) {
  const DWORD lines = row.properties.multiline
                          ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL
                          : ES_AUTOHSCROLL;
  return {L"EDIT", lines | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE};
}

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

// The shift state that a key event reports: 1 for Shift, 2 for Ctrl, 4 for Alt.
std::int16_t ShiftState() {
  return static_cast<std::int16_t>((IsDown(VK_SHIFT) ? 1 : 0) | (IsDown(VK_CONTROL) ? 2 : 0) |
                                   (IsDown(VK_MENU) ? 4 : 0));
}

}  // namespace

TextBox::TextBox(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : NativeControl(window, row, StyleOf(row)) {
  const int most = row.properties.max_length;
  Send(EM_SETLIMITTEXT, most > 0 ? static_cast<WPARAM>(most) : NoLimit);
  if (!row.properties.multiline) CenterText(hwnd_);
  SetWindowSubclass(hwnd_, WndProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

void TextBox::Place() {
  NativeControl::Place();
  FitText(hwnd_);
}

LRESULT CALLBACK TextBox::WndProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                  DWORD_PTR text_box) {
  LRESULT result = 0;
  const bool is_done =
      reinterpret_cast<TextBox*>(text_box)->OnMessage(message, wparam, lparam, result);
  return is_done ? result : DefSubclassProc(hwnd, message, wparam, lparam);
}

// Returns whether the message is done.
bool TextBox::OnMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  switch (message) {
    case WM_GETDLGCODE:
      result = DialogCode(reinterpret_cast<const MSG*>(lparam));
      return true;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:  // with Alt
      // Another program can send keys while a message box is open.
      if (window_.IsEnabled()) {
        NoteKeyDown(static_cast<std::int16_t>(wparam), (HIWORD(lparam) & KF_REPEAT) != 0);
      }
      // Not every keyboard layout makes a character of Ctrl+Tab.
      if (!IsTypedTab(wparam)) return false;
      Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"\t"));
      return true;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      if (window_.IsEnabled()) NoteKeyUp(static_cast<std::int16_t>(wparam), ShiftState());
      return false;
    case WM_KILLFOCUS:
      NoteFocusLost();
      return false;
    case WM_CHAR:
      if (IsTypedTab(wparam)) return true;
      if (wparam == CtrlA) SetSelection({0, -1});
      // A single-line edit control would beep at Enter, with Ctrl or without.
      return wparam == CtrlA ||
             ((wparam == u'\r' || wparam == u'\n') && !row_.properties.multiline);
    case WM_SYSCHAR:  // Alt+Enter, at which the system would beep
      return wparam == u'\r';
    default:
      return false;
  }
}

// Ctrl+Tab, as a key or as a character: both have the same code.
bool TextBox::IsTypedTab(WPARAM key) const {
  return key == VK_TAB && IsDown(VK_CONTROL) && row_.properties.multiline;
}

// What the dialog manager leaves to the text box. Not forwarded: a multiline edit control that
// knows that it is in a dialog closes the dialog at Escape.
LRESULT TextBox::DialogCode(const MSG* key) const {
  const bool key_down = key && key->message == WM_KEYDOWN;
  if (row_.properties.multiline) {
    // Tab leaves the pane, Ctrl+Tab types a tab. Without DLGC_HASSETSEL, since Tab into the pane
    // must not select the whole log, which the next key would replace.
    const bool leaves =
        key_down && (key->wParam == VK_ESCAPE || (key->wParam == VK_TAB && !IsDown(VK_CONTROL)));
    return DLGC_WANTCHARS | DLGC_WANTARROWS | (leaves ? 0 : DLGC_WANTALLKEYS);
  }
  // Enter takes effect on key-up, so the text box must see the key-down.
  const bool enter = key_down && key->wParam == VK_RETURN;
  return DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL | (enter ? DLGC_WANTALLKEYS : 0);
}

void TextBox::AppendText(std::u16string_view text) {
  const std::int32_t end = TextLength();
  SetSelection({end, end});
  Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(std::u16string(text).c_str()));
}

void TextBox::SetSelStart(std::int32_t position) {
  SetSelection({position, position});
  Send(EM_SCROLLCARET);
}

void TextBox::ApplyText(std::u16string_view text) {
  SuspendRedraw();
  SetWindowTextW(hwnd_, Wide(std::u16string(text)));
}

TextBox::Selection TextBox::GetSelection() const {
  DWORD start = 0;
  DWORD end = 0;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
}

void TextBox::SetSelection(Selection selection) {
  Send(EM_SETSEL, static_cast<WPARAM>(selection.start), selection.end);
}

}  // namespace Win32
