// Automation of a component that lives in this process, under a name that is registered for the
// test alone.
#include "platform/win32/automation_com.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/win32/com_values.h"
#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "support/fault.h"

#ifdef __GNUC__
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

namespace quenda {
namespace {

constexpr CLSID kClassId = {
    0x6f0d2b51, 0x4a7e, 0x4c1b, {0x9d, 0x27, 0x3e, 0x58, 0x1c, 0x90, 0xaa, 0x42}};
constexpr const wchar_t* kProgramId = L"QuendaTest.Application";
constexpr std::string_view kProgram = "QuendaTest.Application";

/// What the component counts and how it is made to misbehave.
struct Bench {
  long references = 0;
  int lookups = 0;
  int busy = 0;
  int busy_starts = 0;
  HRESULT failure = S_OK;
};

/// A component whose properties are texts, dates or other components of the kind.
class Component final : public IDispatch {
 public:
  explicit Component(Bench& bench) : bench_(bench) {}
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  std::map<std::wstring, std::function<void(VARIANT&)>> properties;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override {
    const bool known =
        IsEqualIID(wanted, IID_IUnknown) != 0 || IsEqualIID(wanted, IID_IDispatch) != 0;
    *result = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++bench_.references); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--bench_.references); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    ++bench_.lookups;
    DISPID id = 1;
    for (const auto& [name, value] : properties) {
      if (name == names[0]) {
        ids[0] = id;
        given_.insert(id);
        return S_OK;
      }
      ++id;
    }
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO*, UINT*) override {
    if (bench_.busy-- > 0) return RPC_E_SERVERCALL_RETRYLATER;
    if (FAILED(bench_.failure)) return bench_.failure;
    if (numbers_on_request && given_.count(id) == 0) return DISP_E_MEMBERNOTFOUND;
    last_argument = arguments->cArgs == 0 ? VARTYPE{VT_EMPTY} : arguments->rgvarg[0].vt;
    std::next(properties.begin(), id - 1)->second(*result);
    return S_OK;
  }

  VARTYPE last_argument = VT_EMPTY;
  bool numbers_on_request = false;  // members have a number only once somebody has asked for it
  void forget_numbers() { given_.clear(); }

 private:
  Bench& bench_;
  std::set<DISPID> given_;
};

class Factory final : public IClassFactory {
 public:
  Factory(Component& component, Bench& bench) : component_(component), bench_(bench) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** result) override {
    *result = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID wanted, void** result) override {
    if (bench_.busy_starts-- > 0) return RPC_E_CALL_REJECTED;
    return component_.QueryInterface(wanted, result);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Component& component_;
  Bench& bench_;
};

/// The program identifier in the registry, for as long as the test runs.
class Registration {
 public:
  Registration() {
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      const std::wstring key = std::wstring(L"Software\\Classes\\") + kProgramId;
      wchar_t id[40] = {};
      const int length = StringFromGUID2(kClassId, id, 40);
      RegSetKeyValueW(root, (key + L"\\CLSID").c_str(), nullptr, REG_SZ, id,
                      static_cast<DWORD>(length) * sizeof(wchar_t));
    }
  }
  ~Registration() {
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      RegDeleteTreeW(root, (std::wstring(L"Software\\Classes\\") + kProgramId).c_str());
    }
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
};

