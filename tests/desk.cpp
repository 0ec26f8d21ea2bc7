#include "desk.h"

#include <algorithm>

namespace Desk {

namespace {

constexpr int FirstControlId = 100;

const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

RECT RectOf(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  return rect;
}

void SendKey(WORD key, WORD scan, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki = {key, scan, flags, 0, 0};
  SendInput(1, &input, sizeof input);
}

void Mouse(DWORD flags, POINT at, int data = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi = {MulDiv(at.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1,
              MulDiv(at.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1,
              static_cast<DWORD>(data),
              flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE,
              0,
              0};
  SendInput(1, &input, sizeof input);
}

Picture Draw(int width, int height, const std::function<void(HDC)>& draw) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  COLORREF* pixels = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap =
      CreateDIBSection(dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels), nullptr, 0);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  draw(dc);
  GdiFlush();
  Picture picture = {width, height, {pixels, pixels + width * height}};
  for (COLORREF& pixel : picture.pixels) pixel &= 0xFFFFFF;
  SelectObject(dc, before);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return picture;
}

Picture PictureOfIcon(const wchar_t* icon, const Picture& seen) {
  return Draw(seen.width, seen.height, [&](HDC dc) {
    const COLORREF ground = seen.pixels.front();
    SetDCBrushColor(dc, RGB(GetBValue(ground), GetGValue(ground), GetRValue(ground)));
    const RECT all = {0, 0, seen.width, seen.height};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    DrawIconEx(dc, 0, 0, LoadIconW(nullptr, icon), seen.width, seen.height, 0, nullptr, DI_NORMAL);
  });
}

}  // namespace

bool Wait(const std::function<bool()>& condition, DWORD limit) {
  for (const DWORD start = GetTickCount(); !condition(); Sleep(2)) {
    MSG message;  // for windows that the test has opened itself
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    if (GetTickCount() - start > limit) return false;
  }
  return true;
}

Text TextOf(HWND window) {
  Text text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, u'\0');
  const LRESULT length =
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

HWND FindTandem() {
  return FindWindowW(L"TandemWindow", nullptr);
}

void Key(WORD key, bool down) {
  SendKey(key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), down ? 0 : KEYEVENTF_KEYUP);
}

void Press(WORD key, WORD held) {
  if (held) Key(held, true);
  Key(key, true);
  Key(key, false);
  if (held) Key(held, false);
}

