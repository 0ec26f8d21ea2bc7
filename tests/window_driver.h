// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read and keys pressed.
//
// What the program does with a key shows only some time later, so every expectation waits, and for
// the final state: never for "no longer the old one", which may be the state in between. A message
// that is sent comes back when the handler in progress has ended; the calls that look at focus,
// state or screen do not wait for that, and so each stands behind a sent message here. But sent
// messages overtake keys: what follows a key must wait until the key has shown its effect.
#pragma once

#include <windows.h>

#include <process.h>

#include <algorithm>
#include <vector>

#include "control_names.h"
#include "layout.h"
#include "win32_toolkit.h"

// Expects `seen` to become `wanted` while the user waits. What is compared is the value that was
// waited for, or the last one that was seen instead; so `wanted` must not hold before the action
// that leads to it.
#define EXPECT_EVENTUALLY(seen, wanted) EXPECT_EQ(Await([&] { return seen; }, wanted), wanted)

namespace Driver {

// Looks, 2 ms and more apart; far more than anything takes. Time itself is no measure: after a
// while in which the whole machine stood still nothing has had its chance yet.
constexpr int Patience = 10000;

// Looks until `see` gives `wanted`, and gives what it saw last.
template <class See, class Wanted>
auto Await(See see, const Wanted& wanted, int most_looks = Patience) {
  auto seen = see();
  for (int looks = 1; seen != wanted && looks < most_looks; ++looks) {
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

// Clicks a few pixels from the right end of a window, where a list has its arrow. Then the mouse
// goes out of the way: an open list follows it where it lies over that.
inline void Click(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  // Place and button in one event, so that no move of the mouse can come between.
  mouse_event(MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP,
              static_cast<DWORD>(MulDiv(place.right - 8, 65536, GetSystemMetrics(SM_CXSCREEN))),
              static_cast<DWORD>(MulDiv(place.top + 8, 65536, GetSystemMetrics(SM_CYSCREEN))), 0,
              0);
  SetCursorPos(0, 0);
}

// Each test starts the program anew.
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
  // What the line of a list reads, the index, and whether the list is open.
  std::tuple<Text, LRESULT, LRESULT> ComboState(View list) const {
    return {Read(list), Ask(list, CB_GETCURSEL), Ask(list, CB_GETDROPPEDSTATE)};
  }

  // Where the next key goes, all of it from one look at the thread in front: the name of a control,
  // AtBox while a message box is in front and its button has the focus, or nothing.
  static inline const Text AtBox = u"the button of a box";
  Text Focus() const {
    SendMessageW(window, WM_NULL, 0, 0);
    GUITHREADINFO front = {};
    front.cbSize = sizeof front;
    GetGUIThreadInfo(0, &front);
    const HWND focus = front.hwndFocus;
    if (focus && GetWindow(front.hwndActive, GW_OWNER) == window) return AtBox;
    for (const Toolkit::ControlTemplate& row : Layout::Rows) {
      // A list has the focus also when the line in it has.
      const HWND control = Control(NameOf(row));
      if (focus && (focus == control || IsChild(control, focus))) return NameOf(row);
    }
    return u"";
  }

  // The colour of a point on the middle of the height of a control, counted from its left edge.
  COLORREF Pixel(View control, int x) const {
    RECT place;
    GetWindowRect(Control(control), &place);
    return ScreenPixel(place.left + x, (place.top + place.bottom) / 2);
  }
  // For each dark point of a control its row, from the top of the client area. Its border and the
  // arrow of a list are left out. Takes up to a tenth of a second.
  std::vector<LONG> Ink(View control) const {
    constexpr LONG Border = 3;
    RECT place;
    GetWindowRect(Control(control), &place);
    COMBOBOXINFO list = {};
    list.cbSize = sizeof list;
    if (GetComboBoxInfo(Control(control), &list)) place.right = place.left + list.rcButton.left;
    POINT client = {0, 0};
    ClientToScreen(window, &client);
    const HDC screen = GetDC(nullptr);
    std::vector<LONG> rows;
    for (LONG y = place.top + Border; y < place.bottom - Border; ++y) {
      for (LONG x = place.left + Border; x < place.right - Border; ++x) {
        if (GetGValue(GetPixel(screen, x, y)) < 100) rows.push_back(y - client.y);
      }
    }
    ReleaseDC(nullptr, screen);
    return rows;
  }

  // Gives a control the focus as the dialog manager does; where Tab leads has a test of its own.
  void GoTo(const Text& control) const {
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
    EXPECT_EVENTUALLY(Focus(), control);
  }
  // Tells the program of another scale as the system does, with a place in its own memory.
  void SendDpiChanged(int dpi) const {
    RECT place;
    GetWindowRect(window, &place);
    void* const there = VirtualAllocEx(process, nullptr, sizeof place, MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process, there, &place, sizeof place, nullptr);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(there));
  }
  void Fill(View box, View text) const {  // as a program does, without keys
    SendMessageW(Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Text(text).c_str()));
  }
};

}  // namespace Driver
