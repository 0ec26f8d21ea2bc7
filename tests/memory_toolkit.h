// The toolkit in memory: what the form asks for, without a screen. A test plays the user.
#pragma once

#include <map>

#include "scenarios.h"
#include "toolkit.h"

namespace Memory {

inline const Toolkit::Control* focus;  // of the one window
inline bool on_screen;                 // whether that has been brought up

struct Frame : Toolkit::Frame {
  void ApplyBackColor() override {}
};
struct Label : Toolkit::Label {
  using Toolkit::Label::Label;
  void ApplyBackColor() override {}
  void ApplyCaption() override {}
};
struct TextBox : Toolkit::TextBox {
  explicit TextBox(View stored) : text(stored) {}
  std::u16string text;
  std::u16string Text() const override { return text; }
  std::int32_t TextLength() const override { return static_cast<std::int32_t>(text.size()); }
  void AppendText(View more) override { text += more; }
  void SetSelStart(std::int32_t) override {}
  void ApplyText(View all) override { text = all; }
  Selection SelectedText() const override { return {}; }
  void SelectText(Selection) override {}
};
struct List : Toolkit::List {
  int index = -1;
  int ListIndex() const override { return index; }
  void ApplyNewItem(const std::u16string&) override {}
  void ApplyClear() override { index = -1; }
  void ApplyListIndex(int item) override { index = item; }
};
struct OptionButton : Toolkit::OptionButton {
  using Toolkit::OptionButton::NoteChosen;
  using Toolkit::OptionButton::OptionButton;
  void ApplyBackColor() override {}
  void ApplyValue() override {}
  void ApplyFontBold() override {}
};
struct CommandButton : Toolkit::CommandButton {
  using Toolkit::CommandButton::CommandButton;
  using Toolkit::CommandButton::NotePressed;
  bool Visible() const override { return on_screen; }
  void SetFocus() override { focus = this; }
  void ApplyEnabled() override {}
  bool HasFocus() const override { return focus == this; }
};

struct Desktop : Toolkit::Desktop, Toolkit::Window, Toolkit::Timer {
  Desktop() { focus = nullptr, on_screen = false; }
  void BringUp() { on_screen = true, NoteActivated(); }

  std::map<Text, Toolkit::Control*> controls;
  Box box;

  Toolkit::Window& MainWindow() override { return *this; }
  Toolkit::Timer& MainTimer() override { return *this; }
  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::StoredControl& row) override {
    using Toolkit::Kind;
    std::unique_ptr<Toolkit::Control> control;
    if (row.kind == Kind::Frame) control = std::make_unique<Frame>();
    if (row.kind == Kind::Label) control = std::make_unique<Label>(row.text);
    if (row.kind == Kind::TextBox) control = std::make_unique<TextBox>(row.text);
    if (row.kind == Kind::List) control = std::make_unique<List>();
    if (row.kind == Kind::OptionButton) control = std::make_unique<OptionButton>(options);
    if (row.kind == Kind::CommandButton) control = std::make_unique<CommandButton>(row.text);
    controls[NameOf(row)] = control.get();
    return control;
  }
  void ShowMessage(View text, View title, Toolkit::Icon icon) override {
    EXPECT_EQ(box, Box());  // never two at once
    box = Box(text, title, static_cast<int>(icon));
  }
  void SetClipboardText(View) override {}
  void EndProgram() override {}
  void ApplyCaption() override {}
  void ApplyBackColor() override {}
  void Enable(int) override {}

  Toolkit::OptionGroup options;
};

}  // namespace Memory
