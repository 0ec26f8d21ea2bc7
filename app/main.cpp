#include "main_window.h"
#include "program_version.h"
#include "today.h"
#include "win32_toolkit.h"

std::u16string DatePr2::SystemDate() {
  return Win32::LocalDate();
}

int main() {
  const auto window = Win32::NewWindow(Layout::ClientWidth, Layout::ClientHeight);
  frmMain form(*window, {PROGRAM_VERSION_MAJOR, PROGRAM_VERSION_MINOR}, PROGRAM_COPYRIGHT_UTF16);
  form.Form_Load();
  return window->Run();
}
