// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved. Every wait has a limit; what was
// not there in time shows in what is read next.
#pragma once

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "scenarios.h"

namespace Desk {

inline const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
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

// Keys that type nothing stand in a text as their number above FirstKey.
constexpr char16_t FirstKey = 0xE000;
constexpr char16_t Tab = FirstKey + VK_TAB, Return = FirstKey + VK_RETURN, F4 = FirstKey + VK_F4,
                   Esc = FirstKey + VK_ESCAPE, Space = FirstKey + VK_SPACE,
                   Home = FirstKey + VK_HOME, End = FirstKey + VK_END, Left = FirstKey + VK_LEFT,
                   Up = FirstKey + VK_UP, Down = FirstKey + VK_DOWN, Delete = FirstKey + VK_DELETE,
                   Shift = FirstKey + VK_SHIFT, Ctrl = FirstKey + VK_CONTROL,
                   Alt = FirstKey + VK_MENU;

inline void Key(char16_t c, bool down) {
  const bool types = c < FirstKey;
  const WORD key = types ? 0 : c & 0xFF;
  const WORD scan = types ? c : WORD(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  const bool is_extended = key >= VK_PRIOR && key <= VK_DELETE;  // not those of the number block
  const DWORD flags = (types ? KEYEVENTF_UNICODE : 0) | (is_extended ? KEYEVENTF_EXTENDEDKEY : 0) |
                      (down ? 0 : KEYEVENTF_KEYUP);
  INPUT input = {.type = INPUT_KEYBOARD, .ki = {key, scan, flags, 0, 0}};
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

// Moves the mouse, then does there what `events` say.
inline void Mouse(int x, int y, std::initializer_list<DWORD> events, int data = 0) {
  const LONG left = MulDiv(x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1,
             top = MulDiv(y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
  for (const DWORD event : events) {
    const DWORD flags = event | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    INPUT input = {.type = INPUT_MOUSE, .mi = {left, top, static_cast<DWORD>(data), flags, 0, 0}};
    SendInput(1, &input, sizeof input);
  }
}
constexpr std::initializer_list<DWORD> Click = {0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};

// What is drawn, row by row, a letter a pixel: dark (#), yellow (y), blue (b) or another.
using Pixels = std::vector<std::string>;

// A part of the screen, with what `draw` draws onto it.
inline Pixels PixelsOf(
    const RECT& part, const std::function<void(HDC)>& draw = [](HDC) {}) {
  const int width = part.right - part.left, height = part.bottom - part.top;
  Pixels picture(std::size_t(height), std::string(std::size_t(width), ' '));
  const HDC screen = GetDC(nullptr), dc = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  SelectObject(dc, bitmap);
  BitBlt(dc, 0, 0, width, height, screen, part.left, part.top, SRCCOPY);
  draw(dc);
  for (int at = 0; at < width * height; ++at) {
    const COLORREF color = GetPixel(dc, at % width, at / width);
    const int red = GetRValue(color), blue = GetBValue(color), warmth = red - blue;
    const bool is_dark = red + GetGValue(color) + blue < 300;
    const char letter = is_dark ? '#' : warmth > 60 ? 'y' : warmth < -60 ? 'b' : ' ';
    picture[std::size_t(at / width)][std::size_t(at % width)] = letter;
  }
  DeleteDC(dc);
  DeleteObject(bitmap);
  ReleaseDC(nullptr, screen);
  return picture;
}

inline Pixels PixelsOf(const Text& text, View face, int height, bool bold, COLORREF ground) {
  SIZE size = {};
  const auto draw = [&](HDC dc) {
    SelectObject(dc, CreateFontW(-height, 0, 0, 0, bold ? 700 : 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                                 0, 0, Wide(Text(face))));
    SetBkColor(dc, ground);  // which TextOut fills behind the letters
    TextOutW(dc, 0, 0, Wide(text), int(text.size()));
    GetTextExtentPoint32W(dc, Wide(text), int(text.size()), &size);
  };
  PixelsOf({0, 0, 1, 1}, draw);  // for its size
  return PixelsOf({0, 0, size.cx, size.cy}, draw);
}

// Whether all rows of `part` are in rows of `whole`, one below the other.
inline bool Shows(const Pixels& whole, const Pixels& part) {
  const auto holds = [](auto& seen, auto& row) { return seen.find(row) != seen.npos; };
  return std::search(whole.begin(), whole.end(), part.begin(), part.end(), holds) != whole.end();
}

constexpr int FirstId = 100;  // the controls are numbered in tab order

struct Tandem : User {
  Tandem() {  // starts the program, which lies beside the test
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);  // true pixels
    Mouse(0, 0, {0});  // out of the way: an open list follows the mouse that lies over it
    wchar_t command[] = L"tandem.exe";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                   &process);
    const auto is_up = [this] {
      window = State().hwndActive;
      return IsInFront() && Focus() == u"cmdConvert" && !Read(u"txbOutput").empty();
    };
    if (!Holds(is_up, 60000)) throw std::runtime_error("tandem.exe shows no first screen");
  }
  ~Tandem() { TerminateProcess(process.hProcess, 99), ExitCode(); }

  PROCESS_INFORMATION process = {};
  HWND window = nullptr;
  HWND Control(View name) const {
    const auto row = std::ranges::find(StoredLayout(), name, NameOf);
    return GetDlgItem(window, FirstId + int(row - StoredLayout().begin()));
  }
  GUITHREADINFO State() const {
    GUITHREADINFO state = {};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(process.dwThreadId, &state);
    return state;
  }
  Text Focus() const {  // a list counts as focused also when the line in it is
    const HWND focus = State().hwndFocus, parent = GetParent(focus);
    const int id = GetDlgCtrlID(parent == window ? focus : parent) - FirstId;
    return id < 0 ? u"" : NameOf(StoredLayout()[std::size_t(id)]);
  }
  LRESULT Ask(View control, UINT message, int number = 0) const {
    return SendMessageW(Control(control), message, static_cast<WPARAM>(number), 0);
  }
  LRESULT Selected(View box) const { return Ask(box, EM_GETSEL); }
  bool IsInFront() const { return GetForegroundWindow() == window && !Focus().empty(); }
  HWND Message() const {  // the box that is open
    return State().hwndActive == window ? nullptr : State().hwndActive;
  }
  int ExitCode() const {  // STILL_ACTIVE if the program does not end
    DWORD code = 0;
    WaitForSingleObject(process.hProcess, 10000);
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
  }

  // Whether `condition` comes to hold within `limit` milliseconds.
  static bool Holds(const std::function<bool()>& condition, DWORD limit = 10000) {
    for (const DWORD start = GetTickCount(); !condition(); Sleep(2)) {
      MSG message;  // for windows that the test has opened itself
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      if (GetTickCount() - start > limit) return false;
    }
    return true;
  }
  void Wait(const std::function<bool()>& condition) override { Holds(condition); }
  void TickPasses() {  // it shows in the button that empties the pane
    const bool fill = Read(u"txbOutput").empty();
    Fill(u"txbOutput", fill ? u"x" : u"");
    EXPECT_SEEN(IsEnabled(u"cmdClear"), fill);
  }
  void Fill(View box, const Text& text) const {  // as a program does, without keys
    SendMessageW(Control(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  }
  void GoTo(View start) const {  // by Tab, to the control whose name starts so
    for (int tabs = 0; tabs < 40 && !Focus().starts_with(start); ++tabs) {
      const Text before = Focus();
      Press({Tab});
      Holds([&] { return Focus() != before; }, 2000);
    }
    EXPECT_TRUE(Focus().starts_with(start)) << testing::PrintToString(Focus());
  }

  Text Read(View control) const override { return TextOf(Control(control)); }
  bool IsEnabled(View button) const override { return IsWindowEnabled(Control(button)) != FALSE; }
  void Set(View field, View value) override {
    if (Read(field) == value) return;
    GoTo(field);
    // By opening the list, or by typing over what is there.
    const LRESULT item = SendMessageW(Control(field), CB_FINDSTRINGEXACT, WPARAM(-1),
                                      reinterpret_cast<LPARAM>(Text(value).c_str()));
    if (field.starts_with(u"txb") || item < 0) {
      Press(Text{Home, Shift, End, Delete}.append(value));
    } else {
      const LRESULT steps = item - Ask(field, CB_GETCURSEL);
      Press(F4 + Text(std::size_t(std::abs(steps)), steps > 0 ? Down : Up) + Return);
      EXPECT_SEEN(Focus(), field == u"cboMType" ? field : u"cmdConvert");
    }
    EXPECT_SEEN(Read(field), value);
  }
  void Choose(View option) override {  // by the arrow key, which goes round
    for (int tries = 0; tries < 2 && Ask(option, BM_GETCHECK) != BST_CHECKED; ++tries) {
      GoTo(u"optCalendar");
      Press({Down});
      EXPECT_SEEN(Focus(), u"cmdConvert");
    }
  }
  void Push(View button) override {
    EXPECT_SEEN(IsEnabled(button), true);
    GoTo(button);
    Press({Space});
    EXPECT_SEEN(button != u"cmdTBF0" || Focus() == u"cmdConvert", true);
  }
  Box CloseBox() override {
    EXPECT_SEEN(Message() && GetForegroundWindow() == Message(), true);
    const HWND box = Message(), icon = FindWindowExW(box, nullptr, L"Static", nullptr);
    const Text text = TextOf(FindWindowExW(box, icon, L"Static", nullptr)), title = TextOf(box);
    // The exclamation sign is yellow, the information sign blue, the ground neither.
    std::string seen;
    EXPECT_TRUE(Holds([&] {
      seen.clear();
      for (const std::string& row : PixelsOf(RectOf(icon))) seen += row;
      return seen.front() == ' ' && seen.back() == ' ' && seen.find_first_of("yb") != seen.npos;
    }));
    const bool warns = std::ranges::count(seen, 'y') > std::ranges::count(seen, 'b');
    Press({Return});
    EXPECT_SEEN(!Message() && IsInFront(), true);
    return {text, title, warns ? MB_ICONEXCLAMATION : MB_ICONINFORMATION};
  }
};

}  // namespace Desk
