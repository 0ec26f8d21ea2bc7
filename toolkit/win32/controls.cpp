// Makes the controls, and implements those that need only a few lines.
#include "controls.h"

#include <memory>

namespace Win32 {

std::unique_ptr<Toolkit::Control> NativeWindow::NewControl(const Toolkit::ControlTemplate& row) {
  switch (row.kind) {
    case Toolkit::Kind::Frame:
      return std::make_unique<Frame>(*this, row);
    case Toolkit::Kind::Label:
      return std::make_unique<Label>(*this, row);
    case Toolkit::Kind::TextBox:
      return std::make_unique<TextBox>(*this, row);
    case Toolkit::Kind::ComboBox:
      return std::make_unique<ComboBox>(*this, row);
    case Toolkit::Kind::OptionButton:
      return std::make_unique<OptionButton>(*this, row);
    case Toolkit::Kind::CommandButton:
      return std::make_unique<CommandButton>(*this, row);
  }
  return nullptr;
}

Frame::Frame(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : NativeControl(window, row, {L"BUTTON", BS_GROUPBOX | WS_GROUP}) {}

// Without WS_CLIPCHILDREN the class draws with its parent's region and ignores its own.
Label::Label(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : Toolkit::Label(row.text),
      NativeControl(window, row,
                    {L"STATIC", (row.properties.centered ? DWORD{SS_CENTER} : DWORD{SS_LEFT}) |
                                    SS_NOPREFIX | WS_GROUP | WS_CLIPCHILDREN}) {}

void Label::ApplyCaption() {
  SuspendRedraw();
  SetWindowTextW(hwnd_, Wide(Caption()));
}

CommandButton::CommandButton(NativeWindow& window, const Toolkit::ControlTemplate& row)
    : Toolkit::CommandButton(row.text),
      NativeControl(window, row, {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP}) {}

// BM_CLICK also reaches a disabled button, and one behind a message box.
void CommandButton::OnCommand(WORD code) {
  if (code == BN_CLICKED && Enabled() && window_.IsEnabled()) Toolkit::Raise(Click);
}

void CommandButton::ApplyEnabled() {
  EnableWindow(hwnd_, Enabled());
}

}  // namespace Win32
