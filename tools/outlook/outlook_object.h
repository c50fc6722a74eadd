#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/com/com_support.h"
#include "tools/outlook/outlook_script.h"
// objbase.h has to come first.
#include <ocidl.h>

namespace quenda {

#ifdef __GNUC__
// Interfaces of the component system have no virtual destructor; objects delete themselves.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Type information by name, made at run time.
class TypeNames {
 public:
  TypeNames() { CreateTypeLib2(SYS_WIN64, L"stand-in.tlb", library_.out()); }

  /// Hands out the information of that name, made when it is first asked for.
  HRESULT give(const std::wstring& name, TYPEKIND kind, ITypeInfo** result) {
    const auto [made, is_new] = made_.try_emplace(name);
    ComPtr<ITypeInfo>& type = made->second;
    ComPtr<ICreateTypeInfo> maker;
    std::wstring units = name;
    if (is_new && library_ &&
        SUCCEEDED(library_->CreateTypeInfo(units.data(), kind, maker.out()))) {
      maker->LayOut();
      maker->QueryInterface(IID_ITypeInfo, type.out_void());
    }
    *result = type.get();
    if (!type) return TYPE_E_ELEMENTNOTFOUND;
    type->AddRef();
    return S_OK;
  }

 private:
  ComPtr<ICreateTypeLib2> library_;
  std::map<std::wstring, ComPtr<ITypeInfo>> made_;
};

/// What all objects of the stand-in share, and what happens to them.
struct ObjectWorld {
  TypeNames names;
  TypeNews types = TypeNews::kInterface;
  ULONGLONG busy_until = 0;  // GetTickCount64

  long made = 0;
  long live = 0;  // objects that somebody holds
  long lookups = 0;
  long calls = 0;
  long rejected = 0;          // because the program plays busy
  ULONGLONG last_change = 0;  // GetTickCount64 of the last call or the last object that went

  /// S_OK, or while the program plays busy one of the two answers that mean so, in turn.
  HRESULT let_in() {
    last_change = GetTickCount64();
    if (last_change >= busy_until) return S_OK;
    return ++rejected % 2 == 0 ? RPC_E_CALL_REJECTED : RPC_E_SERVERCALL_RETRYLATER;
  }
};

/// An object with named members, late bound. Members have the same numbers in all objects of a
/// class that tells its type, and other numbers in every object of one that does not. Starts with
/// one reference, deletes itself with the last.
class ScriptedObject final : public IDispatch, public IProvideClassInfo {
 public:
  using Member = std::function<HRESULT(const DISPPARAMS& arguments, VARIANT& result)>;
  using Members = std::vector<std::pair<std::wstring, Member>>;

  ScriptedObject(ObjectWorld& world, std::wstring class_name, Members members)
      : world_(world), class_name_(std::move(class_name)), members_(std::move(members)) {
    ++world_.live;
    ++world_.made;
    const bool alike = world_.types != TypeNews::kNothing;
    first_id_ = alike ? 1000 * static_cast<DISPID>(class_name_.size()) : 100 * world_.made;
  }
  ScriptedObject(const ScriptedObject&) = delete;
  ScriptedObject& operator=(const ScriptedObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override {
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
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = world_.types == TypeNews::kInterface ? 1 : 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** result) override {
    if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
    if (world_.types != TypeNews::kInterface) return E_NOTIMPL;
    return world_.names.give(L"_" + class_name_, TKIND_DISPATCH, result);
  }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** result) override {
    if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
    return world_.names.give(class_name_, TKIND_COCLASS, result);
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
    ++world_.lookups;
    const auto found = std::find_if(members_.begin(), members_.end(),
                                    [&](const auto& member) { return member.first == names[0]; });
    if (found == members_.end()) return DISP_E_UNKNOWNNAME;
    ids[0] = first_id_ + static_cast<DISPID>(found - members_.begin());
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO*, UINT*) override {
    if (const HRESULT entry = world_.let_in(); FAILED(entry)) return entry;
    ++world_.calls;
    const auto position = static_cast<std::size_t>(id - first_id_);
    if (position >= members_.size()) return DISP_E_MEMBERNOTFOUND;
    VARIANT unwanted{};
    return members_[position].second(*arguments, result == nullptr ? unwanted : *result);
  }

 private:
  ~ScriptedObject() {
    --world_.live;
    world_.last_change = GetTickCount64();
  }

  ObjectWorld& world_;
  std::wstring class_name_;
  Members members_;
  DISPID first_id_ = 0;
  ULONG references_ = 1;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

/// Members that give a text, a number, a date, or an object (whose reference goes to the caller;
/// null for one that there is not), which want an argument of that type, VT_EMPTY for none.
inline ScriptedObject::Member gives_text(const std::wstring& text) {
  return [text](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_BSTR;
    result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return S_OK;
  };
}

inline ScriptedObject::Member gives_number(long number) {
  return [number](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_I4;
    result.lVal = number;
    return S_OK;
  };
}

inline ScriptedObject::Member gives_date(double date) {
  return [date](const DISPPARAMS&, VARIANT& result) {
    result.vt = VT_DATE;
    result.date = date;
    return S_OK;
  };
}

inline ScriptedObject::Member gives_object(VARTYPE argument,
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
