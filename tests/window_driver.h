// Drives a running tandem.exe from outside, as any program on the desktop can: finds its windows,
// reads their texts and presses keys.
//
// The effect of a key shows only later, so every expectation waits, and for the final state: never
// for "no longer the old one", which may be a state in between. A sent message returns when the
// handler in progress has ended. The calls that look at focus, state or screen do not wait for
// that, so each follows a sent message here. But sent messages overtake keys: what follows a key
// must wait until the key has shown its effect.
#pragma once

#include <windows.h>

#include <process.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <tuple>
#include <vector>

#include "control_names.h"
#include "layout.h"
#include "win32_toolkit.h"

// Polls until `seen` equals `wanted`, which must not hold before, and compares the last value.
#define EXPECT_EVENTUALLY(seen, wanted) EXPECT_EQ(Await([&] { return seen; }, wanted), wanted)

namespace Driver {

// A number of polls, 2 ms and more apart, not a time, so that a stalled machine fails no test.
constexpr int MostPolls = 10000;

// Polls until `see` returns `wanted`, and returns its last value.
template <class See, class Wanted>
auto Await(See see, const Wanted& wanted, int most_polls = MostPolls) {
  auto seen = see();
  for (int polls = 1; seen != wanted && polls < most_polls; ++polls) {
    Sleep(2);
    seen = see();
  }
  return seen;
}

inline Text TextOf(HWND window) {
  Text text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)), u'\0');
  SendMessageW(window, WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

inline COLORREF ScreenPixel(int x, int y) {
  const HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, x, y);
  ReleaseDC(nullptr, screen);
  return color;
}

inline RECT BoundsOf(HWND window) {
  RECT bounds;
  GetWindowRect(window, &bounds);
  return bounds;
}

inline void Key(WORD key, bool down) {
  keybd_event(static_cast<BYTE>(key), 0, down ? 0 : KEYEVENTF_KEYUP, 0);
}

// Presses and releases one key after the other.
inline void Press(const std::vector<WORD>& keys) {
  for (const WORD key : keys) {
    Key(key, true);
    Key(key, false);
  }
}

// Clicks a few pixels from the right end of a control, where a combo box has its arrow. Then the
// mouse moves away, since an open list highlights what is under it.
inline void Click(HWND window) {
  const RECT bounds = BoundsOf(window);
  // Position and button in one event, so that no move of the mouse can come between.
  mouse_event(MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP,
              static_cast<DWORD>(MulDiv(bounds.right - 8, 65536, GetSystemMetrics(SM_CXSCREEN))),
              static_cast<DWORD>(MulDiv(bounds.top + 8, 65536, GetSystemMetrics(SM_CYSCREEN))), 0,
              0);
  SetCursorPos(0, 0);
}

// Each test starts the program.
struct RealWindow : testing::Test {
  HANDLE process = nullptr;
  HWND window = nullptr;

  void SetUp() override {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);  // true pixels
    SetCursorPos(0, 0);
    process = reinterpret_cast<HANDLE>(_spawnl(_P_NOWAIT, "tandem.exe", "tandem.exe", nullptr));
    const auto first_screen = [this] {
      window = FindWindowW(Win32::WindowClass, nullptr);
      return !Read(u"txbOutput").empty() && Focus() == u"cmdConvert";
    };
    ASSERT_TRUE(Await(first_screen, true)) << "tandem.exe shows no first screen";
  }
  void TearDown() override {
    if (process == INVALID_HANDLE_VALUE) return;  // it did not start
    TerminateProcess(process, 99);
    WaitForSingleObject(process, INFINITE);
  }

  HWND Control(View name) const {
    const auto row = std::ranges::find(Layout::Rows, name, NameOf);
    return GetDlgItem(window, Win32::FirstControlId + int(row - std::begin(Layout::Rows)));
  }
  LRESULT Ask(View control, UINT message) const {
    return SendMessageW(Control(control), message, 0, 0);
  }
  Text Read(View control) const { return TextOf(Control(control)); }
  // What a combo box shows, its index, and whether its list is open.
  std::tuple<Text, LRESULT, LRESULT> ComboState(View combo) const {
    return {Read(combo), Ask(combo, CB_GETCURSEL), Ask(combo, CB_GETDROPPEDSTATE)};
  }

  // Where the next key goes, from one look at the foreground thread: the name of a control,
  // AtMessageBox if the button of a message box is focused, or nothing.
  static inline const Text AtMessageBox = u"the button of a message box";
  Text Focus() const {
    SendMessageW(window, WM_NULL, 0, 0);
    GUITHREADINFO front = {};
    front.cbSize = sizeof front;
    GetGUIThreadInfo(0, &front);
    const HWND focus = front.hwndFocus;
    if (focus && GetWindow(front.hwndActive, GW_OWNER) == window) return AtMessageBox;
    for (const Toolkit::ControlTemplate& row : Layout::Rows) {
      // Or the edit field of a combo box.
      const HWND control = Control(NameOf(row));
      if (focus && (focus == control || IsChild(control, focus))) return NameOf(row);
    }
    return u"";
  }

  // The colour of the point of a control `x` pixels from its left edge, at half its height.
  COLORREF Pixel(View control, int x) const {
    const RECT bounds = BoundsOf(Control(control));
    return ScreenPixel(bounds.left + x, (bounds.top + bounds.bottom) / 2);
  }
  // The y on the screen of each dark point in the left half of a control, its border left out.
  // Takes up to a tenth of a second.
  std::vector<LONG> Ink(View control) const {
    constexpr LONG Border = 3;
    const RECT bounds = BoundsOf(Control(control));
    std::vector<LONG> ink;
    for (LONG y = bounds.top + Border; y < bounds.bottom - Border; ++y) {
      for (LONG x = bounds.left + Border; x < (bounds.left + bounds.right) / 2; ++x) {
        if (GetGValue(ScreenPixel(x, y)) < 100) ink.push_back(y);
      }
    }
    return ink;
  }

  // How many pixels the ink of a control is below its middle; many without ink.
  LONG InkOffset(View control) const {
    const RECT bounds = BoundsOf(Control(control));
    const std::vector<LONG> ink = Ink(control);
    return ink.empty() ? 1000 : (ink.front() + ink.back() + 1 - bounds.top - bounds.bottom) / 2;
  }

  // Focuses a control as the dialog manager does; where Tab leads has a test of its own.
  void GoTo(const Text& control) const {
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
    EXPECT_EVENTUALLY(Focus(), control);
  }
  // Sends WM_DPICHANGED as the system does, with the bounds in the memory of the program.
  void SendDpiChanged(int dpi) const {
    const RECT bounds = BoundsOf(window);
    void* const copy = VirtualAllocEx(process, nullptr, sizeof bounds, MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process, copy, &bounds, sizeof bounds, nullptr);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(copy));
  }
  // The text on the clipboard; empty while another program holds it.
  static Text ClipboardText() {
    if (!OpenClipboard(nullptr)) return u"";
    const auto* const text =
        static_cast<const char16_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
    Text copied(text ? text : u"");
    CloseClipboard();
    return copied;
  }
  void Fill(View box, View text) const {  // as a program does, without keys
    SendMessageW(Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text(text).c_str()));
  }
};

}  // namespace Driver
