// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved. Every wait has a limit; what was
// not there in time shows in what is read next.
#pragma once

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "layout.h"
#include "scenarios.h"

namespace Desk {

inline const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

// Waits until `condition` holds, at most `limit` milliseconds; tells whether it does.
inline bool Wait(const std::function<bool()>& condition, DWORD limit = 10000) {
  for (const DWORD start = GetTickCount(); !condition(); Sleep(2)) {
    MSG message;  // for windows that the test has opened itself
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    if (GetTickCount() - start > limit) return false;
  }
  return true;
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

inline void SendKey(WORD key, WORD scan, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki = {key, scan, flags, 0, 0};
  SendInput(1, &input, sizeof input);
}

inline void Key(WORD key, bool down) {
  SendKey(key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), down ? 0 : KEYEVENTF_KEYUP);
}

inline void Press(WORD key, WORD held = 0) {  // and releases it; `held` is down meanwhile
  if (held) Key(held, true);
  Key(key, true);
  Key(key, false);
  if (held) Key(held, false);
}

inline void Type(View text) {
  for (const char16_t c : text) {
    SendKey(0, c, KEYEVENTF_UNICODE);
    SendKey(0, c, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

inline void Mouse(LONG x, LONG y, std::initializer_list<DWORD> events, int notches = 0) {
  for (const DWORD event : events) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi = {MulDiv(x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1,
                MulDiv(y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1,
                static_cast<DWORD>(notches * WHEEL_DELTA),
                event | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE,
                0,
                0};
    SendInput(1, &input, sizeof input);
  }
}
inline void Click(LONG x, LONG y) {
  Mouse(x, y, {0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

// What can be seen, pixel by pixel from the top left.
struct Pixel {
  std::uint8_t blue, green, red, unused;
  bool IsDark() const { return red + green + blue < 300; }
};
struct Picture {
  int width, height;
  std::vector<Pixel> pixels;
};

inline Picture Draw(int width, int height, const std::function<void(HDC)>& draw) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  Pixel* pixels = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap =
      CreateDIBSection(dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels), nullptr, 0);
  SelectObject(dc, bitmap);
  draw(dc);
  GdiFlush();
  const Picture picture = {width, height, {pixels, pixels + width * height}};
  DeleteDC(dc);
  DeleteObject(bitmap);
  return picture;
}

inline Picture PictureOf(HWND window) {
  const RECT rect = RectOf(window);
  const int width = rect.right - rect.left, height = rect.bottom - rect.top;
  return Draw(width, height, [&](HDC dc) {
    const HDC screen = GetDC(nullptr);
    BitBlt(dc, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
  });
}

inline Picture PictureOfText(const Text& text, const Toolkit::Font& font, bool bold,
                             COLORREF ground, int dpi) {
  // What bitmaps cannot be scaled to is drawn with the outlines of the same letters.
  const bool outlines = font.face == u"MS Sans Serif" && dpi != 96;
  const Text face(outlines ? View(u"Microsoft Sans Serif") : font.face);
  SIZE size = {};
  const auto draw = [&](HDC dc) {
    SelectObject(dc, CreateFontW(-MulDiv(font.height, dpi, 1440), 0, 0, 0, bold ? 700 : 400, 0, 0,
                                 0, DEFAULT_CHARSET, 0, 0, 0, 0, Wide(face)));
    SetBkColor(dc, ground);  // which TextOut fills behind the letters
    GetTextExtentPoint32W(dc, Wide(text), static_cast<int>(text.size()), &size);
    TextOutW(dc, 0, 0, Wide(text), static_cast<int>(text.size()));
  };
  Draw(1, 1, draw);  // for its size
  return Draw(size.cx, size.cy, draw);
}

// The smallest part of its pixels by which `part` differs from `whole`, wherever it is laid on it.
inline double Difference(const Picture& part, const Picture& whole) {
  double least = 1;
  for (int start = 0; start < whole.width * (whole.height - part.height + 1); ++start) {
    if (start % whole.width + part.width > whole.width) continue;
    int differ = 0;
    for (int i = 0; i < part.width * part.height; ++i) {
      const int there = start + i / part.width * whole.width + i % part.width;
      differ += part.pixels[std::size_t(i)].IsDark() != whole.pixels[std::size_t(there)].IsDark();
    }
    least = std::min(least, double(differ) / double(part.pixels.size()));
  }
  return least;
}

class Tandem : public User {
 public:
  Tandem() {  // starts the program, which lies a folder above the test
    Text path(MAX_PATH, u'\0');
    GetModuleFileNameW(nullptr, reinterpret_cast<wchar_t*>(path.data()), MAX_PATH);
    for (int folder = 0; folder < 2; ++folder) path.erase(path.find_last_of(u"\\/"));
    path = u"\"" + path + u"\\tandem.exe\"";
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);  // true pixels
    Mouse(0, 0, {0});  // out of the way: an open list follows the mouse that lies over it
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    CreateProcessW(nullptr, reinterpret_cast<wchar_t*>(path.data()), nullptr, nullptr, FALSE, 0,
                   nullptr, nullptr, &start, &process_);
    const auto is_up = [this] {
      window = FindWindowW(L"TandemWindow", nullptr);
      DWORD owner = 0;
      GetWindowThreadProcessId(window, &owner);
      return owner == process_.dwProcessId && IsInFront() && Focus() == Control(u"cmdConvert") &&
             !Read(u"txbOutput").empty();
    };
    if (!Wait(is_up, 60000)) throw std::runtime_error("tandem.exe shows no first screen");
  }
  ~Tandem() override {
    TerminateProcess(process_.hProcess, 99);
    WaitForExit();
  }

  HWND window = nullptr;
  HWND Control(const Toolkit::StoredControl& row) const {
    return GetDlgItem(window, 100 + row.tab);
  }
  HWND Control(View name) const {
    for (const Toolkit::StoredControl& row : StoredLayout()) {
      const Text index(row.index < 0 ? 0 : 1, static_cast<char16_t>(u'0' + row.index));
      if (Text(row.name) + index == name) return Control(row);
    }
    return nullptr;
  }
  HWND Focus() const {  // a list counts as focused also when the line in it is
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(process_.dwThreadId, &info);
    const HWND parent = GetParent(info.hwndFocus);
    return parent && parent != window ? parent : info.hwndFocus;
  }
  bool IsInFront() const { return GetForegroundWindow() == window && Focus(); }
  bool FocusIs(HWND control) const {
    return Wait([&] { return Focus() == control; });
  }
  bool IsEnabled(View name) const { return IsWindowEnabled(Control(name)) != FALSE; }
  LRESULT Index(HWND list) const { return SendMessageW(list, CB_GETCURSEL, 0, 0); }
  bool IsOpen(HWND list) const { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; }
  bool ShowsBox() const { return FindBox() != nullptr; }
  void TickPasses() const {  // it shows in the button that empties the pane
    const Text text = Read(u"txbOutput");
    for (const Text& other : {Text(text.empty() ? u"x" : u""), text}) {
      SendMessageW(Control(u"txbOutput"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(other.c_str()));
      EXPECT_TRUE(Wait([&] { return !other.empty() == IsEnabled(u"cmdClear"); }));
    }
  }
  int WaitForExit() const {  // the exit code; -1 if the program still runs
    DWORD code = 0;
    if (WaitForSingleObject(process_.hProcess, 10000) != WAIT_OBJECT_0) return -1;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
  }
  bool GoTo(HWND control) const {  // by Tab
    for (int tabs = 0; tabs < 40 && Focus() != control; ++tabs) {
      const HWND before = Focus();
      Press(VK_TAB);
      Wait([&] { return Focus() != before; }, 2000);
    }
    return Focus() == control;
  }
  void PressButton(View name, WORD key) const {
    if (Wait([&] { return IsEnabled(name); }) && GoTo(Control(name))) Press(key);
  }

  Text Read(View control) const override { return TextOf(Control(control)); }
  bool Sees(const std::function<bool()>& condition) const override { return Wait(condition); }
  void Set(View field, View value) override {
    field.starts_with(u"txb") ? Fill(Control(field), value) : Pick(Control(field), Text(value));
  }
  void Choose(int calendar) override {  // by the arrow keys
    const View options[] = {u"optCalendar0", u"optCalendar1", u"optCalendar2"};
    for (int steps = 0; steps <= 2; ++steps) {
      int now = 0;
      while (now < 2 && SendMessageW(Control(options[now]), BM_GETCHECK, 0, 0) != BST_CHECKED)
        ++now;
      if (now == calendar || !GoTo(Control(options[now]))) return;
      Press(calendar > now ? VK_DOWN : VK_UP);
      EXPECT_TRUE(FocusIs(Control(u"cmdConvert")));
    }
  }
  void Push(View button) override {
    PressButton(button, VK_SPACE);
    if (button == u"cmdTBF0") FocusIs(Control(u"cmdConvert"));
  }
  Box CloseBox() override {
    HWND box = nullptr, icon = nullptr;
    Text text;
    if (!Wait([&] { return (box = FindBox()) && GetForegroundWindow() == box; })) return {};
    for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Static", nullptr));) {
      const bool is_icon = (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
      is_icon ? void(icon = child) : void(text = TextOf(child));
    }
    // The exclamation sign is yellow, the information sign blue, the ground neither.
    std::ptrdiff_t yellow = 0, blue = 0;
    const bool drawn =
        icon && Wait([&] {
          const auto seen = PictureOf(icon).pixels;
          const auto count = [&](auto is) { return std::count_if(seen.begin(), seen.end(), is); };
          yellow = count([](Pixel p) { return p.red > p.blue + 60; });
          blue = count([](Pixel p) { return p.blue > p.red + 60; });
          return std::abs(seen.front().red - seen.front().blue) < 60 && yellow + blue > 50;
        });
    const int style = !drawn ? 0 : yellow > blue ? MB_ICONEXCLAMATION : MB_ICONINFORMATION;
    const Text title = TextOf(box);
    Press(VK_RETURN);
    EXPECT_TRUE(Wait([&] { return !FindBox() && IsInFront(); }));
    return {text, title, style};
  }

 private:
  HWND FindBox() const {
    HWND box = nullptr;
    do {
      box = FindWindowExW(nullptr, box, L"#32770", nullptr);
    } while (box && GetWindow(box, GW_OWNER) != window);
    return box;
  }
  void Pick(HWND list, const Text& item) const {  // by opening the list
    const LRESULT wanted =
        SendMessageW(list, CB_FINDSTRINGEXACT, WPARAM(-1), reinterpret_cast<LPARAM>(item.c_str()));
    if (Index(list) == wanted || !GoTo(list)) return;
    Press(VK_F4);
    Wait([&] { return IsOpen(list); });
    for (LRESULT now; (now = Index(list)) != wanted;) {
      Press(now < wanted ? VK_DOWN : VK_UP);
      if (!Wait([&] { return Index(list) != now; }, 2000)) return;
    }
    Press(VK_RETURN);
    Wait([&] { return !IsOpen(list); });
    if (list != Control(u"cboMType")) FocusIs(Control(u"cmdConvert"));
  }
  void Fill(HWND box, View text) const {  // by typing over what is there
    if (!GoTo(box)) return;
    Press('A', VK_CONTROL);
    Press(VK_DELETE);
    Wait([&] { return TextOf(box).empty(); });
    Type(text);
    Wait([&] { return TextOf(box) == text; });
  }

  PROCESS_INFORMATION process_ = {};
};

}  // namespace Desk
