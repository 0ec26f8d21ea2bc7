// What the form asks of a window toolkit, and nothing more: one fixed-size window and its controls,
// a timer, message boxes and the clipboard. A platform derives a class from each of these and
// fills in the pure virtual functions; the behaviour that must be the same on every platform stands
// here once, in the functions that are not virtual:
//
//  1. A selection set from code raises the control's Click at once, before the call returns, also
//     when the selection is the one it had.
//  2. Setting a property to the value it has already does not reach the platform: nothing is
//     repainted, no caret moves, no focus is lost.
//  3. A key-up is raised for a text box only if that key went down in that same box while it held
//     the focus. So the Enter that closes a message box, which comes up in the box behind it, does
//     not count there.
//  4. A command button that turns disabled while it holds the focus first hands the focus to the
//     button that the form has named for this, its FocusHeir.
//
// Texts are UTF-16; positions in them count its 16-bit units, and lines end with "\r\n" wherever
// there are several, typed ones included. Lengths of the stored layout are in twips, 1/1440 of an
// inch. Colours are 0x00BBGGRR, keys have the numbers of Win32 (Enter is 13), and so have the two
// icons.
//
// For whoever writes the next platform:
//
//  - The main loop is the platform's own, and so is the local date: the program's entry point makes
//    the Desktop with a client area of the layout's size, gives the form's calendar side a function
//    for the date as a text mm-dd-yyyy, loads the form and runs the loop. That brings the window to
//    the middle of the screen; before, it is not shown, which the form relies on while it loads. A
//    window that is too large for its screen is drawn smaller with all that is in it.
//  - A program has one Desktop, which owns the window and the timer. The form owns the controls
//    that NewControl gives it; they end before the Desktop does. The rows of the layout live longer
//    than all of them, so a control can keep a reference to its own. The option buttons of the
//    window share one OptionGroup, which the Desktop keeps for them.
//  - The texts in a row are literals: they end with a zero. A text that a function is given need
//    not, and does not live longer than the call.
//  - In a list a choice counts when it is made: to browse the items of an open list is not to
//    choose, and Escape restores what counted before. While the line holds typed text nothing is
//    selected: ListIndex is -1, until an item is chosen. What the line of a closed list shows and
//    what ListIndex says never differ otherwise.
//  - Tab and Shift+Tab go round the controls that can be used, in the order of the rows; the option
//    buttons are one stop, and arrows choose among them. Up, Down and the wheel choose in a closed
//    list that has the focus; in an open one arrows browse and Enter takes the item. Enter and
//    Space press the command button that has the focus; there is no default button. Enter that is
//    held presses none again, whatever it did when it went down, and closes no message box. In a
//    text box Ctrl+A selects all, and so does coming in by Tab, but not in one of several lines,
//    where Enter and Ctrl+Tab type a line end and a tab. Elsewhere Enter does nothing of its own,
//    and neither does Escape where no list is open.
//  - A control has the focus also while another program is in front: SetFocus and HasFocus mean the
//    control that has it when the window comes back.
//  - All events come on the thread that made the Desktop, one after the other: each handler runs to
//    its end before the next event. There is one exception: where a program from outside closes the
//    window behind a message box, Unload is raised inside the handler that shows the box. While a
//    box is open there is no tick; the next one comes within a second of its end.
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

struct Font {
  std::u16string_view face;
  int height;  // twips of the em, so without the space above the letters; 20 are a point
};

enum class Kind { Frame, Label, TextBox, List, OptionButton, CommandButton };

// One row of a window's stored layout. The rows stand in the tab order of their controls. A label
// or an option button may reach into a text box or a list, which lies above it.
struct StoredControl {
  std::u16string_view name;
  int index;  // in the group of controls that share the name; NoIndex for a control of its own
  Kind kind;
  struct Corner {
    int left, top;
  } container;  // where left and top count from, itself counted from the corner of the client area
  int left, top, width, height;
  std::u16string_view text;  // the caption, the first text of a box or of a line to type in
  Font font;
  std::u16string_view spoken_name;  // what a screen reader says; empty: the caption serves

  struct Properties {
    bool centred = false;        // label: text in the middle
    bool several_lines = false;  // text box: several lines, vertical scroll bar
    int max_length = 0;          // text box: characters that can be typed; 0 is no limit
    bool typed_in = false;       // list: a line that the user can type in
  } properties;
};
inline constexpr int NoIndex = -1;

class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;
};

// Anything whose background colour can be set. Text on a colour that was set is black.
class Coloured {
 public:
  virtual ~Coloured() = default;
  static constexpr Color UsualColor = -1;  // the platform's own, before any is set
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color color);

 protected:
  virtual void ApplyBackColor() = 0;

 private:
  Color back_color_ = UsualColor;
};

class Frame : public Control, public Coloured {
 public:
  static constexpr Kind OwnKind = Kind::Frame;
};

