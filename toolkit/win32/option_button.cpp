#include "controls.h"

namespace Win32 {

// Arrow keys move within a group, which WS_GROUP begins. WS_CLIPCHILDREN for its region, as for a
// label.
OptionButton::OptionButton(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : Toolkit::OptionButton(window),
      NativeControl(window, row,
                    {L"BUTTON", BS_AUTORADIOBUTTON | WS_CLIPCHILDREN |
                                    (row.index == 0 ? WS_GROUP | WS_TABSTOP : 0UL)}) {}

void OptionButton::Place() {
  NativeControl::Place();
  UseFont(FontBold());
  FollowTheme();
}

// A themed caption has the colour of the theme. In high contrast that can be white, which is
// illegible on the yellow; without the theme the caption is black.
void OptionButton::FollowTheme() {
  HIGHCONTRASTW contrast = {};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  const bool plain = (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
  if (plain == is_plain_) return;
  is_plain_ = plain;
  using SetTheme = HRESULT(WINAPI*)(HWND, const wchar_t*, const wchar_t*);
  static const auto set_theme = SystemFunction<SetTheme>(L"uxtheme.dll", "SetWindowTheme");
  if (set_theme) set_theme(hwnd_, plain ? L"" : nullptr, plain ? L"" : nullptr);
}

// A focused button may report a click before the change of focus is done, when the focus must not
// move on; and Windows reports one even for an unchecked button.
void OptionButton::OnCommand(WORD code) {
  if (code != BN_CLICKED) return;
  window_.Defer([this] {
    if (Send(BM_GETCHECK) == BST_CHECKED) NoteChosen();
  });
}

void OptionButton::ApplyValue() {
  Send(BM_SETCHECK, Value() ? BST_CHECKED : BST_UNCHECKED);
}

void OptionButton::ApplyFontBold() {
  UseFont(FontBold());
}

}  // namespace Win32
