// The toolkit in memory: what the form asks for, without a screen. A test plays the user.
#pragma once

#include <map>

#include "toolkit.h"
#include "user.h"

class MemoryDesktop : public Toolkit::Desktop, Toolkit::Window, Toolkit::Timer {
 public:
  int touches = 0;  // how often the platform would have drawn, moved or changed something
  std::map<Text, Toolkit::Control*> controls;
  std::vector<MessageBoxSeen> boxes;
  int interval = 0;
  bool on_screen = false;
  const Toolkit::Control* focus = nullptr;

  struct Base {
    MemoryDesktop& desktop;
    void Touch() { ++desktop.touches; }
  };
  struct Frame : Toolkit::Frame, Base {
    Frame(MemoryDesktop& d, const Toolkit::StoredControl&) : Base{d} {}
    void ApplyBackColor() override { Touch(); }
  };
  struct Label : Toolkit::Label, Base {
    Label(MemoryDesktop& d, const Toolkit::StoredControl& r) : Toolkit::Label(r.text), Base{d} {}
    void ApplyBackColor() override { Touch(); }
    void ApplyCaption() override { Touch(); }
  };
  struct TextBox : Toolkit::TextBox, Base {
    TextBox(MemoryDesktop& d, const Toolkit::StoredControl& r) : Base{d}, text(r.text) {}
    std::u16string text;
    Selection selection{};

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
    List(MemoryDesktop& d, const Toolkit::StoredControl&) : Base{d} {}
    int index = -1;
    void Choose(int item) { index = item, Click ? Click() : void(); }
    int ListIndex() const override { return index; }
    void ApplyNewItem(const std::u16string&) override { Touch(); }
    void ApplyClear() override { Touch(), index = -1; }
    void ApplyListIndex(int item) override { Touch(), index = item; }
  };
  struct OptionButton : Toolkit::OptionButton, Base {
    OptionButton(MemoryDesktop& d, const Toolkit::StoredControl&)
        : Toolkit::OptionButton(d.options_), Base{d} {}
    void Choose() { NoteChosen(); }
    void ApplyBackColor() override { Touch(); }
    void ApplyValue() override { Touch(); }
    void ApplyFontBold() override { Touch(); }
  };
  struct CommandButton : Toolkit::CommandButton, Base {
    CommandButton(MemoryDesktop& d, const Toolkit::StoredControl& r)
        : Toolkit::CommandButton(r.text), Base{d} {}
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
  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::StoredControl& row) override {
    using Make =
        std::unique_ptr<Toolkit::Control> (*)(MemoryDesktop&, const Toolkit::StoredControl&);
    static constexpr Make makers[] = {New<Frame>, New<Label>,        New<TextBox>,
                                      New<List>,  New<OptionButton>, New<CommandButton>};
    auto control = makers[static_cast<int>(row.kind)](*this, row);
    const Text index = row.index == Toolkit::NoIndex ? Text() : Text(1, char16_t(u'0' + row.index));
    controls[Text(row.name) + index] = control.get();
    return control;
  }
  void ShowMessage(View text, View title, Toolkit::Icon icon) override {
    boxes.push_back({Text(text), Text(title), static_cast<int>(icon)});
  }
  void SetClipboardText(View) override {}
  void EndProgram() override {}

 private:
  template <class T>
  static std::unique_ptr<Toolkit::Control> New(MemoryDesktop& d, const Toolkit::StoredControl& r) {
    return std::make_unique<T>(d, r);
  }
  void ApplyCaption() override { ++touches; }
  void ApplyBackColor() override { ++touches; }
  void Enable(int milliseconds) override { interval = milliseconds; }

  Toolkit::OptionGroup options_;
};