void Type(View text) {
  for (const char16_t c : text) {
    SendKey(0, c, KEYEVENTF_UNICODE);
    SendKey(0, c, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

void Click(POINT place) {
  for (const DWORD flags : {0, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) Mouse(flags, place);
}

void Wheel(HWND window, int notches) {
  const RECT rect = RectOf(window);
  Mouse(0, {rect.left + 5, rect.top + 5});
  Mouse(MOUSEEVENTF_WHEEL, {rect.left + 5, rect.top + 5}, notches * WHEEL_DELTA);
}

Picture PictureOf(HWND window) {
  const RECT rect = RectOf(window);
  const int width = rect.right - rect.left, height = rect.bottom - rect.top;
  return Draw(width, height, [&](HDC dc) {
    const HDC screen = GetDC(nullptr);
    BitBlt(dc, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
  });
}

Picture PictureOfText(View text, const Toolkit::Font& font, bool bold, COLORREF ground, int dpi) {
  // What bitmaps cannot be scaled to is drawn with the outlines of the same letters.
  const bool outlines = font.face == u"MS Sans Serif" && dpi != 96;
  const Text face(outlines ? View(u"Microsoft Sans Serif") : font.face);
  const HFONT made = CreateFontW(-MulDiv(font.height, dpi, 1440), 0, 0, 0, bold ? 700 : 400, 0, 0,
                                 0, DEFAULT_CHARSET, 0, 0, 0, 0, Wide(face));
  const auto length = static_cast<int>(text.size());
  SIZE size = {};
  const auto draw = [&](HDC dc) {
    SelectObject(dc, made);
    GetTextExtentPoint32W(dc, Wide(Text(text)), length, &size);
    SetBkColor(dc, ground);  // which TextOut fills behind the letters
    TextOutW(dc, 0, 0, Wide(Text(text)), length);
  };
  Draw(1, 1, draw);  // for its size
  const Picture picture = Draw(size.cx, size.cy, draw);
  DeleteObject(made);
  return picture;
}

Picture InBlackAndWhite(Picture picture) {
  for (COLORREF& p : picture.pixels) {
    p = GetRValue(p) + GetGValue(p) + GetBValue(p) < 300 ? 0 : 0xFFFFFF;
  }
  return picture;
}

double Difference(const Picture& part, const Picture& whole) {
  double least = 1;
  const auto width = static_cast<std::size_t>(part.width);
  for (int top = 0; top + part.height <= whole.height; ++top) {
    for (int left = 0; left + part.width <= whole.width; ++left) {
      int differ = 0;
      for (std::size_t i = 0; i < part.pixels.size(); ++i) {
        const auto there = static_cast<std::size_t>(top * whole.width + left) +
                           i / width * static_cast<std::size_t>(whole.width) + i % width;
        differ += part.pixels[i] != whole.pixels[there];
      }
      least = std::min(least, double(differ) / double(part.pixels.size()));
    }
  }
  return least;
}

void PutSpot(HWND window) {
  // Wine does not let one program draw into the window of another, but onto the screen.
  for (const HWND onto : {window, HWND{nullptr}}) {
    const RECT rect = onto ? RECT{} : RectOf(window);
    const HDC dc = GetDC(onto);
    for (int i = 0; i < 4; ++i) SetPixel(dc, rect.left + 4 + i, rect.top + 3, Spot);
    GdiFlush();
    ReleaseDC(onto, dc);
    const Picture now = PictureOf(window);
    if (std::count(now.pixels.begin(), now.pixels.end(), Spot) > 0) return;
  }
}

Tandem::Tandem() {
  wchar_t path[MAX_PATH];  // the program lies a folder above the test
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring program(path);
  for (int folder = 0; folder < 2; ++folder) program.erase(program.find_last_of(L"\\/"));
  program = L"\"" + program + L"\\tandem.exe\"";
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  CreateProcessW(nullptr, program.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                 &process_);
  Wait(
      [this] {
        window_ = FindTandem();
        DWORD owner = 0;
        GetWindowThreadProcessId(window_, &owner);
        return owner == process_.dwProcessId && GetForegroundWindow() == window_ &&
               Focus() == Control(u"cmdConvert") && !Read(u"txbOutput").empty();
      },
      60000);
}

Tandem::~Tandem() {
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, INFINITE);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

HWND Tandem::Control(View name) const {
  for (const Toolkit::StoredControl& row : StoredLayout()) {
    const Text index = row.index < 0 ? Text() : Text(1, static_cast<char16_t>(u'0' + row.index));
    if (Text(row.name) + index == name) return Control(row);
  }
  return nullptr;
}

HWND Tandem::Control(const Toolkit::StoredControl& row) const {
  return GetDlgItem(window_, FirstControlId + row.tab);
}

RECT Tandem::Place(HWND control) const {
  RECT rect = RectOf(control);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

HWND Tandem::Focus() const {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(process_.dwThreadId, &info);
  const HWND parent = GetParent(info.hwndFocus);
  return parent && parent != window_ ? parent : info.hwndFocus;
}

bool Tandem::GoTo(HWND control) const {
  for (int tabs = 0; tabs < 40; ++tabs) {
    const HWND before = Focus();
    if (before == control) return true;
    Press(VK_TAB);
    Wait([&] { return Focus() != before; }, 2000);
  }
  return false;
}

void Tandem::Choose(int calendar) {
  const View options[] = {u"optCalendar0", u"optCalendar1", u"optCalendar2"};
  for (int steps = 0; steps <= 2; ++steps) {
    int now = 0;
    while (SendMessageW(Control(options[now]), BM_GETCHECK, 0, 0) != BST_CHECKED) ++now;
    if (now == calendar || !GoTo(Control(options[now]))) return;
    Press(calendar > now ? VK_DOWN : VK_UP);
    FocusIs(Control(u"cmdConvert"));
  }
}

void Tandem::Set(View field, View value) {
  field.starts_with(u"txb") ? Fill(Control(field), value) : Pick(Control(field), value);
}

void Tandem::Pick(HWND list, View item) const {
  const LRESULT wanted = SendMessageW(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                      reinterpret_cast<LPARAM>(Wide(Text(item))));
  if (Index(list) == wanted || !GoTo(list)) return;
  Press(VK_F4);
  Wait([&] { return IsOpen(list); });
  // One by one, since an open list follows the mouse that lies over it, too.
  for (LRESULT now; (now = Index(list)) != wanted;) {
    Press(now < wanted ? VK_DOWN : VK_UP);
    if (!Wait([&] { return Index(list) != now; }, 2000)) return;
  }
  Press(VK_RETURN);
  Wait([&] { return !IsOpen(list); });
  if (list != Control(u"cboMType")) FocusIs(Control(u"cmdConvert"));
}

void Tandem::Fill(HWND box, View text) const {
  if (!GoTo(box)) return;
  Press('A', VK_CONTROL);
  Press(VK_DELETE);
  Wait([&] { return TextOf(box).empty(); });
  Type(text);
  Wait([&] { return TextOf(box) == text; });
}

void Tandem::PressButton(View name, WORD key) const {
  if (Wait([&] { return IsEnabled(name); }) && GoTo(Control(name))) Press(key);
}

// With the key, and when it is today that is gone to, until that is done.
void Tandem::Push(View button) {
  PressButton(button, VK_SPACE);
  if (button == u"cmdTBF0") FocusIs(Control(u"cmdConvert"));
}

// A tick shows from outside in the button that empties the pane: it can be pressed or not.
void Tandem::TickPasses() const {
  const Text text = Read(u"txbOutput");
  for (const Text& other : {Text(text.empty() ? u"x" : u""), text}) {
    SendMessageW(Control(u"txbOutput"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(other.c_str()));
    Wait([&] { return !other.empty() == IsEnabled(u"cmdClear"); });
  }
}

HWND Tandem::FindBox() const {
  HWND box = nullptr;
  do {
    box = FindWindowExW(nullptr, box, L"#32770", nullptr);
  } while (box && GetWindow(box, GW_OWNER) != window_);
  return box;
}

MessageBoxSeen Tandem::CloseBox() {
  MessageBoxSeen seen = {};
  auto& [text, title, style] = seen;
  HWND box = nullptr, icon = nullptr;
  if (!Wait([&] { return (box = FindBox()) && GetForegroundWindow() == box; })) return seen;
  title = TextOf(box);
  for (HWND child = nullptr; (child = FindWindowExW(box, child, L"Static", nullptr));) {
    const bool is_icon = (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    is_icon ? void(icon = child) : void(text = TextOf(child));
  }
  Wait(
      [&] {  // until it is drawn
        const Picture drawn = PictureOf(icon);
        const double exclamation = Difference(PictureOfIcon(IDI_EXCLAMATION, drawn), drawn);
        const double information = Difference(PictureOfIcon(IDI_INFORMATION, drawn), drawn);
        style = exclamation < information ? MB_ICONEXCLAMATION : MB_ICONINFORMATION;
        return std::min(exclamation, information) < 0.1;
      },
      3000);
  Press(VK_RETURN);
  Wait([&] { return !FindBox() && GetForegroundWindow() == window_ && Focus(); });
  return seen;
}

int Tandem::WaitForExit() const {
  DWORD code = 0;
  if (WaitForSingleObject(process_.hProcess, 10000) != WAIT_OBJECT_0) return -1;
  GetExitCodeProcess(process_.hProcess, &code);
  return static_cast<int>(code);
}

}  // namespace Desk
