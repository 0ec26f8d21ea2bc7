#include <windows.h>

#include <commctrl.h>

#include <string>

#include "centered_edit.h"
#include "controls.h"

namespace Win32 {

namespace {

constexpr WPARAM MinVisibleItems = 12;
constexpr WPARAM SelectionField = static_cast<WPARAM>(-1);  // for CB_SETITEMHEIGHT

NativeControl::Style StyleOf(const Toolkit::ControlTemplate& row) {
  // Without an edit field it is owner-drawn, for a text in the middle. Screen readers still get the
  // strings.
  const DWORD kind = row.properties.editable
                         ? CBS_DROPDOWN | CBS_AUTOHSCROLL
                         : CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
  // WS_CLIPCHILDREN for its region, as for a label.
  return {L"COMBOBOX", kind | WS_VSCROLL | WS_TABSTOP | WS_GROUP | WS_CLIPCHILDREN};
}

}  // namespace

ComboBox::ComboBox(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : NativeControl(window, row, StyleOf(row)), typed_text_(row.text) {
  if (row.properties.editable) {
    SetWindowTextW(hwnd_, WideLiteral(row.text));
    CenterText(GetWindow(hwnd_, GW_CHILD));
  }
  Send(CB_SETMINVISIBLE, MinVisibleItems);
}

void ComboBox::Place() {
  // Resizing an open combo box or changing its font may close it silently, keep the mouse capture,
  // or accept the highlighted item: cancel it first.
  if (Send(CB_GETDROPPEDSTATE)) {
    // Wine would capture the mouse for it when a button held on its arrow is released.
    if (GetCapture() == hwnd_) Send(WM_LBUTTONUP);
    Send(CB_SHOWDROPDOWN, FALSE);
    accepted_ = false;
    CommitOrRevert();
  }
  const LRESULT selection = Send(CB_GETEDITSEL);
  NativeControl::Place();
  const int height = Pixels(row_.bounds.height, window_.Dpi());
  WidenForArrow(height);
  // Its height follows from its font; bring it to that of the row. Twice, since Wine adds 2 to the
  // height that it is given.
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
  // Resizing or another font makes it complete the typed text to an item and select that.
  if (!open_) ShowChosen();
  if (ContainsFocus()) Send(CB_SETEDITSEL, 0, selection);
}

// The arrow follows the monitor's DPI and would crowd out the text of a window that is drawn
// smaller: widen the control by the excess and clip it to its layout width.
void ComboBox::WidenForArrow(int height) {
  COMBOBOXINFO parts = {};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(hwnd_, &parts);
  const int arrow = parts.rcButton.right - parts.rcButton.left;
  const int excess = arrow - MulDiv(arrow, window_.Dpi(), window_.MonitorDpi());
  if (excess <= 0) {
    SetRegion(nullptr);
    return;
  }
  const int width = Pixels(row_.bounds.width, window_.Dpi());
  SetWindowPos(hwnd_, nullptr, 0, 0, width + excess, height,
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
  if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

// Open: the last choice. Closed: the current item, if the edit field shows it.
int ComboBox::ListIndex() const {
  if (open_ || chosen_ < 0) return chosen_;
  const auto now = static_cast<int>(Send(CB_GETCURSEL));
  return TextOf(hwnd_) == Item(now) ? now : -1;
}

void ComboBox::OnCommand(WORD code) {
  switch (code) {
    case CBN_DROPDOWN:
      // What it shows is restored by Escape: another program may have selected or written it.
      chosen_ = ListIndex();
      if (chosen_ < 0) typed_text_ = TextOf(hwnd_);
      open_ = true;
      accepted_ = true;
      break;
    case CBN_SELENDOK:
      accepted_ = true;
      break;
    case CBN_SELENDCANCEL:
      // Also sent by a closed combo box that loses the focus.
      if (open_) accepted_ = false;
      break;
    case CBN_CLOSEUP:
      window_.Defer([this] { CommitOrRevert(); });
      break;
    case CBN_SELCHANGE:
      // In an open list, arrows only highlight. The order of the notifications differs between
      // mouse, keyboard and Windows versions: evaluate once all have arrived.
      if (!open_) window_.Defer([this] { CommitOrRevert(); });
      break;
    case CBN_EDITCHANGE:
      chosen_ = -1;
      typed_text_ = TextOf(hwnd_);
      break;
    case CBN_KILLFOCUS:
      ClearEditSelection();
      break;
    default:
      break;
  }
}

// Commits the chosen item or restores the previous one. An item can also be chosen by its first
// letters, typed while the list is open.
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

// A cancelled combo box may keep the highlighted item, or restore its index but not its text, and
// it completes typed text: undo all that.
void ComboBox::ShowChosen() {
  const int index = chosen_;
  const std::u16string text(index < 0 ? typed_text_ : Item(index));
  if (Send(CB_GETCURSEL) != index || (index >= 0 && TextOf(hwnd_) != text)) {
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
  }
  if (index < 0 && TextOf(hwnd_) != text) SetWindowTextW(hwnd_, Wide(text));
  // Last: if the platform reports the new text as typed, OnCommand has forgotten the choice.
  chosen_ = index;
  if (!ContainsFocus()) ClearEditSelection();
}

// An edit field shows its selection even when it is not focused.
void ComboBox::ClearEditSelection() {
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
