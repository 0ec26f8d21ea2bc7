#include "centered_edit.h"

#include <commctrl.h>

#include "native.h"

namespace Win32 {

namespace {

// An edit control writes at the top of its client area. So that is made as high as a line of text;
// what is between it and the border becomes part of the frame, and is painted with that.
LRESULT CALLBACK CenteredEdit(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                              DWORD_PTR) {
  const LRESULT result = DefSubclassProc(hwnd, message, wparam, lparam);
  if (message == WM_NCCALCSIZE) {
    RECT& client = *reinterpret_cast<RECT*>(lparam);  // or the first of three
    const int spare = static_cast<int>(client.bottom - client.top) - LineHeight(hwnd);
    if (spare <= 0) return result;
    client.top += (spare + 1) / 2;  // as DrawText rounds
    client.bottom -= spare / 2;
  } else if (message == WM_NCPAINT) {
    RECT window, field, client;
    GetWindowRect(hwnd, &window);
    field = window;
    DefSubclassProc(hwnd, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&field));
    GetClientRect(hwnd, &client);
    MapWindowPoints(hwnd, nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&field, -window.left, -window.top);
    OffsetRect(&client, -window.left, -window.top);
    const HDC dc = GetWindowDC(hwnd);
    ExcludeClipRect(dc, client.left, client.top, client.right, client.bottom);
    FillRect(dc, &field, GetSysColorBrush(COLOR_WINDOW));
    ReleaseDC(hwnd, dc);
  } else if (message == WM_NCHITTEST && (result == HTBORDER || result == HTNOWHERE)) {
    return HTCLIENT;  // a click above or below the text places the caret
  }
  return result;
}

}  // namespace

void CenterText(HWND edit) {
  SetWindowSubclass(edit, CenteredEdit, 0, 0);
}

void FitText(HWND edit) {
  SendMessageW(edit, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  SetWindowPos(edit, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace Win32
