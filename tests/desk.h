// A running tandem.exe, seen and used from outside as any program on the desktop can: its windows
// are found, their texts read, keys pressed and the mouse moved. Every wait has a limit; what was
// not there in time shows in what is read next.
#pragma once

#include <windows.h>

#include <vector>

#include "layout.h"
#include "user.h"

namespace Desk {

// Waits until `condition` holds, at most `limit` milliseconds; tells whether it does.
bool Wait(const std::function<bool()>& condition, DWORD limit = 10000);

Text TextOf(HWND window);
HWND FindTandem();  // the window on the screen, if there is one

// Keys and mouse. `Press` presses and releases, while `held` is held down.
void Key(WORD key, bool down);
void Press(WORD key, WORD held = 0);
void Type(View text);
void Click(POINT place);
void Wheel(HWND window, int notches);

// What can be seen on the screen, pixel by pixel from the top left.
struct Picture {
  int width, height;
  std::vector<COLORREF> pixels;
};
Picture PictureOf(HWND window);
Picture PictureOfText(View text, const Toolkit::Font& font, bool bold, COLORREF ground, int dpi);
Picture InBlackAndWhite(Picture picture);

// The smallest part of its pixels by which `part` differs from `whole`, wherever it is laid on it.
double Difference(const Picture& part, const Picture& whole);

// Draws a small spot onto a window, which stays until the window is painted anew.
constexpr COLORREF Spot = RGB(255, 0, 255);  // nothing of ours has this colour
void PutSpot(HWND window);

class Tandem : public User {
 public:
  Tandem();            // starts the program and waits for its first screen
  ~Tandem() override;  // ends it, if it still runs

  HWND Window() const { return window_; }
  HWND Control(View name) const;  // as for User
  HWND Control(const Toolkit::StoredControl& row) const;
  RECT Place(HWND control) const;  // in the client area

  HWND Focus() const;  // a list counts as focused also when the line in it is
  bool FocusIs(HWND control) const {
    return Wait([&] { return Focus() == control; });
  }
  bool IsEnabled(View name) const { return IsWindowEnabled(Control(name)) != FALSE; }
  LRESULT Index(HWND list) const { return SendMessageW(list, CB_GETCURSEL, 0, 0); }
  bool IsOpen(HWND list) const { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; }
  HWND FindBox() const;
  void TickPasses() const;
  int WaitForExit() const;  // the exit code; -1 if the program still runs

  bool GoTo(HWND control) const;                // by Tab
  void PressButton(View name, WORD key) const;  // with that key, once it can be pressed

  Text Read(View control) const override { return TextOf(Control(control)); }
  void Set(View field, View value) override;
  void Choose(int calendar) override;
  void Push(View button) override;
  MessageBoxSeen CloseBox() override;
  bool Sees(const std::function<bool()>& condition) const override { return Wait(condition); }

 private:
  void Pick(HWND list, View item) const;  // by opening the list
  void Fill(HWND box, View text) const;   // by typing over what is there

  PROCESS_INFORMATION process_ = {};
  HWND window_ = nullptr;
};

}  // namespace Desk
