// The toolkit in memory: what the form asks for, without a screen. A test plays the user.
#pragma once

#include <map>

#include "scenarios.h"
#include "toolkit.h"

class MemoryDesktop : public Toolkit::Desktop, Toolkit::Window, Toolkit::Timer {
 public:
  int touches = 0;  // how often the platform would have drawn, moved or changed something
  std::map<Text, Toolkit::Control*> controls;
  std::vector<Box> boxes;
  bool on_screen = false;
  const Toolkit::Control* focus = nullptr;

  using Row = const Toolkit::StoredControl&;
  struct Base {
    MemoryDesktop& desktop;
    void Touch() { ++desktop.touches; }
  };
  struct Frame : Toolkit::Frame, Base {
    Frame(MemoryDesktop& d, Row) : Base{d} {}
    void ApplyBackColor() override {}
  };
  struct Label : Toolkit::Label, Base {
    Label(MemoryDesktop& d, Row row) : Toolkit::Label(row.text), Base{d} {}
    void ApplyBackColor() override {}
    void ApplyCaption() override { Touch(); }
  };
  struct TextBox : Toolkit::TextBox, Base {
    TextBox(MemoryDesktop& d, Row row) : Base{d}, text(row.text) {}
    std::u16string text;
    Selection selection{};

    std::u16string Text() const override { return text; }
    std::int32_t TextLength() const override { return static_cast<std::int32_t>(text.size()); }
    void AppendText(View more) override { Touch(), text += more; }
    void SetSelStart(std::int32_t place) override { SelectText({place, place}); }
    void ApplyText(View all) override { Touch(), text = all, selection = {}; }
    Selection SelectedText() const override { return selection; }
    void SelectText(Selection selected) override { Touch(), selection = selected; }
  };
  struct List : Toolkit::List, Base {
    List(MemoryDesktop& d, Row) : Base{d} {}
    int index = -1;
    int ListIndex() const override { return index; }
    void ApplyNewItem(const std::u16string&) override {}
    void ApplyClear() override { index = -1; }
    void ApplyListIndex(int item) override { Touch(), index = item; }
  };
  struct OptionButton : Toolkit::OptionButton, Base {
    OptionButton(MemoryDesktop& d, Row) : Toolkit::OptionButton(d.options_), Base{d} {}
    void Choose() { NoteChosen(); }
    void ApplyBackColor() override {}
    void ApplyValue() override { Touch(); }
    void ApplyFontBold() override { Touch(); }
  };
  struct CommandButton : Toolkit::CommandButton, Base {
    CommandButton(MemoryDesktop& d, Row row) : Toolkit::CommandButton(row.text), Base{d} {}
    void Press() { NotePressed(); }
    bool Visible() const override { return desktop.on_screen; }
    void SetFocus() override { desktop.focus = this; }
    void ApplyEnabled() override { Touch(); }
    bool HasFocus() const override { return desktop.focus == this; }
    void PassFocusOn() override { desktop.focus = nullptr; }
  };

  void BringUp() { on_screen = true, NoteActivated(); }
  void Second() { Tick(); }

  Toolkit::Window& MainWindow() override { return *this; }
  Toolkit::Timer& MainTimer() override { return *this; }
  std::unique_ptr<Toolkit::Control> NewControl(Row row) override {
    static constexpr decltype(&New<Frame>) makers[] = {
        New<Frame>, New<Label>, New<TextBox>, New<List>, New<OptionButton>, New<CommandButton>};
    auto control = makers[static_cast<int>(row.kind)](*this, row);
    const Text index(row.index < 0 ? 0 : 1, static_cast<char16_t>(u'0' + row.index));
    controls[Text(row.name) + index] = control.get();
    return control;
  }
  void ShowMessage(View text, View title, Toolkit::Icon icon) override {
    boxes.emplace_back(text, title, static_cast<int>(icon));
  }
  void SetClipboardText(View) override {}
  void EndProgram() override {}

 private:
  template <class T>
  static std::unique_ptr<Toolkit::Control> New(MemoryDesktop& desktop, Row row) {
    return std::make_unique<T>(desktop, row);
  }
  void ApplyCaption() override {}
  void ApplyBackColor() override {}
  void Enable(int) override {}

  Toolkit::OptionGroup options_;
};
