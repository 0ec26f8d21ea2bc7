#include "desk.h"

#include <algorithm>

namespace Desk {

namespace {

constexpr int FirstControlId = 100;

const wchar_t* Wide(const Text& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

void Send(INPUT input) {
  SendInput(1, &input, sizeof input);
}

void Mouse(DWORD flags, POINT place, int data = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = MulDiv(place.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(place.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
  input.mi.mouseData = static_cast<DWORD>(data);
  input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  Send(input);
}

POINT Middle(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

Picture Draw(int width, int height, const std::function<void(HDC)>& draw) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::uint32_t* pixels = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap =
      CreateDIBSection(dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels), nullptr, 0);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  draw(dc);
  GdiFlush();
  Picture picture = {width, height, {}};
  for (int i = 0; i < width * height; ++i) picture.pixels.push_back(pixels[i] & 0xFFFFFF);
  SelectObject(dc, before);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return picture;
}

}  // namespace

bool Wait(const std::function<bool()>& condition, DWORD limit) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    MSG message;  // for windows that the test has opened itself
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    if (GetTickCount() - start > limit) return false;
    Sleep(2);
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
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  Send(input);
}

void Press(WORD key, std::initializer_list<WORD> held) {
  for (const WORD modifier : held) Key(modifier, true);
  Key(key, true);
  Key(key, false);
  for (const WORD modifier : held) Key(modifier, false);
}

void Type(View text) {
  for (const char16_t c : text) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = c;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    Send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(input);
  }
}

void Click(POINT place) {
  Mouse(0, place);
  Mouse(MOUSEEVENTF_LEFTDOWN, place);
  Mouse(MOUSEEVENTF_LEFTUP, place);
}

void ClickOn(HWND window) {
  Click(Middle(window));
}

void Wheel(HWND window, int notches) {
  Mouse(0, Middle(window));
  Mouse(MOUSEEVENTF_WHEEL, Middle(window), notches * WHEEL_DELTA);
}

Picture PictureOf(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  const int width = rect.right - rect.left;
  const int height = rect.bottom - rect.top;
  return Draw(width, height, [&](HDC dc) {
    const HDC screen = GetDC(nullptr);
    BitBlt(dc, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
  });
}

Picture PictureOfText(View text, const Toolkit::Font& font, bool bold, int dpi) {
  const HFONT made =
      CreateFontW(-MulDiv(font.height, dpi, 1440), 0, 0, 0, bold ? 700 : 400, 0, 0, 0,
                  DEFAULT_CHARSET, 0, 0, DEFAULT_QUALITY, 0, Wide(Text(font.face)));
  const auto length = static_cast<int>(text.size());
  const auto* const letters = reinterpret_cast<const wchar_t*>(text.data());
  SIZE size = {};
  Draw(1, 1, [&](HDC dc) {
    SelectObject(dc, made);
    GetTextExtentPoint32W(dc, letters, length, &size);
  });
  Picture picture = Draw(size.cx, size.cy, [&](HDC dc) {
    const RECT all = {0, 0, size.cx, size.cy};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    SelectObject(dc, made);
    TextOutW(dc, 0, 0, letters, length);
  });
  DeleteObject(made);
  return picture;
}

Picture PictureOfIcon(const wchar_t* icon, COLORREF ground) {
  return Draw(32, 32, [&](HDC dc) {
    const RECT all = {0, 0, 32, 32};
    SetDCBrushColor(dc, ground);
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    DrawIcon(dc, 0, 0, LoadIconW(nullptr, icon));
  });
}

Picture InBlackAndWhite(Picture picture) {
  for (COLORREF& p : picture.pixels) {
    p = GetRValue(p) + GetGValue(p) + GetBValue(p) < 300 ? RGB(0, 0, 0) : RGB(255, 255, 255);
  }
  return picture;
}

double Difference(const Picture& part, const Picture& whole) {
  double least = 1;
  for (int top = 0; top + part.height <= whole.height; ++top) {
    for (int left = 0; left + part.width <= whole.width; ++left) {
      int differ = 0;
      for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) {
          const auto here = static_cast<std::size_t>(y * part.width + x);
          const auto there = static_cast<std::size_t>((top + y) * whole.width + left + x);
          differ += part.pixels[here] != whole.pixels[there];
        }
      }
      least = std::min(least, double(differ) / double(part.pixels.size()));
    }
  }
  return least;
}

void PutSpot(HWND window) {
  const auto put = [](HDC dc, int x, int y) {
    for (int i = 0; i < 4; ++i) SetPixel(dc, x + i, y, Spot);
    GdiFlush();
  };
  const HDC own = GetDC(window);
  put(own, 4, 3);
  ReleaseDC(window, own);
  // Wine does not let one program draw into the window of another, but onto the screen.
  const Picture now = PictureOf(window);
  if (std::count(now.pixels.begin(), now.pixels.end(), Spot) > 0) return;
  RECT rect;
  GetWindowRect(window, &rect);
  const HDC screen = GetDC(nullptr);
  put(screen, rect.left + 4, rect.top + 3);
  ReleaseDC(nullptr, screen);
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
               FocusIs(Control(u"cmdConvert")) && !Pane().empty();
      },
      60000);
}

Tandem::~Tandem() {
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, INFINITE);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

int Tandem::Dpi() const {
  const HDC dc = GetDC(window_);
  const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
  ReleaseDC(window_, dc);
  return dpi;
}

