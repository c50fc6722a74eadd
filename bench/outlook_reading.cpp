// Measures how long reading the contacts takes against a bare loop of the same calls, both on the
// stand-in for Outlook. Usage: outlook_reading [CONTACTS] [ROUNDS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/win32/com/automation_com.h"
#include "platform/win32/com/com_values.h"
#include "sources/pages/modOutlook.h"
#include "tests/shared/error_service.h"
#include "tools/outlook/outlook_standin.h"

namespace quenda {
namespace {

double seconds_of(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The calls themselves, without anything that looks after them.
class BareReader {
 public:
  explicit BareReader(std::size_t contacts) : contacts_(static_cast<long>(contacts)) {
    CLSID id{};
    CLSIDFromProgID(L"Outlook.Application", &id);
    ComPtr<IDispatch> application;
    CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, application.out_void());
    Variant mapi("MAPI");
    Variant folder(10L);
    items_ =
        get(get(get(application, L"GetNamespace", mapi.get()), L"GetDefaultFolder", folder.get()),
            L"Items", nullptr);
  }

  /// How many characters came.
  std::size_t read() {
    const DISPID item_id = id_of(items_, L"Item");
    std::vector<DISPID> ids;
    std::size_t length = 0;
    for (long i = 1; i <= contacts_; ++i) {
      Variant position(i);
      Variant value;
      invoke(items_, item_id, position.get(), value);
      const ComPtr<IDispatch> item = value.object();
      length += type_name_length(item);
      for (std::size_t p = ids.size(); p < kContactProperties.size(); ++p) {
        const std::string_view name = kContactProperties[p];
        ids.push_back(id_of(item, std::wstring(name.begin(), name.end()).c_str()));
      }
      for (const DISPID id : ids) {
        Variant text;
        invoke(item, id, nullptr, text);
        length += SysStringLen(text.get()->bstrVal);
      }
    }
    return length;
  }

 private:
  static DISPID id_of(const ComPtr<IDispatch>& object, const wchar_t* name) {
    std::wstring units = name;
    LPOLESTR names = units.data();
    DISPID id = DISPID_UNKNOWN;
    object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }
  static void invoke(const ComPtr<IDispatch>& object, DISPID id, VARIANT* argument,
                     Variant& value) {
    DISPPARAMS arguments{argument, nullptr, argument == nullptr ? 0U : 1U, 0};
    object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                   &arguments, value.get(), nullptr, nullptr);
  }
  static ComPtr<IDispatch> get(const ComPtr<IDispatch>& object, const wchar_t* name,
                               VARIANT* argument) {
    Variant value;
    invoke(object, id_of(object, name), argument, value);
    return value.object();
  }
  static std::size_t type_name_length(const ComPtr<IDispatch>& object) {
    ComPtr<ITypeInfo> type;
    Bstr name;
    object->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.out());
    type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
    return SysStringLen(name.get());
  }

  ApartmentScope apartment_;
  long contacts_;
  ComPtr<IDispatch> items_;
};

void measure(std::size_t contacts, int rounds) {
  const OutlookStandIn standin("contacts=" + std::to_string(contacts) + "\n");
  BareReader bare(contacts);
  ErrorService service;
  ComAutomation automation([] {});
  modOutlook outlook(service.errors, automation);
  outlook.isOutlookInstalled(true);
  double best_bare = 1e9;
  double best_tool = 1e9;
  for (int round = 0; round < rounds; ++round) {
    best_bare = std::min(best_bare, seconds_of([&] { bare.read(); }));
    best_tool = std::min(best_tool, seconds_of([&] {
                           std::vector<OutlookContact> read;
                           if (!outlook.getContactsAll(
                                   read, [](std::size_t, std::size_t) {}, [] { return true; })) {
                             std::puts("The reading failed.");
                           }
                         }));
  }
  std::printf("%zu contacts: bare loop %.2f s, tool %.2f s, ratio %.2f (best of %d)\n", contacts,
              best_bare, best_tool, best_tool / best_bare, rounds);
}

}  // namespace
}  // namespace quenda

int main(int count, char** words) {
  if (!quenda::may_register_programs()) {
    std::puts("Only under Wine: the Outlook of this machine stays as it is.");
    return 1;
  }
  const int contacts = count > 1 ? std::atoi(words[1]) : 500;
  const int rounds = count > 2 ? std::atoi(words[2]) : 3;
  quenda::measure(static_cast<std::size_t>(contacts), rounds);
  return 0;
}
