// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved.
//
// What the program does with a key can be seen only some time later, so every expectation waits,
// and for the final state: never for "no longer the old one", which may be the state in between. A
// message that is sent comes back when the handler in progress has ended; the calls that look at
// focus, state or screen do not wait for that, and so each stands behind a sent message here. But
// sent messages overtake keys: an action ends only when its last key has shown its effect.
#pragma once

#include <windows.h>

#include <stdexcept>

#include "scenarios.h"
#include "win32_toolkit.h"

namespace Desk {

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

// Keys that type nothing stand in a text as their number above FirstKey.
constexpr char16_t FirstKey = 0xE000;
constexpr char16_t Tab = FirstKey + VK_TAB;
constexpr char16_t Return = FirstKey + VK_RETURN;
constexpr char16_t Esc = FirstKey + VK_ESCAPE;
constexpr char16_t Space = FirstKey + VK_SPACE;
constexpr char16_t Home = FirstKey + VK_HOME;
constexpr char16_t End = FirstKey + VK_END;
constexpr char16_t Left = FirstKey + VK_LEFT;
constexpr char16_t Up = FirstKey + VK_UP;
constexpr char16_t Down = FirstKey + VK_DOWN;
constexpr char16_t Delete = FirstKey + VK_DELETE;
constexpr char16_t F4 = FirstKey + VK_F4;
constexpr char16_t Shift = FirstKey + VK_SHIFT;
constexpr char16_t Ctrl = FirstKey + VK_CONTROL;
constexpr char16_t Alt = FirstKey + VK_MENU;

inline void Key(char16_t c, bool down) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  if (c < FirstKey) {
    input.ki.wScan = c;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
  } else {
    input.ki.wVk = static_cast<WORD>(c - FirstKey);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(input.ki.wVk, MAPVK_VK_TO_VSC));
    // Those beside the number block, not those on it.
    const bool is_extended = input.ki.wVk >= VK_PRIOR && input.ki.wVk <= VK_DELETE;
    if (is_extended) input.ki.dwFlags = KEYEVENTF_EXTENDEDKEY;
  }
  if (!down) input.ki.dwFlags |= KEYEVENTF_KEYUP;
  SendInput(1, &input, sizeof input);
}

// Presses and releases one key after the other; Shift, Ctrl and Alt together with the next one.
inline void Press(const Text& keys) {
  char16_t held = 0;
  for (const char16_t c : keys) {
    const bool stays_down = c == Shift || c == Ctrl || c == Alt;
    Key(c, true);
    if (!stays_down) Key(c, false);
    if (held) Key(held, false);
    held = stays_down ? c : u'\0';
  }
}

// Moves the mouse, then does there what `event` says.
inline void Mouse(int x, int y, DWORD event, int data = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = MulDiv(x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
  input.mi.mouseData = static_cast<DWORD>(data);
  for (const DWORD flags : {DWORD{0}, event}) {
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    SendInput(1, &input, sizeof input);
  }
}
inline void Click(int x, int y) {
  Mouse(x, y, MOUSEEVENTF_LEFTDOWN);
  Mouse(x, y, MOUSEEVENTF_LEFTUP);
}

struct Tandem : User {
  PROCESS_INFORMATION process = {};
  HWND window = nullptr;

  Tandem() {  // starts the program, which lies beside the test
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);  // true pixels
    Mouse(0, 0, 0);  // out of the way: an open list follows the mouse that lies over it
    wchar_t command[] = L"tandem.exe";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                   &process);
    const Text first_focus = Await(
        [this] {
          window = FindWindowW(Win32::WindowClass, nullptr);
          return Read(u"txbOutput").empty() ? u"" : Focus();
        },
        u"cmdConvert");
    if (first_focus != u"cmdConvert") throw std::runtime_error("tandem.exe shows no first screen");
  }
  ~Tandem() override {
    TerminateProcess(process.hProcess, 99);
    ExitCode();
  }
  int ExitCode() const {  // STILL_ACTIVE if the program does not end
    DWORD code = 0;
    WaitForSingleObject(process.hProcess, PatienceMs);
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
  }

  HWND Control(View name) const {
    const auto row = std::ranges::find(Layout::Rows, name, NameOf);
    return GetDlgItem(window, Win32::FirstControlId + int(row - std::begin(Layout::Rows)));
  }
  LRESULT Ask(View control, UINT message, int number = 0) const {
    return SendMessageW(Control(control), message, static_cast<WPARAM>(number), 0);
  }
  Text Read(View control) const override { return TextOf(Control(control)); }
  bool IsEnabled(View button) const override {
    Ask(button, WM_NULL);
    return IsWindowEnabled(Control(button)) != FALSE;
  }

  // Where the next key goes, all of it from one look at the thread in front: the name of a control,
  // AtBox while a message box is in front and its button has the focus, or nothing.
  static constexpr View AtBox = u"the button of a box";
  Text Focus() const override {
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

  // At the limit the state is what it is, and does not pass for the one that was waited for.
  static constexpr DWORD PatienceMs = 30000;
  void WaitUntil(const std::function<bool()>& holds) const override {
    for (const DWORD start = GetTickCount(); !holds(); Sleep(2)) {
      MSG message;  // for windows that the test has opened itself
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      if (GetTickCount() - start > PatienceMs) return;
    }
  }
  void SecondPasses() override {  // the timer's message, which comes back when the tick is over
    SendMessageW(window, WM_TIMER, 1, 0);
  }

  // Gives a control the focus as the dialog manager does; where Tab leads has a test of its own.
  void GoTo(View control) const {
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
    Await([&] { return Focus(); }, control);
  }
  void Set(View field, View value) override {
    if (Read(field) == value) return;
    GoTo(field);
    const LRESULT item = SendMessageW(Control(field), CB_FINDSTRINGEXACT, WPARAM(-1),
                                      reinterpret_cast<LPARAM>(Text(value).c_str()));
    if (field.starts_with(u"txb") || item < 0) {
      Press(Text{Home, Shift, End, Delete}.append(value));
      Await([&] { return Read(field); }, value);
      return;
    }
    // A choice moves the focus, but for the list that has no handler.
    const LRESULT steps = item - Ask(field, CB_GETCURSEL);
    Press(F4 + Text(static_cast<std::size_t>(std::abs(steps)), steps > 0 ? Down : Up) + Return);
    Await([&] { return Read(field) == value && Ask(field, CB_GETDROPPEDSTATE) == FALSE; }, true);
    Await([&] { return Focus(); }, field == u"cboMType" ? field : u"cmdConvert");
  }
  void Choose(View option) override {  // by the arrow key, which goes round
    for (const View next : {u"optCalendar0", u"optCalendar1", u"optCalendar2", u"optCalendar0"}) {
      if (Ask(option, BM_GETCHECK) == BST_CHECKED) return;
      if (Ask(next, BM_GETCHECK) != BST_CHECKED) continue;
      GoTo(next);
      Press({Down});
      Await([&] { return Focus(); }, u"cmdConvert");
    }
  }
  void Push(View button) override {
    Await([&] { return IsEnabled(button); }, true);
    GoTo(button);
    Press({Space});
  }
  Box CloseBox(View behind) override {
    Await([&] { return Focus(); }, AtBox);
    const HWND box = GetLastActivePopup(window);
    const HWND icon = FindWindowExW(box, nullptr, L"Static", nullptr);
    const Box seen = {TextOf(FindWindowExW(box, icon, L"Static", nullptr)), TextOf(box), {}};
    Press({Return});
    Await([&] { return Focus(); }, behind);
    return seen;
  }
};

}  // namespace Desk
