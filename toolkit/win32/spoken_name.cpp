#include "spoken_name.h"

#include <oleacc.h>

#include "native.h"

namespace Win32 {

namespace {

// PROPID_ACC_NAME
constexpr GUID NameProperty = {
    0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

// The service lives as long as the program.
IAccPropServices* Annotations() {
  IAccPropServices* service = nullptr;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   reinterpret_cast<void**>(&service));
  return service;
}

}  // namespace

void GiveSpokenName(HWND control, std::u16string_view name) {
  static IAccPropServices* const annotations = Annotations();
  const wchar_t* const text = Wide(name.data());
  const auto annotate = [text](HWND window) {
    return annotations && SUCCEEDED(annotations->SetHwndPropStr(window, OBJID_CLIENT, CHILDID_SELF,
                                                                NameProperty, text));
  };
  // The line of a list has the focus in place of the list.
  if (const HWND line = GetWindow(control, GW_CHILD)) annotate(line);
  if (annotate(control)) return;
  // Wine has no annotations yet. There, as on any Windows, a control without a name of its own is
  // called by the label ahead of it, which need not be visible.
  const HWND label = CreateWindowExW(0, L"STATIC", text, WS_CHILD, 0, 0, 0, 0, GetParent(control),
                                     nullptr, nullptr, nullptr);
  SetWindowPos(control, label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace Win32