class ComAutomationTest : public testing::Test {
 protected:
  ComAutomationTest() {
    CoRegisterClassObject(kClassId, &factory_, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
    component_.properties = {
        {L"Birthday", [](VARIANT& value) { put_date(value, 25569.0); }},
        {L"Categories", [](VARIANT& value) { value.vt = VT_NULL; }},
        {L"Class", [](VARIANT& value) { put_number(value, 40); }},
        {L"FullName", [](VARIANT& value) { put_text(value, L"J\u00F6rg \u0141ukasz"); }},
        {L"Item",
         [this](VARIANT& value) {
           value.vt = VT_DISPATCH;
           value.pdispVal = &item_;
           item_.AddRef();
         }},
        {L"Meeting", [](VARIANT& value) { put_date(value, 45000.5); }},
    };
    item_.properties = component_.properties;
  }
  ~ComAutomationTest() override { CoRevokeClassObject(cookie_); }

  static void put_date(VARIANT& value, double date) {
    value.vt = VT_DATE;
    value.date = date;
  }
  static void put_number(VARIANT& value, long number) {
    value.vt = VT_I4;
    value.lVal = number;
  }
  static void put_text(VARIANT& value, const wchar_t* text) {
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(text);
  }

  ApartmentScope apartment_;
  Registration registration_;
  Bench bench_;
  Component component_{bench_};
  Component item_{bench_};
  Factory factory_{component_, bench_};
  DWORD cookie_ = 0;
  int pumped_ = 0;
  ComAutomation automation_{[this] { ++pumped_; }};
};

int fault_of(const std::function<void()>& action) {
  try {
    action();
    return 0;
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
}

TEST_F(ComAutomationTest, ValuesArriveAsTexts) {
  const auto object = automation_.create(kProgram);
  EXPECT_EQ(object->text("FullName"), "J\xF6rg Lukasz");
  EXPECT_EQ(object->text("Birthday"), "01.01.1970");
  EXPECT_EQ(object->text("Meeting"), "15.03.2023 12:00:00");
  EXPECT_EQ(object->text("Categories"), "");
  EXPECT_EQ(object->text("Class"), "40");
  EXPECT_EQ(object->number("Class"), 40);
}

TEST_F(ComAutomationTest, DatesAreShortGermanTexts) {
  EXPECT_EQ(german_date(949998.0), "01.01.4501") << "what the program gives for no date";
  EXPECT_EQ(german_date(-1.25), "29.12.1899 06:00:00");
  EXPECT_EQ(german_date(-657434.0), "01.01.0100");
  EXPECT_EQ(german_date(45000.9999999), "16.03.2023") << "nearest second";
  for (const double none : {2958466.0, -657435.0, std::nan("")}) {
    EXPECT_EQ(fault_of([&] { german_date(none); }), kFaultTypeMismatch) << none;
  }
}

TEST_F(ComAutomationTest, MembersAreLookedUpOncePerTypeOfObject) {
  const auto folder = automation_.create(kProgram);
  for (int i = 1; i <= 20; ++i) {
    const auto contact = folder->object("Item", i);
    EXPECT_EQ(contact->type_name(), "ContactItem");
    EXPECT_EQ(contact->text("Birthday"), "01.01.1970");
    EXPECT_EQ(contact->text("FullName"), "J\xF6rg Lukasz");
  }
  // "Item" once, "Birthday" and "FullName" once; "Class" of each, since it tells the type.
  EXPECT_EQ(bench_.lookups, 3 + 20);
}

TEST_F(ComAutomationTest, AnObjectThatNumbersItsMembersForItselfIsAskedItself) {
  item_.numbers_on_request = true;
  const auto folder = automation_.create(kProgram);
  for (int i = 1; i <= 2; ++i) {
    const auto contact = folder->object("Item", i);
    EXPECT_EQ(contact->type_name(), "ContactItem");
    EXPECT_EQ(contact->text("FullName"), "J\xF6rg Lukasz");
    item_.forget_numbers();
  }
  EXPECT_EQ(fault_of([&] { folder->object("Item", 3)->text("Nickname"); }), kFaultNoSuchMember);
}

TEST_F(ComAutomationTest, ArgumentsGoAsNumberOrText) {
  const auto folder = automation_.create(kProgram);
  static_cast<void>(folder->object("Item", 7));
  EXPECT_EQ(component_.last_argument, VT_I4);
  static_cast<void>(folder->object("Item", std::string_view("MAPI")));
  EXPECT_EQ(component_.last_argument, VT_BSTR);
}

TEST_F(ComAutomationTest, ABusyProgramIsAskedAgainWhileTheWindowLives) {
  bench_.busy_starts = 2;
  const auto object = automation_.create(kProgram);
  EXPECT_EQ(pumped_, 2);
  bench_.busy = 4;
  EXPECT_EQ(object->text("Birthday"), "01.01.1970");
  EXPECT_EQ(pumped_, 6);
}

TEST_F(ComAutomationTest, TroubleBecomesTheUsualFaultsAndNothingStaysBehind) {
  {
    const auto object = automation_.create(kProgram);
    EXPECT_EQ(fault_of([&] { object->text("Nickname"); }), kFaultNoSuchMember);
    EXPECT_EQ(fault_of([&] { object->object("Class"); }), kFaultAutomation);
    bench_.failure = HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE);
    EXPECT_EQ(fault_of([&] { object->text("FullName"); }), kFaultAutomation);
    EXPECT_GT(bench_.references, 0);
  }
  EXPECT_EQ(bench_.references, 0);
  EXPECT_EQ(fault_of([&] { automation_.create("QuendaTest.Nobody"); }), kFaultNoComponent);
}

}  // namespace
}  // namespace quenda
