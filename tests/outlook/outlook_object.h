#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/com_support.h"
#include "tests/outlook/outlook_script.h"
// objbase.h has to come first.
#include <ocidl.h>

namespace quenda {

#ifdef __GNUC__
// Interfaces of the component system have no virtual destructor; objects delete themselves.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// What happens to the objects of the stand-in.
struct ObjectCounts {
  long live = 0;  // objects that somebody holds
  long lookups = 0;
  long calls = 0;
  long rejected = 0;          // because the program plays busy
  ULONGLONG last_change = 0;  // GetTickCount64 of the last call or the last object that went
};

/// Type information by name, made at run time.
class TypeNames {
 public:
  TypeNames();
  ComPtr<ITypeInfo> interface_of(const std::wstring& class_name);
  ComPtr<ITypeInfo> class_of(const std::wstring& class_name);

 private:
  ComPtr<ITypeInfo> make(const std::wstring& name, TYPEKIND kind);
  ComPtr<ICreateTypeLib2> library_;
  std::vector<std::pair<std::wstring, ComPtr<ITypeInfo>>> made_;
};

/// What all objects of the stand-in share.
struct ObjectWorld {
  ObjectCounts counts;
  TypeNames names;
  TypeNews types = TypeNews::kInterface;
  ULONGLONG busy_until = 0;  // GetTickCount64
  std::size_t made = 0;      // objects so far that number their members for themselves

  /// S_OK, or while the program plays busy one of the two answers that mean so, in turn.
  HRESULT let_in();
};

/// An object with named members, late bound. Members have the same numbers in all objects of a
/// class that tells its type, and other numbers in every object of one that does not. Starts with
/// one reference, deletes itself with the last.
class ScriptedObject final : public IDispatch, public IProvideClassInfo {
 public:
  using Member = std::function<HRESULT(const DISPPARAMS& arguments, VARIANT& result)>;
  using Members = std::vector<std::pair<std::wstring, Member>>;

  ScriptedObject(ObjectWorld& world, std::wstring class_name, Members members);
  ScriptedObject(const ScriptedObject&) = delete;
  ScriptedObject& operator=(const ScriptedObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** result) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID locale, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrong) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** result) override;

 private:
  ~ScriptedObject();

  ObjectWorld& world_;
  std::wstring class_name_;
  Members members_;
  DISPID first_id_;
  ULONG references_ = 1;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

/// Members that give a text, a number, a date, or an object (whose reference goes to the caller;
/// null for one that there is not), which want an argument of that type, VT_EMPTY for none.
ScriptedObject::Member gives_text(std::wstring text);
ScriptedObject::Member gives_number(long number);
ScriptedObject::Member gives_date(double date);
ScriptedObject::Member gives_object(VARTYPE argument,
                                    std::function<IDispatch*(const VARIANT& given)> make);

}  // namespace quenda
