#include "platform/win32/controls/spoken_name.h"

#include "platform/win32/com/com_support.h"
#include "platform/win32/text_win32.h"
// The identifiers of the accessibility service are defined here.
#include <initguid.h>
#include <oleacc.h>

namespace quenda {

struct SpokenNames::Service {
  ApartmentScope apartment;
  ComPtr<IAccPropServices> properties;
};

SpokenNames::SpokenNames() : service_(std::make_unique<Service>()) {
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   service_->properties.out_void());
}

SpokenNames::~SpokenNames() = default;

bool SpokenNames::set(HWND window, std::string_view name) {
  return service_->properties && SUCCEEDED(service_->properties->SetHwndPropStr(
                                     window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                     PROPID_ACC_NAME, wide(name).c_str()));
}

}  // namespace quenda
