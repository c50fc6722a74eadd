// A walk over every page and dialog as screen readers and the Tab key take it: each control has a
// name, a role, a state, and its place.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "app/fMain.h"
#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/fImportReport.h"
#include "book/pages/fOVWInput.h"
#include "platform/win32/com/com_support.h"
#include "platform/win32/com/com_values.h"
#include "platform/win32/windows/events_win32.h"
#include "settings/app.h"
#include "tests/shared/fakes.h"
#include "text/text.h"
// The component system's declarations come first.
#include <oleacc.h>

namespace quenda {
namespace {

/// The window classes of the system say what they are; our own kinds have to.
bool has_role(HWND window, IAccessible& object) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  for (const wchar_t* known : {WC_BUTTONW, WC_EDITW, WC_LISTBOXW, WC_COMBOBOXW, WC_LISTVIEWW}) {
    if (lstrcmpiW(name, known) == 0) return true;
  }
  Variant role;
  object.get_accRole(*Variant(long{CHILDID_SELF}).get(), role.get());
  return role.number() == ROLE_SYSTEM_SEPARATOR;
}

bool takes_keys(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kPicture:
    case ControlKind::kStatusBar:
    case ControlKind::kTimer:
      return false;
    default:
      return true;
  }
}

/// The controls that can be seen and take keys, in the order of the Tab key.
void collect(const Form& form, const Control* parent, std::vector<const Control*>& all) {
  for (const Control* control : in_tab_order(form, parent)) {
    if (!control->visible()) continue;
    if (control->kind() == ControlKind::kFrame) collect(form, control, all);
    if (takes_keys(*control)) all.push_back(control);
  }
}

class ControlWalk : public testing::Test, public LoopClient {
 protected:
  ControlWalk() {
    machine_.files.put("C:\\Quenda\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine_.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine_.files.put("C:\\k.csv", "Name;Telefon;Mobil;Ort\r\nBerg;030123456;0171222333;Bonn\r\n");
    main_.Form_Load();
    events_.show(main_);
    loop_.add(*this);
  }
  ~ControlWalk() override {
    loop_.remove(*this);
    events_.close_all();
  }

  static HWND window(const Control& control) {
    return static_cast<NativeControl*>(control.peer())->window();
  }

  /// What is wrong with one control, in words.
  static std::string complaint(const Control& control) {
    const HWND of = window(control);
    if (of == nullptr || IsWindowVisible(of) == 0) return "is not to be seen";
    ComPtr<IAccessible> object;
    AccessibleObjectFromWindow(of, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               object.out_void());
    if (!object) return "is no object";
    Variant self(long{CHILDID_SELF});
    Bstr name;
    object->get_accName(*self.get(), name.out());
    if (name.text().empty()) return "has no name";
    if (!has_role(of, *object.get())) return "has no role";
    Variant state;
    object->get_accState(*self.get(), state.get());
    const bool off = (state.number() & STATE_SYSTEM_UNAVAILABLE) != 0;
    if (off == (IsWindowEnabled(of) != 0)) return "does not tell whether it can be used";
    return {};
  }

  /// A form as it stands: each control by itself, then the way of the Tab key.
  static void expect_whole(const Form& form, const std::string& where) {
    std::vector<const Control*> all;
    collect(form, nullptr, all);
    EXPECT_FALSE(all.empty()) << where;
    std::vector<HWND> expected;
    for (const Control* control : all) {
      const std::string wrong = complaint(*control);
      EXPECT_EQ(wrong, "") << where << ": " << control->name() << " " << control->index();
      const bool stop = (GetWindowLongPtrW(window(*control), GWL_STYLE) & WS_TABSTOP) != 0;
      const bool chosen_alone = control->kind() == ControlKind::kOptionButton;
      EXPECT_TRUE(stop || chosen_alone) << where << ": " << control->name();
      if (stop && IsWindowEnabled(window(*control)) != 0) expected.push_back(window(*control));
    }
    std::vector<HWND> walked;
    HWND at = expected.empty() ? nullptr : expected.front();
    for (std::size_t i = 0; i < expected.size(); ++i) {
      walked.push_back(at);
      at = GetNextDlgTabItem(window_of(form), at, FALSE);
    }
    EXPECT_EQ(walked, expected) << where;
    EXPECT_EQ(at, walked.empty() ? nullptr : walked.front()) << where << " has more stops";
  }

  void show(Form& dialog) {
    dialog_ = &dialog;
    events_.show_modal(dialog, main_);
  }
  bool translate(MSG& /*message*/) override { return false; }
  void show_changes() override {}
  void settle(bool idle) override {
    if (!idle || dialog_ == nullptr) return;
    Form& dialog = *std::exchange(dialog_, nullptr);
    expect_whole(dialog, dialog.name());
    dialog.unload();
  }
  void expect_page(const std::string& where) {
    loop_.pump();
    expect_whole(main_, where);
  }

  const ApartmentScope apartment_;
  FakeMachine machine_;
  MessageLoop loop_;
  Win32Events events_{loop_};
  App app_{{machine_.files, machine_.clock, events_, machine_.dialogs, machine_.system,
            machine_.host_link, machine_.automation}};
  fMain main_{app_};
  Form* dialog_ = nullptr;
};

TEST_F(ControlWalk, EveryPageHasNamesRolesStatesAndAnOrder) {
  expect_page("the source");
  machine_.dialogs.paths.emplace_back("C:\\k.csv");
  main_.cmdFile.take_user_click();
  expect_page("the source with a file");
  main_.cmdFor.take_user_click();
  main_.lstHeader(0).take_user_selection(0, true);
  main_.lstHeader(1).take_user_selection(1, true);
  main_.lstHeader(1).take_user_selection(2, true);
  main_.lstHeader(2).take_user_selection(3, true);
  expect_page("the columns");
  for (const char* page : {"the names", "the addresses", "the entries"}) {
    main_.cmdFor.take_user_click();
    expect_page(page);
  }
  main_.show_outlook_page();
  expect_page("Outlook");
}

TEST_F(ControlWalk, EveryDialogHasThem) {
  fImportItemEdit editor(app_);
  editor.SettVars(-1);
  show(editor);
  fImportMsg question(app_);
  question.fill("030", "Alt", "Neu");
  show(question);
  fOVWInput codes(app_);
  show(codes);
  const ReportRows none([](std::size_t) { return ReportRow{}; });
  fImportReport report(app_, none, true);
  show(report);
}

}  // namespace
}  // namespace quenda
