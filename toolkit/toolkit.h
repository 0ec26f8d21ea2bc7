// What the form asks of a window toolkit: one window of fixed size with its controls, a timer,
// message boxes and the clipboard. A platform derives its classes from these and fills in the
// pure virtual functions; what must be the same on every platform is here once, in the functions
// that are not virtual:
//
//  1. A selection set from code raises the control's Click before the call returns, even when it is
//     the selection that the control had.
//  2. Setting a property to the value it has does not reach the platform: nothing is repainted, no
//     caret moves, no focus is lost.
//  3. A key-up is raised for a text box only if that key went down in the same text box while it
//     had the focus. Otherwise the Enter that closes a message box, and is released over the text
//     box, would bring up the message box again.
//
// The form also relies on the following:
//
//  - An item of an open list is chosen when Enter or a click takes it. Arrows only highlight it;
//    Escape restores the previous choice. While the edit field of a combo box holds typed text,
//    nothing is selected. Otherwise ListIndex and what a closed combo box shows never differ.
//  - All events are raised on one thread, one after the other, except the Click of rule 1. While a
//    message box is open there is no tick, and no command runs; the next tick comes within a second
//    of its end. Another program can still raise Unload, or the Click of a combo box or an option
//    button, inside the handler that shows the message box.
//  - A control has the focus even while another program is in front: it is the one that has it when
//    the window is active again.
//
// Who takes which key:
//
//   Tab, Shift+Tab   The window: goes round the enabled controls, in the order of the rows. The
//                    option buttons are one stop.
//   Enter, Space     The focused command button: pressed once, however long Enter is held. There is
//                    no default button.
//   Enter            An open list: takes the item. A multiline text box: types a line end, and more
//                    while it is held. A single-line text box: only raises KeyUp.
//   Up, Down, wheel  A focused combo box: chooses, or highlights if its list is open.
//   Arrows           The option buttons: choose.
//   Escape           An open list or a message box: closes it.
//   Ctrl+A           A text box: selects all, as Tab does into one of a single line.
//   Ctrl+Tab         A multiline text box: types a tab.
//
// Texts are UTF-16, positions in them count its 16-bit units, and lines end with "\r\n". Lengths of
// the layout are in twips, 1/1440 of an inch. Colours are 0x00BBGGRR. Keys and icons have the
// numbers of Win32.
#pragma once

#include <bitset>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Toolkit {

using Event = std::function<void()>;
using Color = std::int32_t;

// Runs what handles the event, if anything does.
inline void Raise(const Event& event) {
  if (event) event();
}

struct Font {
  std::u16string_view face;
  int height;  // twips of the em, so without the space above the letters; 20 are a point
};

enum class Kind { Frame, Label, TextBox, ComboBox, OptionButton, CommandButton };

struct Bounds {
  int left, top, width, height;
  bool operator==(const Bounds&) const = default;
};

// A control of the layout. The templates are in tab order, live longer than their controls, and
// have null-terminated texts.
struct ControlTemplate {
  std::u16string_view name;
  int index;  // in the group of controls that share the name; NoIndex for a control of its own
  Kind kind;
  Bounds container;          // of the client area, or within it that of the frame
  Bounds bounds;             // within the container
  std::u16string_view text;  // the caption, or the first text of a text box or an edit field
  Font font;
  std::u16string_view accessible_name;  // for screen readers; empty if they have the caption

  struct Properties {
    bool centered = false;   // label
    bool multiline = false;  // text box: with a vertical scroll bar
    int max_length = 0;      // text box: characters that can be typed; 0 is no limit
    bool editable = false;   // combo box: with an edit field
  } properties;
};
inline constexpr int NoIndex = -1;

// The bounds of a control within the client area.
constexpr Bounds BoundsOf(const ControlTemplate& row) {
  return {row.container.left + row.bounds.left, row.container.top + row.bounds.top,
          row.bounds.width, row.bounds.height};
}

class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;
};

// Anything whose background colour can be set, before the window is shown. Text on a colour that
// was set is black.
class Colored {
 public:
  virtual ~Colored() = default;
  static constexpr Color DefaultColor = -1;  // the platform's own, before any is set
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color color) { back_color_ = color; }

 private:
  Color back_color_ = DefaultColor;
};

class Frame : public Control, public Colored {
 public:
  static constexpr Kind OwnKind = Kind::Frame;
};

class Label : public Control, public Colored {
 public:
  static constexpr Kind OwnKind = Kind::Label;
  explicit Label(std::u16string_view caption) : caption_(caption) {}  // that of its row
  const std::u16string& Caption() const { return caption_; }
  void SetCaption(std::u16string_view caption);

 protected:
  virtual void ApplyCaption() = 0;

 private:
  std::u16string caption_;
};

class TextBox : public Control {
 public:
  static constexpr Kind OwnKind = Kind::TextBox;

  // A range of characters, counted from 0; an empty one is the position of the caret.
  struct Selection {
    std::int32_t start, end;
    bool operator==(const Selection&) const = default;
  };

