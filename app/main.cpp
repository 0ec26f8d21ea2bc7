#include "main_window.h"
#include "program_version.h"
#include "today.h"
#include "win32_toolkit.h"

std::u16string DatePr2::SystemDate() {
  return Win32::LocalDate();
}

int main() {
  const auto desktop = Win32::NewDesktop(ClientWidth, ClientHeight);
  frmMain form(*desktop, {PROGRAM_VERSION_MAJOR, PROGRAM_VERSION_MINOR}, PROGRAM_COPYRIGHT_UTF16);
  form.Form_Load();
  return desktop->Run();
}
