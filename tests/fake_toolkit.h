// A toolkit without a screen, for the tests of the form. A test plays the user.
#pragma once

#include <map>
#include <tuple>

#include "control_names.h"

namespace Fake {

using Message = std::tuple<Text, Text, Toolkit::Icon>;  // text, title, icon

struct Screen {
  bool is_on = false;  // the window is shown
  const Toolkit::Control* focus = nullptr;
  int changes = 0;  // of properties that have reached the platform
};
inline Screen screen;

struct TextBox : Toolkit::TextBox {
  explicit TextBox(View stored) : text(stored) {}
  using Toolkit::TextBox::NoteFocusLost;
  using Toolkit::TextBox::NoteKeyDown;
  using Toolkit::TextBox::NoteKeyUp;
  std::u16string text;
  Selection selection = {0, 0};
  std::u16string Text() const override { return text; }
  std::int32_t TextLength() const override { return static_cast<std::int32_t>(text.size()); }
  void AppendText(View more) override { text += more; }
  void SetSelStart(std::int32_t position) override { selection = {position, position}; }
  void ApplyText(View all) override {
    ++screen.changes;
    text = all;
    selection = {0, 0};
  }
  Selection GetSelection() const override { return selection; }
  void SetSelection(Selection range) override { selection = range; }
};

struct Label : Toolkit::Label {
  using Toolkit::Label::Label;
  void ApplyCaption() override { ++screen.changes; }
};

struct ComboBox : Toolkit::ComboBox {
  int index = -1;
  Text items;  // each followed by a space
  int ListIndex() const override { return index; }
  void ApplyNewItem(const std::u16string& item) override { items += item + u" "; }
  void ApplyClear() override {
    items.clear();
    index = -1;
  }
  void ApplyListIndex(int item) override {
    ++screen.changes;
    index = item;
  }
};

struct OptionButton : Toolkit::OptionButton {
  using Toolkit::OptionButton::NoteChosen;
  using Toolkit::OptionButton::OptionButton;
  void ApplyValue() override { ++screen.changes; }
  void ApplyFontBold() override { ++screen.changes; }
};

struct CommandButton : Toolkit::CommandButton {
  using Toolkit::CommandButton::CommandButton;
  bool Visible() const override { return screen.is_on; }
  bool HasFocus() const override { return screen.focus == this; }
  void SetFocus() override { screen.focus = this; }
  void ApplyEnabled() override { ++screen.changes; }
};

struct Window : Toolkit::Window {
  using Toolkit::Window::NoteActivated;
  Window() { screen = {}; }

  std::map<Text, Toolkit::Control*> controls;
  Message message;  // the last one, or nothing
  Text clipboard;
  int milliseconds = 0;  // between two ticks
  int ends = 0;          // of the program

  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::ControlTemplate& row) override {
    using Toolkit::Kind;
    std::unique_ptr<Toolkit::Control> control;
    if (row.kind == Kind::Frame) control = std::make_unique<Toolkit::Frame>();
    if (row.kind == Kind::Label) control = std::make_unique<Label>(row.text);
    if (row.kind == Kind::TextBox) control = std::make_unique<TextBox>(row.text);
    if (row.kind == Kind::ComboBox) control = std::make_unique<ComboBox>();
    if (row.kind == Kind::OptionButton) control = std::make_unique<OptionButton>(*this);
    if (row.kind == Kind::CommandButton) control = std::make_unique<CommandButton>(row.text);
    controls[NameOf(row)] = control.get();
    return control;
  }
  int Run() override { return 0; }
  void ShowMessage(View text, View title, Toolkit::Icon icon) override {
    EXPECT_EQ(message, Message()) << "two message boxes at once";
    message = Message(text, title, icon);
  }
  void SetClipboardText(View text) override { clipboard = text; }
  void EndProgram() override { ++ends; }
  void StartTimer(int interval) override { milliseconds = interval; }
  void ApplyCaption() override {}
};

}  // namespace Fake