  // `shift` is the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
  std::function<void(std::int16_t key_code, std::int16_t shift)> KeyUp;

  virtual std::u16string Text() const = 0;      // at first that of its row
  virtual std::int32_t TextLength() const = 0;  // without copying the text
  void SetText(std::u16string_view text);
  virtual void AppendText(std::u16string_view text) = 0;  // without copying the text before it
  virtual void SetSelStart(std::int32_t position) = 0;  // moves the caret and scrolls it into view

  // Removes the spaces at both ends and returns the text that is left. Writes nothing if there are
  // none; otherwise caret and selection stay on their characters.
  std::u16string TrimText();

 protected:
  virtual void ApplyText(std::u16string_view text) = 0;
  virtual Selection GetSelection() const = 0;
  virtual void SetSelection(Selection selection) = 0;

  // To be called by the platform. A repeat is a key-down of a key that is down already.
  void NoteKeyDown(std::int16_t key_code, bool is_repeat);
  void NoteKeyUp(std::int16_t key_code, std::int16_t shift);
  void NoteFocusLost() { keys_down_.reset(); }

 private:
  std::bitset<256> keys_down_;
};

inline constexpr std::int16_t EnterKey = 13;

class ComboBox : public Control {
 public:
  static constexpr Kind OwnKind = Kind::ComboBox;
  Event Click;

  void AddItem(std::u16string_view item);
  void Clear();
  int ListCount() const { return static_cast<int>(items_.size()); }
  std::u16string_view Item(int index) const;  // empty for an index outside the list
  virtual int ListIndex() const = 0;          // -1 when nothing is selected
  void SetListIndex(int index);

 protected:
  virtual void ApplyNewItem(const std::u16string& item) = 0;
  virtual void ApplyClear() = 0;
  virtual void ApplyListIndex(int index) = 0;

 private:
  std::vector<std::u16string> items_;
};

class Window;

// At most one option button of a window is selected.
class OptionButton : public Control, public Colored {
 public:
  static constexpr Kind OwnKind = Kind::OptionButton;
  explicit OptionButton(Window& owner) : owner_(owner) {}
  Event Click;

  bool Value() const;
  void Select();
  bool FontBold() const { return font_bold_; }
  void SetFontBold(bool bold);

 protected:
  virtual void ApplyValue() = 0;
  virtual void ApplyFontBold() = 0;

  // To be called by the platform when the user chooses the button. Does nothing if it is the
  // selected one: Windows reports a choice whenever the button is focused.
  void NoteChosen();

 private:
  Window& owner_;
  bool font_bold_ = false;
};

class CommandButton : public Control {
 public:
  static constexpr Kind OwnKind = Kind::CommandButton;
  explicit CommandButton(std::u16string_view caption) : caption_(caption) {}  // that of its row
  Event Click;

  const std::u16string& Caption() const { return caption_; }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  virtual bool Visible() const = 0;  // false while the window is not on the screen
  virtual bool HasFocus() const = 0;
  virtual void SetFocus() = 0;

 protected:
  virtual void ApplyEnabled() = 0;

 private:
  std::u16string caption_;
  bool enabled_ = true;
};

class Timer {
 public:
  virtual ~Timer() = default;
  Event Tick;
  virtual void StartTimer(int milliseconds) = 0;  // from now on, a tick every so often
};

// The icons of a message box.
enum class Icon { Exclamation = 48, Information = 64 };

// The program's one window, and what the form gets from it: its controls, its timer, message boxes,
// the clipboard. It lives longer than its controls.
class Window : public Colored, public Timer {
 public:
  Event Activate;  // on the screen, it has become the program's active window; raised once
  Event Unload;    // the user closes the window, which stays until EndProgram

  const std::u16string& Caption() const { return caption_; }
  void SetCaption(std::u16string_view caption);

  // To be called for the rows in their order, before Run. Returns a control of the class whose
  // OwnKind is the row's kind: the form relies on that.
  virtual std::unique_ptr<Control> NewControl(const ControlTemplate& row) = 0;

  // Brings the window to the middle of the screen, smaller where it would not fit, and serves it
  // until the program ends. Returns the exit code of the program.
  virtual int Run() = 0;

  // Shows a message box with an OK button and returns when the user has closed it.
  virtual void ShowMessage(std::u16string_view text, std::u16string_view title, Icon icon) = 0;

  // Empties the clipboard, then puts `text` on it. While another program holds the clipboard, it
  // stays as it is. A failure only makes a sound.
  virtual void SetClipboardText(std::u16string_view text) = 0;

  // Takes the window off the screen and ends the program with exit code 0, without a question. It
  // returns; Run returns once the handler that has called it is done.
  virtual void EndProgram() = 0;

 protected:
  virtual void ApplyCaption() = 0;

  // To be called by the platform each time the window becomes active.
  void NoteActivated();

 private:
  friend OptionButton;

  std::u16string caption_;
  bool was_active_ = false;
  OptionButton* selected_option_ = nullptr;
};

}  // namespace Toolkit
