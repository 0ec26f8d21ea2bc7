// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved.
//
// What the program does with a key shows only some time later, so every expectation waits, and for
// the final state: never for "no longer the old one", which may be the state in between. A message
// that is sent comes back when the handler in progress has ended; the calls that look at focus,
// state or screen do not wait for that, and so each stands behind a sent message here. But sent
// messages overtake keys: what follows a key must wait until the key has shown its effect.
#pragma once

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "control_names.h"
#include "win32_toolkit.h"

// Expects `seen` to become `wanted` while the user waits. What is compared is the value that was
// waited for, or the last one that was seen instead; so `wanted` must not hold before the action
// that leads to it.
#define EXPECT_SEEN(seen, wanted) EXPECT_EQ(Await([&] { return seen; }, wanted), wanted)

namespace Desk {

constexpr DWORD Patience = 30000;  // milliseconds; far more than anything takes

// Looks until `see` gives `wanted`, and gives what it saw last.
template <class See, class Wanted>
auto Await(See see, const Wanted& wanted) {
  auto seen = see();
  for (const DWORD start = GetTickCount(); seen != wanted && GetTickCount() - start < Patience;) {
    MSG message;  // for windows that the test has opened itself
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(2);
    seen = see();
  }
  return seen;
}

inline Text TextOf(HWND window) {
  Text text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, u'\0');
  text.resize(static_cast<std::size_t>(
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

inline RECT RectOf(HWND window) {
  RECT rect = {};
  GetWindowRect(window, &rect);
  return rect;
}

inline void Key(WORD key, bool down) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  // The keys beside the number block, not those on it.
  if (key >= VK_PRIOR && key <= VK_DELETE) input.ki.dwFlags = KEYEVENTF_EXTENDEDKEY;
  if (!down) input.ki.dwFlags |= KEYEVENTF_KEYUP;
  SendInput(1, &input, sizeof input);
}

// Presses and releases one key after the other; Shift, Ctrl and Alt together with the next one.
inline void Press(const std::vector<WORD>& keys) {
  WORD held = 0;
  for (const WORD key : keys) {
    const bool stays_down = key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU;
    Key(key, true);
    if (!stays_down) Key(key, false);
    if (held != 0) Key(held, false);
    held = stays_down ? key : WORD{0};
  }
}

// Moves the mouse, and presses its button there.
inline void Mouse(int x, int y, bool click) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = MulDiv(x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
  for (const DWORD event :
       std::initializer_list<DWORD>{0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
    input.mi.dwFlags = event | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    if (event == 0 || click) SendInput(1, &input, sizeof input);
  }
}

struct Tandem {
  PROCESS_INFORMATION process = {};
  HWND window = nullptr;

  Tandem() {  // starts the program, which lies beside the test
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);  // true pixels
    Mouse(0, 0, false);  // out of the way: an open list follows the mouse that lies over it
    wchar_t command[] = L"tandem.exe";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                   &process);
    const auto first_screen = [this] {
      window = FindWindowW(Win32::WindowClass, nullptr);
      return !Read(u"txbOutput").empty() && Focus() == u"cmdConvert";
    };
    if (!Await(first_screen, true)) throw std::runtime_error("tandem.exe shows no first screen");
  }
  ~Tandem() {
    TerminateProcess(process.hProcess, 99);
    ExitCode();
  }
  int ExitCode() const {  // STILL_ACTIVE if the program does not end
    DWORD code = 0;
    WaitForSingleObject(process.hProcess, Patience);
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
  }

  HWND Control(View name) const {
    const auto row = std::ranges::find(Layout::Rows, name, NameOf);
    return GetDlgItem(window, Win32::FirstControlId + int(row - std::begin(Layout::Rows)));
  }
  LRESULT Ask(View control, UINT message) const {
    return SendMessageW(Control(control), message, 0, 0);
  }
  Text Read(View control) const { return TextOf(Control(control)); }

  // Where the next key goes, all of it from one look at the thread in front: the name of a control,
  // AtBox while a message box is in front and its button has the focus, or nothing.
  static constexpr View AtBox = u"the button of a box";
  Text Focus() const {
    SendMessageW(window, WM_NULL, 0, 0);
    GUITHREADINFO front = {};
    front.cbSize = sizeof front;
    GetGUIThreadInfo(0, &front);
    if (!front.hwndFocus) return u"";
    if (front.hwndActive != window) {
      return GetWindow(front.hwndActive, GW_OWNER) == window ? Text(AtBox) : u"";
    }
    // A list has the focus also when the line in it has.
    const HWND parent = GetParent(front.hwndFocus);
    const int id = GetDlgCtrlID(parent == window ? front.hwndFocus : parent);
    const auto row = static_cast<std::size_t>(id - Win32::FirstControlId);
    return row < std::size(Layout::Rows) ? NameOf(Layout::Rows[row]) : u"";
  }

  // Gives a control the focus as the dialog manager does; where Tab leads has a test of its own.
  void GoTo(View control) const {
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
    EXPECT_SEEN(Focus(), control);
  }
  void Fill(View box, View text) const {  // as a program does, without keys
    SendMessageW(Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text(text).c_str()));
  }
  void Tick() const {  // the timer's message, which comes back when the tick is over
    SendMessageW(window, WM_TIMER, Win32::TimerId, 0);
  }
};

}  // namespace Desk