HWND Tandem::Control(View name, int index) const {
  const auto rows = StoredLayout();
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& stored) {
    return stored.name == name && stored.index == index;
  });
  return row == rows.end() ? nullptr : GetDlgItem(window_, FirstControlId + row->tab);
}

RECT Tandem::Place(HWND control) const {
  RECT rect;
  GetWindowRect(control, &rect);
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

bool Tandem::FocusIs(HWND control) const {
  return Wait([&] { return Focus() == control; }, 5000);
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

void Tandem::Choose(int calendar) const {
  const auto chosen = [this] {
    int option = 0;
    while (option < 2 &&
           SendMessageW(Control(u"optCalendar", option), BM_GETCHECK, 0, 0) != BST_CHECKED) {
      ++option;
    }
    return option;
  };
  for (int now = chosen(); now != calendar; now = chosen()) {
    if (!GoTo(Control(u"optCalendar", now))) return;
    Press(calendar > now ? VK_DOWN : VK_UP);
    if (!FocusIs(Control(u"cmdConvert"))) return;
  }
}

void Tandem::Pick(HWND list, View item) const {
  const LRESULT wanted = SendMessageW(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                      reinterpret_cast<LPARAM>(Wide(Text(item))));
  if (SendMessageW(list, CB_GETCURSEL, 0, 0) == wanted || !GoTo(list)) return;
  Mouse(0, {0, 0});  // an open list follows the mouse that lies over it
  Press(VK_F4);
  Wait([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; });
  for (LRESULT now = SendMessageW(list, CB_GETCURSEL, 0, 0); now != wanted;
       now += now < wanted ? 1 : -1) {
    Press(now < wanted ? VK_DOWN : VK_UP);
  }
  Wait([&] { return SendMessageW(list, CB_GETCURSEL, 0, 0) == wanted; });
  Press(VK_RETURN);
  Wait([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == 0; });
  if (list != Control(u"cboMType")) FocusIs(Control(u"cmdConvert"));
}

void Tandem::Fill(HWND box, View text) const {
  if (!GoTo(box)) return;
  Press('A', {VK_CONTROL});
  Press(VK_DELETE);
  Wait([&] { return TextOf(box).empty(); });
  Type(text);
  Wait([&] { return TextOf(box) == text; });
}

std::vector<HWND> Tandem::Fields(int row) const {
  if (row == 2) {
    return {Control(u"cboGMet"),      Control(u"cboMType"),    Control(u"txbMetNum"),
            Control(u"cboYearInMet"), Control(u"cboMonth", 2), Control(u"cboDay", 2)};
  }
  return {Control(u"cboMonth", row), Control(u"cboDay", row), Control(u"txbYearCE", row)};
}

void Tandem::Enter(int row, View words) const {
  for (const HWND field : Fields(row)) {
    const View word = words.substr(0, words.find(u' '));
    words.remove_prefix(std::min(words.size(), word.size() + 1));
    const bool is_box = field == Control(u"txbMetNum") || field == Control(u"txbYearCE", row);
    is_box ? Fill(field, word) : Pick(field, word);
  }
}

void Tandem::Push(HWND button, WORD key) const {
  if (GoTo(button)) Press(key);
}

Text Tandem::Row(int row) const {
  Text text;
  for (const HWND field : Fields(row)) text += TextOf(field) + u" ";
  return text + TextOf(Control(u"lblDayOfWeek", row));
}

// A tick shows from outside in the button that empties the pane: it can be pressed or not.
void Tandem::TickPasses() const {
  const HWND pane = Control(u"txbOutput");
  const Text text = Pane();
  for (const Text& other : {Text(text.empty() ? u"x" : u""), text}) {
    SendMessageW(pane, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(other.c_str()));
    Wait([&] { return !other.empty() == (IsWindowEnabled(Control(u"cmdClear")) != FALSE); });
  }
}

HWND Tandem::FindBox() const {
  HWND box = nullptr;
  do {
    box = FindWindowExW(nullptr, box, L"#32770", nullptr);
  } while (box && GetWindow(box, GW_OWNER) != window_);
  return box;
}

MessageBox Tandem::WaitForBox() const {
  MessageBox box = {};
  if (!Wait([&] { return (box.window = FindBox()) && GetForegroundWindow() == box.window; })) {
    return box;
  }
  box.title = TextOf(box.window);
  HWND icon = nullptr;
  for (HWND child = nullptr; (child = FindWindowExW(box.window, child, L"Static", nullptr));) {
    const bool is_icon = (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    if (is_icon) icon = child;
    if (!is_icon) box.text = TextOf(child);
  }
  Wait(
      [&] {  // until it is drawn
        const Picture drawn = PictureOf(icon);
        const COLORREF ground = drawn.pixels.front();
        const double exclamation = Difference(PictureOfIcon(IDI_EXCLAMATION, ground), drawn);
        const double information = Difference(PictureOfIcon(IDI_INFORMATION, ground), drawn);
        box.icon = exclamation < information ? 48 : 64;
        return std::min(exclamation, information) < 0.1;
      },
      3000);
  return box;
}

int Tandem::WaitForExit() const {
  DWORD code = 0;
  if (WaitForSingleObject(process_.hProcess, 10000) != WAIT_OBJECT_0) return -1;
  GetExitCodeProcess(process_.hProcess, &code);
  return static_cast<int>(code);
}

}  // namespace Desk
