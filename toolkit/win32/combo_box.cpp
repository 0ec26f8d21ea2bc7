#include "controls.h"

#include <commctrl.h>

#include "centered_edit.h"

namespace Win32 {

namespace {

constexpr WPARAM ItemsShown = 12;                           // at most, in the open list
constexpr WPARAM SelectionField = static_cast<WPARAM>(-1);  // the item height of the closed list

NativeControl::Style StyleOf(const Toolkit::ControlTemplate& row) {
  // A list of choice is drawn by us, with its text in the middle; screen readers still get the
  // text.
  const DWORD line = row.properties.editable
                         ? CBS_DROPDOWN | CBS_AUTOHSCROLL
                         : CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
  // Clips children as a label does: a list that is wider than its row is cut to it.
  return {L"COMBOBOX", line | WS_VSCROLL | WS_TABSTOP | WS_GROUP | WS_CLIPCHILDREN};
}

}  // namespace

ComboBox::ComboBox(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : NativeControl(window, row, StyleOf(row)), typed_text_(row.text) {
  if (row.properties.editable) {
    SetWindowTextW(hwnd_, WideLiteral(row.text));
    CenterText(GetWindow(hwnd_, GW_CHILD));
  }
  Send(CB_SETMINVISIBLE, ItemsShown);
}

void ComboBox::Place() {
  // An open list that gets its size or its font may close and say nothing, keep the mouse, or take
  // the item that is browsed: it is closed before, without a choice.
  if (Send(CB_GETDROPPEDSTATE)) {
    // Wine would give it the mouse when a button that is held on its arrow comes up.
    if (GetCapture() == hwnd_) Send(WM_LBUTTONUP);
    Send(CB_SHOWDROPDOWN, FALSE);
    accepted_ = false;
    CommitOrRevert();
  }
  const LRESULT marks = Send(CB_GETEDITSEL);
  NativeControl::Place();
  const int height = Pixels(row_.bounds.height, window_.Dpi());
  WidenForArrow(height);
  // The closed one is as high as its font wants it; bring it to the height of the row. Twice, since
  // Wine adds 2 to what it is told.
  LRESULT text_height = Send(CB_GETITEMHEIGHT, SelectionField);
  for (int tries = 0; tries < 2; ++tries) {
    RECT closed;
    GetWindowRect(hwnd_, &closed);
    const int missing = height - (closed.bottom - closed.top);
    if (missing == 0) break;
    text_height += missing;
    Send(CB_SETITEMHEIGHT, SelectionField, text_height);
  }
  if (!row_.properties.editable) {
    Send(CB_SETITEMHEIGHT, 0, LineHeight(hwnd_));
    return;
  }
  FitText(GetWindow(hwnd_, GW_CHILD));
  // A list that is resized or gets another font completes the text in its line to an item and marks
  // it.
  if (!open_) ShowChosen();
  if (ContainsFocus()) Send(CB_SETEDITSEL, 0, marks);
}

// The arrow is as wide as the scroll bars of the monitor. Where the window is drawn smaller than
// that it would leave no room for the text: the list gets wider by what is too much, and ends, for
// the eye and for the mouse, where it should.
void ComboBox::WidenForArrow(int height) {
  COMBOBOXINFO parts = {};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(hwnd_, &parts);
  const int arrow = parts.rcButton.right - parts.rcButton.left;
  const int too_much = arrow - MulDiv(arrow, window_.Dpi(), window_.MonitorDpi());
  if (too_much <= 0) {
    SetRegion(nullptr);
    return;
  }
  const int width = Pixels(row_.bounds.width, window_.Dpi());
  SetWindowPos(hwnd_, nullptr, 0, 0, width + too_much, height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  SetRegion(CreateRectRgn(0, 0, width, height));
}

void ComboBox::Draw(const DRAWITEMSTRUCT& item) {
  const bool is_selected = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(is_selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  SetTextColor(item.hDC, GetSysColor(is_selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  SetBkMode(item.hDC, TRANSPARENT);
  RECT text = item.rcItem;
  text.left += 1;
  DrawTextW(item.hDC, Wide(std::u16string(Item(static_cast<int>(item.itemID)))), -1, &text,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &item.rcItem);
}

// A list that is browsed still holds the last choice; in a closed one the item counts that the line
// reads.
int ComboBox::ListIndex() const {
  if (open_ || chosen_ < 0) return chosen_;
  const auto now = static_cast<int>(Send(CB_GETCURSEL));
  return TextOf(hwnd_) == Item(now) ? now : -1;
}

void ComboBox::OnCommand(WORD code) {
  switch (code) {
    case CBN_DROPDOWN:
      // What the line reads now counts afterwards: another program may have chosen or written it.
      chosen_ = ListIndex();
      if (chosen_ < 0) typed_text_ = TextOf(hwnd_);
      open_ = true;
      accepted_ = true;
      break;
    case CBN_SELENDOK:
      accepted_ = true;
      break;
    case CBN_SELENDCANCEL:
      // A closed list says so, too, when it loses the focus.
      if (open_) accepted_ = false;
      break;
    case CBN_CLOSEUP:
      window_.Defer([this] { CommitOrRevert(); });
      break;
    case CBN_SELCHANGE:
      // In an open list the arrows only browse. The order of the notifications differs between
      // mouse, keys and versions of the platform, so what they come to is looked at when all are
      // in.
      if (!open_) window_.Defer([this] { CommitOrRevert(); });
      break;
    case CBN_EDITCHANGE:
      chosen_ = -1;
      typed_text_ = TextOf(hwnd_);
      break;
    case CBN_KILLFOCUS:
      ClearSelection();
      break;
    default:
      break;
  }
}

// What counts and what is shown become the same: the item that was chosen, or what stood there
// before. An item can be chosen by the first letters of its name alone, typed into the open list.
void ComboBox::CommitOrRevert() {
  open_ = Send(CB_GETDROPPEDSTATE) != 0;
  if (open_) return;
  const auto now = static_cast<int>(Send(CB_GETCURSEL));
  const bool is_choice = accepted_ && now >= 0 && now != chosen_;
  accepted_ = true;
  if (is_choice) chosen_ = now;
  ShowChosen();
  if (is_choice) Toolkit::Raise(Click);
}

// A native list that is left without a choice may keep the item that was browsed last, or take back
// its index and not its text; and it completes what was typed to an item. All of that goes.
void ComboBox::ShowChosen() {
  const int index = chosen_;
  const std::u16string text(index < 0 ? typed_text_ : Item(index));
  if (Send(CB_GETCURSEL) != index || (index >= 0 && TextOf(hwnd_) != text)) {
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
  }
  if (index < 0 && TextOf(hwnd_) != text) SetWindowTextW(hwnd_, Wide(text));
  // Last: should the platform report the line's new text as typed, the choice would be lost.
  chosen_ = index;
  if (!ContainsFocus()) ClearSelection();
}

// A line shows its marks also while it does not have the focus.
void ComboBox::ClearSelection() {
  if (!row_.properties.editable) return;
  const WORD end = HIWORD(Send(CB_GETEDITSEL));
  Send(CB_SETEDITSEL, 0, MAKELPARAM(end, end));
}

void ComboBox::ApplyNewItem(const std::u16string& item) {
  Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
}

void ComboBox::ApplyClear() {
  Send(CB_RESETCONTENT);
  chosen_ = -1;
  typed_text_.clear();
}

void ComboBox::ApplyListIndex(int index) {
  SuspendRedraw();
  chosen_ = index;
  typed_text_.clear();
  ShowChosen();
}

}  // namespace Win32