class Label : public Control, public Coloured {
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

  // A stretch of characters, counted from 0; an empty one is the caret's place.
  struct Selection {
    std::int32_t start, end;
    bool operator==(const Selection&) const = default;
  };

  // `shift` is the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
  std::function<void(std::int16_t key_code, std::int16_t shift)> KeyUp;

  virtual std::u16string Text() const = 0;      // at first that of its row
  virtual std::int32_t TextLength() const = 0;  // without copying the text
  void SetText(std::u16string_view text);
  virtual void AppendText(std::u16string_view text) = 0;  // without copying what is there
  virtual void SetSelStart(std::int32_t position) = 0;    // the caret, and scrolls it into view

  // Takes the blanks off both ends and gives the text that is left. Writes nothing where there are
  // none; otherwise caret and selection stay on the characters they stood on.
  std::u16string TrimText();

 protected:
  virtual void ApplyText(std::u16string_view text) = 0;
  virtual Selection SelectedStretch() const = 0;
  virtual void SelectText(Selection selection) = 0;

  // To be called by the platform. A repeat is a key-down of a key that is down already.
  void NoteKeyDown(std::int16_t key_code, bool is_repeat);
  void NoteKeyUp(std::int16_t key_code, std::int16_t shift);
  void NoteFocusLost() { keys_down_.reset(); }

 private:
  std::bitset<256> keys_down_;
};

inline constexpr std::int16_t EnterKey = 13;

class List : public Control {
 public:
  static constexpr Kind OwnKind = Kind::List;
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

  // To be called by the platform when the user has chosen an item.
  void NoteChosen();

 private:
  std::vector<std::u16string> items_;
};

class OptionButton;

// The option buttons of a window: at most one of them is selected.
struct OptionGroup {
  OptionButton* selected = nullptr;
};

class OptionButton : public Control, public Coloured {
 public:
  static constexpr Kind OwnKind = Kind::OptionButton;
  explicit OptionButton(OptionGroup& group) : group_(group) {}
  Event Click;

  bool Value() const { return group_.selected == this; }
  void Select();
  bool FontBold() const { return font_bold_; }
  void SetFontBold(bool bold);

 protected:
  virtual void ApplyValue() = 0;
  virtual void ApplyFontBold() = 0;

  // To be called by the platform when the user picks the button. Nothing happens if it is the
  // selected one: some platforms report a pick whenever the button gets the focus.
  void NoteChosen();

 private:
  OptionGroup& group_;
  bool font_bold_ = false;
};

class CommandButton : public Control {
 public:
  static constexpr Kind OwnKind = Kind::CommandButton;
  explicit CommandButton(std::u16string_view caption) : caption_(caption) {}  // that of its row
  Event Click;
  CommandButton* FocusHeir = nullptr;  // takes the focus when this one turns disabled under it

  const std::u16string& Caption() const { return caption_; }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  virtual bool Visible() const = 0;  // false while the window is not on the screen
  virtual void SetFocus() = 0;

 protected:
  virtual void ApplyEnabled() = 0;
  virtual bool HasFocus() const = 0;

  // To be called by the platform when the user presses the button.
  void NotePressed();

 private:
  std::u16string caption_;
  bool enabled_ = true;
};

class Timer {
 public:
  virtual ~Timer() = default;
  Event Tick;
  virtual void Enable(int milliseconds) = 0;  // from now on, a tick every so often
};

class Window : public Coloured {
 public:
  Event Activate;  // on the screen, it has become the program's active one; raised once
  Event Unload;    // the user closes the window, which stays until EndProgram

  const std::u16string& Caption() const { return caption_; }
  void SetCaption(std::u16string_view caption);

 protected:
  virtual void ApplyCaption() = 0;

  // To be called by the platform each time the window becomes active.
  void NoteActivated();

 private:
  std::u16string caption_;
  bool was_active_ = false;
};

// The icons of a message box.
enum class Icon { Exclamation = 48, Information = 64 };

// What a program gets its window and its controls from.
class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual Window& MainWindow() = 0;
  virtual Timer& MainTimer() = 0;

  // To be called for the rows in their order. Gives a control of the class whose OwnKind is the
  // row's kind: the form casts it to that without a look.
  virtual std::unique_ptr<Control> NewControl(const StoredControl& row) = 0;

  // Shows a box with an OK button and returns when the user has closed it.
  virtual void ShowMessage(std::u16string_view text, std::u16string_view title, Icon icon) = 0;

  // Empties the clipboard, then puts `text` on it. While another program holds the clipboard that
  // cannot be done and it stays as it is. A failure is told to the user by a sound alone.
  virtual void SetClipboardText(std::u16string_view text) = 0;

  // Takes the window off the screen and ends the program with exit code 0, without a question. It
  // returns; the main loop ends once the handler that has called it is done.
  virtual void EndProgram() = 0;
};

}  // namespace Toolkit
