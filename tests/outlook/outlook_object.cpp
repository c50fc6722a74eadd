#include "tests/outlook/outlook_object.h"

namespace quenda {
namespace {

HRESULT hand_out(const ComPtr<ITypeInfo>& type, ITypeInfo** result) {
  *result = type.get();
  if (!type) return TYPE_E_ELEMENTNOTFOUND;
  type->AddRef();
  return S_OK;
}

}  // namespace

TypeNames::TypeNames() { CreateTypeLib2(SYS_WIN64, L"stand-in.tlb", library_.out()); }

ComPtr<ITypeInfo> TypeNames::interface_of(const std::wstring& class_name) {
  return make(L"_" + class_name, TKIND_DISPATCH);
}

ComPtr<ITypeInfo> TypeNames::class_of(const std::wstring& class_name) {
  return make(class_name, TKIND_COCLASS);
}

ComPtr<ITypeInfo> TypeNames::make(const std::wstring& name, TYPEKIND kind) {
  for (const auto& [known, type] : made_) {
    if (known == name) return type;
  }
  ComPtr<ICreateTypeInfo> maker;
  ComPtr<ITypeInfo> type;
  std::wstring units = name;
  if (library_ && SUCCEEDED(library_->CreateTypeInfo(units.data(), kind, maker.out()))) {
    maker->LayOut();
    maker->QueryInterface(IID_ITypeInfo, type.out_void());
  }
  made_.emplace_back(name, type);
  return type;
}

HRESULT ObjectWorld::let_in() {
  counts.last_change = GetTickCount64();
  if (counts.last_change >= busy_until) return S_OK;
  return ++counts.rejected % 2 == 0 ? RPC_E_CALL_REJECTED : RPC_E_SERVERCALL_RETRYLATER;
}

ScriptedObject::ScriptedObject(ObjectWorld& world, std::wstring class_name, Members members)
    : world_(world), class_name_(std::move(class_name)), members_(std::move(members)) {
  const bool alike = world_.types != TypeNews::kNothing;
  first_id_ = static_cast<DISPID>(alike ? 1000 * (class_name_.size() + 1) : 100 * ++world_.made);
  ++world_.counts.live;
}

ScriptedObject::~ScriptedObject() {
  --world_.counts.live;
  world_.counts.last_change = GetTickCount64();
}

HRESULT ScriptedObject::QueryInterface(REFIID wanted, void** result) {
  *result = nullptr;
  if (IsEqualIID(wanted, IID_IUnknown) != 0 || IsEqualIID(wanted, IID_IDispatch) != 0) {
    *result = static_cast<IDispatch*>(this);
  } else if (IsEqualIID(wanted, IID_IProvideClassInfo) != 0 && world_.types == TypeNews::kClass) {
    *result = static_cast<IProvideClassInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ScriptedObject::AddRef() { return ++references_; }

ULONG ScriptedObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ScriptedObject::GetTypeInfoCount(UINT* count) {
  *count = world_.types == TypeNews::kInterface ? 1 : 0;
  return S_OK;
}

HRESULT ScriptedObject::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** result) {
  if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
  if (world_.types != TypeNews::kInterface) return E_NOTIMPL;
  return hand_out(world_.names.interface_of(class_name_), result);
}

HRESULT ScriptedObject::GetClassInfo(ITypeInfo** result) {
  if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
  return hand_out(world_.names.class_of(class_name_), result);
}

HRESULT ScriptedObject::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count,
                                      LCID /*locale*/, DISPID* ids) {
  if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
  ++world_.counts.lookups;
  for (std::size_t i = 0; count == 1 && i < members_.size(); ++i) {
    if (members_[i].first == names[0]) {
      ids[0] = first_id_ + static_cast<DISPID>(i);
      return S_OK;
    }
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT ScriptedObject::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/,
                               DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* /*exception*/,
                               UINT* /*wrong*/) {
  if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
  ++world_.counts.calls;
  const auto position = static_cast<std::size_t>(id - first_id_);
  if (position >= members_.size()) return DISP_E_MEMBERNOTFOUND;
  VARIANT unwanted{};
  return members_[position].second(*arguments, result == nullptr ? unwanted : *result);
}

ScriptedObject::Member gives_text(std::wstring text) {
  return [text = std::move(text)](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_BSTR;
    result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return S_OK;
  };
}

ScriptedObject::Member gives_number(long number) {
  return [number](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_I4;
    result.lVal = number;
    return S_OK;
  };
}

ScriptedObject::Member gives_date(double date) {
  return [date](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_DATE;
    result.date = date;
    return S_OK;
  };
}

ScriptedObject::Member gives_object(VARTYPE argument,
                                    std::function<IDispatch*(const VARIANT& given)> make) {
  return [argument, make = std::move(make)](const DISPPARAMS& given, VARIANT& result) {
    const VARIANT none{};
    const VARIANT& first = given.cArgs == 0 ? none : given.rgvarg[0];
    if (first.vt != argument) return DISP_E_TYPEMISMATCH;
    result.vt = VT_DISPATCH;
    result.pdispVal = make(first);
    return result.pdispVal == nullptr ? DISP_E_BADINDEX : S_OK;
  };
}

}  // namespace quenda
