#include "clipboard.h"
#include "controls.h"
#include "win32_toolkit.h"

namespace Win32 {

namespace {

class DesktopOnWin32 : public Desktop {
 public:
  DesktopOnWin32(int client_width, int client_height) : window_(client_width, client_height) {}

  Toolkit::Window& MainWindow() override { return window_; }
  Toolkit::Timer& MainTimer() override { return window_; }
  int Run() override { return window_.RunLoop(); }
  void EndProgram() override { window_.End(); }

  std::unique_ptr<Toolkit::Control> NewControl(const Toolkit::StoredControl& row) override {
    switch (row.kind) {
      case Toolkit::Kind::Frame:
        return Placed<Frame>(row);
      case Toolkit::Kind::Label:
        return Placed<Label>(row);
      case Toolkit::Kind::TextBox:
        return Placed<TextBox>(row);
      case Toolkit::Kind::List:
        return Placed<List>(row);
      case Toolkit::Kind::OptionButton:
        return Placed<OptionButton>(row, options_);
      case Toolkit::Kind::CommandButton:
        return Placed<CommandButton>(row);
    }
    return nullptr;
  }

  void ShowMessage(std::u16string_view text, std::u16string_view title,
                   Toolkit::Icon icon) override {
    MessageBoxW(window_.Hwnd(), Wide(std::u16string(text)), Wide(std::u16string(title)),
                MB_OK | static_cast<UINT>(icon));
  }

  void SetClipboardText(std::u16string_view text) override {
    ReplaceClipboard(window_.Hwnd(), text);
  }

 private:
  template <class T, class... More>
  std::unique_ptr<T> Placed(const Toolkit::StoredControl& row, More&... more) {
    auto control = std::make_unique<T>(window_, row, more...);
    static_cast<Native&>(*control).Place();
    return control;
  }

  NativeWindow window_;
  Toolkit::OptionGroup options_;
};

}  // namespace

std::unique_ptr<Desktop> NewDesktop(int client_width, int client_height) {
  return std::make_unique<DesktopOnWin32>(client_width, client_height);
}

}  // namespace Win32
