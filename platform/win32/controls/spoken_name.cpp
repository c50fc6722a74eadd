#include "platform/win32/controls/spoken_name.h"

#include "platform/win32/com/com_support.h"
#include "platform/win32/com/com_values.h"
#include "platform/win32/text_win32.h"
// The identifiers of the accessibility service are defined here.
#include <initguid.h>
#include <oleacc.h>

namespace quenda {

namespace {

// {C12BCD8E-2A8E-4950-8AE7-3625111D58EB}: whether and how urgently changes are said.
constexpr MSAAPROPID kLiveSetting = {
    0xC12BCD8E, 0x2A8E, 0x4950, {0x8A, 0xE7, 0x36, 0x25, 0x11, 0x1D, 0x58, 0xEB}};
constexpr long kPolite = 1;

}  // namespace

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

void SpokenNames::describe(HWND window, std::string_view description) {
  if (!service_->properties) return;
  service_->properties->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                       PROPID_ACC_DESCRIPTION, wide(description).c_str());
}

void SpokenNames::tell_changes_of(HWND window) {
  if (!service_->properties) return;
  service_->properties->SetHwndProp(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                    kLiveSetting, *Variant(kPolite).get());
}

}  // namespace quenda
