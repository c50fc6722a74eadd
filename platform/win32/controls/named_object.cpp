#include "platform/win32/controls/named_object.h"

#include <atomic>
#include <string>
#include <utility>

#include "platform/win32/com/com_support.h"
#include "platform/win32/text_win32.h"
// The component system's declarations come first.
#include <oleacc.h>

namespace quenda {
namespace {

#ifdef __GNUC__
// Interfaces have no destructor to call; objects of this class destroy themselves.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

bool is_whole_window(const VARIANT& child) {
  return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

/// The system's object of a window in all but its name, and where that is wanted its role,
/// value and description.
class NamedObject final : public IAccessible {
 public:
  NamedObject(ComPtr<IAccessible> system, Spoken spoken)
      : system_(std::move(system)), spoken_(std::move(spoken)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IDispatch && id != IID_IAccessible) return E_NOINTERFACE;
    *object = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    if (!is_whole_window(child)) return system_->get_accName(child, name);
    return give(spoken_.name, name);
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    return system_->GetTypeInfoCount(count);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return system_->GetTypeInfo(index, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override {
    return system_->GetIDsOfNames(id, names, count, locale, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* fault,
                                   UINT* wrong) override {
    return system_->Invoke(member, id, locale, flags, arguments, result, fault, wrong);
  }
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    return system_->get_accParent(parent);
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    return system_->get_accChildCount(count);
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
    return system_->get_accChild(child, object);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
    if (!is_whole_window(child) || spoken_.value.empty())
      return system_->get_accValue(child, value);
    return give(spoken_.value, value);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
    const bool numbered = child.vt == VT_I4 && child.lVal >= 0;
    const auto asked = numbered ? static_cast<std::size_t>(child.lVal) : 0;
    const ListPlace& place = spoken_.place;
    const std::string row =
        row_in_words(spoken_.row_pattern, asked == CHILDID_SELF ? place.row : asked, place.rows);
    if (numbered && !row.empty()) return give(row, text);
    return system_->get_accDescription(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    if (!is_whole_window(child) || spoken_.role == 0) return system_->get_accRole(child, role);
    role->vt = VT_I4;
    role->lVal = spoken_.role;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    return system_->get_accState(child, state);
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
    return system_->get_accHelp(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return system_->get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
    return system_->get_accKeyboardShortcut(child, keys);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
    return system_->get_accFocus(child);
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    return system_->get_accSelection(children);
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
    return system_->get_accDefaultAction(child, action);
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
    return system_->accSelect(flags, child);
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override {
    return system_->accLocation(left, top, width, height, child);
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return system_->accNavigate(direction, start, end);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
    return system_->accHitTest(left, top, child);
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    return system_->accDoDefaultAction(child);
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
    return system_->put_accName(child, name);
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    return system_->put_accValue(child, value);
  }

 private:
  ~NamedObject() = default;

  static HRESULT give(const std::string& text, BSTR* result) {
    const std::wstring given = wide(text);
    *result = SysAllocStringLen(given.data(), static_cast<UINT>(given.size()));
    return *result == nullptr ? E_OUTOFMEMORY : S_OK;
  }

  ComPtr<IAccessible> system_;
  Spoken spoken_;
  std::atomic<ULONG> references_ = 1;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

}  // namespace

LRESULT answer_with(HWND window, WPARAM wparam, const Spoken& spoken) {
  ComPtr<IAccessible> system;
  if (FAILED(CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible, system.out_void()))) {
    return 0;
  }
  auto* const named = new NamedObject(std::move(system), spoken);
  const LRESULT answer = LresultFromObject(IID_IAccessible, wparam, named);
  named->Release();
  return answer;
}

}  // namespace quenda
