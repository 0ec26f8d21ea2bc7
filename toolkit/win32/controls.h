// The controls of the window, each on the native control of its kind.
#pragma once

#include <cstdint>

#include "native_window.h"

namespace Win32 {

class Frame : public Toolkit::Frame, public NativeControl {
 public:
  Frame(NativeWindow& window, const Toolkit::ControlTemplate& row);
};

class Label : public Toolkit::Label, public NativeControl {
 public:
  Label(NativeWindow& window, const Toolkit::ControlTemplate& row);

 private:
  void ApplyCaption() override;
};

class TextBox : public Toolkit::TextBox, public NativeControl {
 public:
  TextBox(NativeWindow& window, const Toolkit::ControlTemplate& row);
  std::u16string Text() const override { return TextOf(hwnd_); }
  std::int32_t TextLength() const override { return GetWindowTextLengthW(hwnd_); }
  void AppendText(std::u16string_view text) override;
  void SetSelStart(std::int32_t position) override;

 private:
  void Place() override;
  static LRESULT CALLBACK WndProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                  DWORD_PTR text_box);
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);
  bool IsTypedTab(WPARAM key) const;
  LRESULT DialogCode(const MSG* key) const;
  void ApplyText(std::u16string_view text) override;
  Selection GetSelection() const override;
  void SetSelection(Selection selection) override;
};

class ComboBox : public Toolkit::ComboBox, public NativeControl {
 public:
  ComboBox(NativeWindow& window, const Toolkit::ControlTemplate& row);
  int ListIndex() const override;

 private:
  void Place() override;
  void Draw(const DRAWITEMSTRUCT& item) override;
  void WidenForArrow(int height);
  void OnCommand(WORD code) override;
  void CommitOrRevert();
  void ApplyNewItem(const std::u16string& item) override;
  void ApplyClear() override;
  void ApplyListIndex(int index) override;
  void ShowChosen();
  void ClearEditSelection();

  int chosen_ = -1;            // the last choice, whether the user's or the program's
  bool open_ = false;          // dropped down, or closed and not yet committed or reverted
  bool accepted_ = true;       // closed with a choice, not cancelled
  std::u16string typed_text_;  // in the edit field while nothing is chosen
};

class OptionButton : public Toolkit::OptionButton, public NativeControl {
 public:
  OptionButton(NativeWindow& window, const Toolkit::ControlTemplate& row);

 private:
  void Place() override;
  void FollowTheme();
  void OnCommand(WORD code) override;
  void ApplyValue() override;
  void ApplyFontBold() override;

  bool is_plain_ = false;  // without the theme
};

class CommandButton : public Toolkit::CommandButton, public NativeControl {
 public:
  CommandButton(NativeWindow& window, const Toolkit::ControlTemplate& row);
  bool Visible() const override { return IsWindowVisible(hwnd_) != FALSE; }
  bool HasFocus() const override { return window_.Focus() == hwnd_; }
  void SetFocus() override { window_.SetFocusTo(hwnd_); }

 private:
  void OnCommand(WORD code) override;
  void ApplyEnabled() override;
};

}  // namespace Win32
