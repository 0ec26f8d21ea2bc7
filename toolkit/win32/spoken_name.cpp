#include "spoken_name.h"

#include <commctrl.h>

#include <initguid.h>  // defines what no library of MinGW-w64 does: PROPID_ACC_NAME
#include <oleacc.h>

namespace Win32 {

namespace {

// What the system tells of a control, but for the name.
class NamedObject final : public IAccessible {
 public:
  NamedObject(IAccessible* system, const wchar_t* name) : system_(*system), name_(name) {}
  NamedObject(const NamedObject&) = delete;
  NamedObject& operator=(const NamedObject&) = delete;

  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return system_.get_accName(child, name);
    *name = SysAllocString(name_);
    return *name ? S_OK : E_OUTOFMEMORY;
  }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    const bool is_ours =
        id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
    *object = is_ours ? this : nullptr;
    if (!is_ours) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++users_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG users = --users_;
    if (users == 0) delete this;
    return users;
  }

  // The rest is the system's.
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return system_.GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) override {
    return system_.GetTypeInfo(number, locale, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override {
    return system_.GetIDsOfNames(id, names, count, locale, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* arguments,
                      VARIANT* result, EXCEPINFO* exception, UINT* bad_argument) override {
    return system_.Invoke(member, id, locale, flags, arguments, result, exception, bad_argument);
  }
  STDMETHODIMP get_accParent(IDispatch** to) override { return system_.get_accParent(to); }
  STDMETHODIMP get_accChildCount(LONG* to) override { return system_.get_accChildCount(to); }
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** to) override {
    return system_.get_accChild(child, to);
  }
  STDMETHODIMP get_accValue(VARIANT child, BSTR* to) override {
    return system_.get_accValue(child, to);
  }
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* to) override {
    return system_.get_accDescription(child, to);
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* to) override {
    return system_.get_accRole(child, to);
  }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* to) override {
    return system_.get_accState(child, to);
  }
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* to) override {
    return system_.get_accHelp(child, to);
  }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* to) override {
    return system_.get_accHelpTopic(file, child, to);
  }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* to) override {
    return system_.get_accKeyboardShortcut(child, to);
  }
  STDMETHODIMP get_accFocus(VARIANT* to) override { return system_.get_accFocus(to); }
  STDMETHODIMP get_accSelection(VARIANT* to) override { return system_.get_accSelection(to); }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* to) override {
    return system_.get_accDefaultAction(child, to);
  }
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override {
    return system_.accSelect(flags, child);
  }
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                           VARIANT child) override {
    return system_.accLocation(left, top, width, height, child);
  }
  STDMETHODIMP accNavigate(LONG where, VARIANT start, VARIANT* to) override {
    return system_.accNavigate(where, start, to);
  }
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* to) override {
    return system_.accHitTest(left, top, to);
  }
  STDMETHODIMP accDoDefaultAction(VARIANT child) override {
    return system_.accDoDefaultAction(child);
  }
  STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
    return system_.put_accName(child, name);
  }
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
    return system_.put_accValue(child, value);
  }

 private:
  ~NamedObject() { system_.Release(); }

  IAccessible& system_;
  const wchar_t* name_;
  ULONG users_ = 1;
};

LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                           DWORD_PTR name) {
  IAccessible* system = nullptr;
  if (message == WM_GETOBJECT && static_cast<LONG>(lparam) == OBJID_CLIENT &&
      SUCCEEDED(CreateStdAccessibleObject(control, OBJID_CLIENT, __uuidof(IAccessible),
                                          reinterpret_cast<void**>(&system)))) {
    auto* const object = new NamedObject(system, reinterpret_cast<const wchar_t*>(name));
    const LRESULT answer = LresultFromObject(__uuidof(IAccessible), wparam, object);
    object->Release();
    return answer;
  }
  return DefSubclassProc(control, message, wparam, lparam);
}

// A client of UI Automation may take what the system itself knows of a control, with the name from
// an annotation. Wine has no annotations. The service lives as long as the program.
IAccPropServices* Annotations() {
  IAccPropServices* service = nullptr;
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   reinterpret_cast<void**>(&service));
  return service;
}

}  // namespace

void GiveSpokenName(HWND control, const wchar_t* name) {
  static const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (FAILED(com)) return;
  static IAccPropServices* const annotations = Annotations();
  constexpr UINT_PTR SubclassId = 1;
  for (HWND window = control; window; window = GetWindow(window, GW_CHILD)) {
    SetWindowSubclass(window, Procedure, SubclassId, reinterpret_cast<DWORD_PTR>(name));
    if (!annotations) continue;
    annotations->SetHwndPropStr(window, OBJID_CLIENT, CHILDID_SELF, PROPID_ACC_NAME, name);
  }
}

}  // namespace Win32
