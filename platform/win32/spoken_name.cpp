#include "platform/win32/spoken_name.h"

#include <initguid.h>
// The identifiers of the accessibility service are defined here.
#include <oleacc.h>

#include "platform/win32/com_support.h"
#include "platform/win32/text_win32.h"

namespace quenda {

void set_spoken_name(HWND window, std::string_view name) {
  if (name.empty()) return;
  const ApartmentScope apartment;
  ComPtr<IAccPropServices> service;
  if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IAccPropServices, service.out_void()))) {
    return;
  }
  service->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                          wide(name).c_str());
}

}  // namespace quenda
