// The toolkit in memory: what the form asks for, without a screen. A test plays the user.
#pragma once

#include "toolkit.h"

class MemoryDesktop : public Toolkit::Desktop, Toolkit::Window, Toolkit::Timer {
 public:
  // What the platform would have drawn, moved or changed so far.
  int touches = 0;

  struct Box {
    std::u16string text, title;
    Toolkit::Icon icon;
    bool operator==(const Box&) const = default;
  };
  std::vector<Box> boxes;
  std::u16string clipboard;
  int interval = 0;
  bool on_screen = false;
  bool ended = false;
  const Toolkit::Control* focus = nullptr;

  struct Base {
    Base(MemoryDesktop& its_desktop, const Toolkit::StoredControl&) : desktop(its_desktop) {}
    void Touch() { ++desktop.touches; }
    MemoryDesktop& desktop;
  };

  struct Frame : Toolkit::Frame, Base {
    using Base::Base;
    void ApplyBackColor() override { Touch(); }
  };

  struct Label : Toolkit::Label, Base {
    Label(MemoryDesktop& d, const Toolkit::StoredControl& row)
        : Toolkit::Label(row.text), Base(d, row) {}
    void ApplyBackColor() override { Touch(); }
    void ApplyCaption() override { Touch(); }
  };

  struct TextBox : Toolkit::TextBox, Base {
    TextBox(MemoryDesktop& d, const Toolkit::StoredControl& row) : Base(d, row), text(row.text) {}
    std::u16string text;
    Selection selection{};

    // The user's keys, in the box that has the focus.
    void Down(std::int16_t key, bool repeat = false) { NoteKeyDown(key, repeat); }
    void Up(std::int16_t key) { NoteKeyUp(key, 0); }
    void Leave() { NoteFocusLost(); }

    std::u16string Text() const override { return text; }
    std::int32_t TextLength() const override { return static_cast<std::int32_t>(text.size()); }
    void AppendText(std::u16string_view more) override { Touch(), text += more; }
    void SetSelStart(std::int32_t place) override { SelectText({place, place}); }
    void ApplyText(std::u16string_view all) override { Touch(), text = all, selection = {}; }
    Selection SelectedText() const override { return selection; }
    void SelectText(Selection selected) override { Touch(), selection = selected; }
  };

  struct List : Toolkit::List, Base {
    using Base::Base;
    int index = -1;

    void Choose(int item) {  // the user's choice
      index = item;
      if (Click) Click();
    }
    int ListIndex() const override { return index; }
    void ApplyNewItem(const std::u16string&) override { Touch(); }
    void ApplyClear() override { Touch(), index = -1; }
    void ApplyListIndex(int item) override { Touch(), index = item; }
  };

  struct OptionButton : Toolkit::OptionButton, Base {
    OptionButton(MemoryDesktop& d, const Toolkit::StoredControl& row)
        : Toolkit::OptionButton(d.options_), Base(d, row) {}
    void Choose() { NoteChosen(); }
    void ApplyBackColor() override { Touch(); }
    void ApplyValue() override { Touch(); }
    void ApplyFontBold() override { Touch(); }
  };

  struct CommandButton : Toolkit::CommandButton, Base {
    CommandButton(MemoryDesktop& d, const Toolkit::StoredControl& row)
        : Toolkit::CommandButton(row.text), Base(d, row) {}
    void Press() { NotePressed(); }
    bool Visible() const override { return desktop.on_screen; }
    void SetFocus() override { desktop.focus = this; }
    void ApplyEnabled() override { Touch(); }
    bool HasFocus() const override { return desktop.focus == this; }
    void PassFocusOn() override { desktop.focus = nullptr; }
  };

  // The screen's side of the window and of the timer.
  void BringUp() {
    on_screen = true;
    NoteActivated();
  }
  void CloseWindow() { Unload(); }
  void Second() { Tick(); }

  Toolkit::Window& MainWindow() override { return *this; }
  Toolkit::Timer& MainTimer() override { return *this; }
  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::StoredControl& row) override {
    if (row.kind == Toolkit::Kind::Frame) return std::make_unique<Frame>(*this, row);
    if (row.kind == Toolkit::Kind::Label) return std::make_unique<Label>(*this, row);
    if (row.kind == Toolkit::Kind::TextBox) return std::make_unique<TextBox>(*this, row);
    if (row.kind == Toolkit::Kind::List) return std::make_unique<List>(*this, row);
    if (row.kind == Toolkit::Kind::OptionButton) return std::make_unique<OptionButton>(*this, row);
    return std::make_unique<CommandButton>(*this, row);
  }
  void ShowMessage(std::u16string_view text, std::u16string_view title,
                   Toolkit::Icon icon) override {
    boxes.push_back({std::u16string(text), std::u16string(title), icon});
  }
  void SetClipboardText(std::u16string_view text) override { clipboard = text; }
  void EndProgram() override { ended = true; }

 private:
  void ApplyCaption() override { ++touches; }
  void ApplyBackColor() override { ++touches; }
  void Enable(int milliseconds) override { interval = milliseconds; }

  Toolkit::OptionGroup options_;
};
