// Stands in for Outlook in tests: a program of its own that the system starts when its program
// identifier is asked for, and that ends when nobody holds an object of it any more. How it behaves
// stands in a file, see outlook_script.h.
// Usage: outlook_server SCRIPT CLASS-ID
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "sources/outlook_contacts.h"
#include "tools/outlook/outlook_object.h"
#include "tools/outlook/outlook_script.h"

#include <shellapi.h>

#ifdef __GNUC__
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

namespace quenda {
namespace {

constexpr DWORD kLinger = 1000;       // milliseconds between the last object and the end
constexpr DWORD kIdleLimit = 20'000;  // milliseconds without a call; somebody forgot an object
constexpr DWORD kHang = 8000;         // milliseconds; longer than anybody waits
constexpr long kContactsFolder = 10;
constexpr long kContactClass = 40;
constexpr long kListClass = 69;

class Outlook final : public IClassFactory {
 public:
  explicit Outlook(OutlookScript script) : script_(std::move(script)) {
    world_.types = script_.types;
  }
  Outlook(const Outlook&) = delete;
  Outlook& operator=(const Outlook&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override {
    const bool known =
        IsEqualIID(wanted, IID_IUnknown) != 0 || IsEqualIID(wanted, IID_IClassFactory) != 0;
    *result = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID wanted, void** result) override {
    *result = nullptr;
    world_.last_change = GetTickCount64();
    if (script_.refuses) return E_ACCESSDENIED;
    if (script_.leaves > 0) {
      return --script_.leaves % 2 == 0 ? CO_E_SERVER_STOPPING : RPC_E_CALL_REJECTED;
    }
    auto* const made = new ScriptedObject(
        world_, L"Application",
        {{L"Version", gives_text(script_.version)},
         {L"GetNamespace",
          gives_object(VT_BSTR, [this](const VARIANT&) { return name_space(); })}});
    const HRESULT outcome = made->QueryInterface(wanted, result);
    made->Release();
    return outcome;
  }

  /// Lets everybody in until nobody holds an object any more.
  void serve(REFCLSID class_id);
  void report() const;

 private:
  IDispatch* name_space() {
    const auto folder = [this](const VARIANT& number) -> IDispatch* {
      if (number.lVal != kContactsFolder) return nullptr;
      return new ScriptedObject(
          world_, L"MAPIFolder",
          {{L"Items", gives_object(VT_EMPTY, [this](const VARIANT&) { return items(); })}});
    };
    return new ScriptedObject(world_, L"NameSpace",
                              {{L"GetDefaultFolder", gives_object(VT_I4, folder)}});
  }
  IDispatch* items() {
    const auto item_at = [this](const VARIANT& number) -> IDispatch* {
      const auto position = static_cast<std::size_t>(number.lVal);
      if (position < 1 || position > script_.items.size()) return nullptr;
      if (position == script_.dies_at) TerminateProcess(GetCurrentProcess(), 1);
      if (position == script_.hangs_at) Sleep(kHang);
      if (position == script_.busy_from) world_.busy_until = GetTickCount64() + script_.busy_for;
      return item(script_.items[position - 1]);
    };
    const auto count = static_cast<long>(script_.items.size());
    return new ScriptedObject(
        world_, L"Items",
        {{L"Count", gives_number(count)}, {L"Item", gives_object(VT_I4, item_at)}});
  }
  IDispatch* item(const ScriptedItem& item);

  OutlookScript script_;
  ObjectWorld world_;
};

IDispatch* Outlook::item(const ScriptedItem& item) {
  ScriptedObject::Members members;
  if (script_.types == TypeNews::kNothing) {
    members.emplace_back(L"Class", gives_number(item.contact ? kContactClass : kListClass));
  }
  if (!item.contact) return new ScriptedObject(world_, L"DistListItem", std::move(members));
  for (const std::string_view property : kContactProperties) {
    const std::wstring name(property.begin(), property.end());
    if (name == script_.missing) continue;
    const auto given = item.properties.find(name);
    const std::wstring text = given == item.properties.end() ? L"" : given->second;
    const bool date = name == L"Birthday" || name == L"Anniversary";
    members.emplace_back(name,
                         date && !text.empty() ? gives_date(std::stod(text)) : gives_text(text));
  }
  return new ScriptedObject(world_, L"ContactItem", std::move(members));
}

void Outlook::serve(REFCLSID class_id) {
  DWORD cookie = 0;
  Sleep(script_.starts_after);
  world_.last_change = GetTickCount64();
  if (FAILED(CoRegisterClassObject(class_id, this, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                                   &cookie))) {
    return;
  }
  constexpr DWORD kLook = 50;  // milliseconds
  for (;;) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, kLook, QS_ALLINPUT);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
    const ULONGLONG quiet = GetTickCount64() - world_.last_change;
    const bool used = world_.calls > 0 || script_.refuses;
    if (quiet > kIdleLimit || (used && world_.live == 0 && quiet > kLinger)) break;
  }
  CoRevokeClassObject(cookie);
}

void Outlook::report() const {
  std::ofstream(script_.report, std::ios::app)
      << "live=" << world_.live << " lookups=" << world_.lookups << " calls=" << world_.calls
      << " rejected=" << world_.rejected << '\n';
}

std::string content_of(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace
}  // namespace quenda

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int /*show*/) {
  int count = 0;
  LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
  CLSID class_id{};
  if (words == nullptr || count < 3 || FAILED(CLSIDFromString(words[2], &class_id))) return 2;
  const quenda::ApartmentScope apartment;
  quenda::Outlook outlook(quenda::read_outlook_script(quenda::content_of(words[1])));
  LocalFree(words);
  outlook.serve(class_id);
  outlook.report();
  return 0;
}
