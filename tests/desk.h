// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved. Every wait has a limit; what was
// not there in time shows in what is read next.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

#include "layout.h"

namespace Desk {

using Text = std::u16string;
using View = std::u16string_view;

// Waits until `condition` holds, at most `limit` milliseconds; tells whether it does.
bool Wait(const std::function<bool()>& condition, DWORD limit = 10000);

Text TextOf(HWND window);
HWND FindTandem();  // the window on the screen, if there is one

// Keys and mouse. `Press` presses and releases; `held` are keys held down around it.
void Key(WORD key, bool down);
void Press(WORD key, std::initializer_list<WORD> held = {});
void Type(View text);
void Click(POINT place);
void ClickOn(HWND window);
void Wheel(HWND window, int notches);

// What can be seen on the screen, pixel by pixel, from the top left.
struct Picture {
  int width, height;
  std::vector<COLORREF> pixels;
};
Picture PictureOf(HWND window);
Picture PictureOfText(View text, const Toolkit::Font& font, bool bold, int dpi);
Picture PictureOfIcon(const wchar_t* icon, COLORREF ground);
Picture InBlackAndWhite(Picture picture);

// The smallest part of its pixels by which `part` differs from `whole`, wherever it is laid on it.
double Difference(const Picture& part, const Picture& whole);

// Draws a small spot onto a window, which stays until the window is painted anew.
constexpr COLORREF Spot = RGB(255, 0, 255);  // nothing of ours has this colour
void PutSpot(HWND window);

struct MessageBox {
  HWND window;
  Text text, title;
  int icon;  // 48 or 64
};

class Tandem {
 public:
  Tandem();   // starts the program and waits for its first screen
  ~Tandem();  // ends it, if it still runs

  HWND Window() const { return window_; }
  int Dpi() const;
  HWND Control(View name, int index = Toolkit::NoIndex) const;
  HWND Control(const Toolkit::StoredControl& row) const { return Control(row.name, row.index); }
  RECT Place(HWND control) const;  // in the client area

  bool IsInFront() const { return GetForegroundWindow() == window_ && Focus(); }
  HWND Focus() const;  // a list counts as focused also when the line in it is
  bool FocusIs(HWND control) const;
  bool GoTo(HWND control) const;          // by Tab
  void Choose(int calendar) const;        // by the arrow keys
  void Pick(HWND list, View item) const;  // by opening the list
  void Fill(HWND box, View text) const;   // by typing over what is there
  void Enter(int row, View words) const;  // the fields of a row from the left
  void Push(HWND button, WORD key = VK_SPACE) const;

  Text Row(int row) const;  // the fields from the left and the weekday, with blanks in between
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }
  Text Pane() const { return TextOf(Control(u"txbOutput")); }
  void TickPasses() const;

  MessageBox WaitForBox() const;
  HWND FindBox() const;
  int WaitForExit() const;  // the exit code; -1 if the program still runs

 private:
  std::vector<HWND> Fields(int row) const;

  PROCESS_INFORMATION process_ = {};
  HWND window_ = nullptr;
};

}  // namespace Desk
