// The wizard with one call to a dialog, to the phone book or to Outlook that fails, for every call:
// nothing gets out but the end of the program, and the book is the old one or the new one.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/shared/fake_outlook.h"
#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"

namespace quenda {
namespace {

/// Counts the calls of all services; one of them fails.
struct Countdown {
  int left = 0;
  int fault = 0;
  bool failed = false;
  void call() {
    if (left == 0 || --left > 0) return;
    failed = true;
    raise_fault(fault);
  }
};

class FaultyDialogs final : public Dialogs {
 public:
  FaultyDialogs(Dialogs& dialogs, Countdown& calls) : dialogs_(dialogs), calls_(calls) {}
  MessageAnswer message_box(std::string_view text, MessageStyle style,
                            std::string_view title) override {
    calls_.call();
    return dialogs_.message_box(text, style, title);
  }
  ChosenFile open_file(const std::vector<FileFilter>& filters, const DialogHook& hook) override {
    calls_.call();
    return dialogs_.open_file(filters, hook);
  }
  ChosenFile save_file(const std::vector<FileFilter>& filters, std::string_view name) override {
    calls_.call();
    return dialogs_.save_file(filters, name);
  }
  bool copy_text(std::string_view text) override {
    calls_.call();
    return dialogs_.copy_text(text);
  }

 private:
  Dialogs& dialogs_;
  Countdown& calls_;
};

class FaultyLink final : public HostLink {
 public:
  FaultyLink(HostLink& link, Countdown& calls) : link_(link), calls_(calls) {}
  void offer(std::string_view topic, std::string_view item, HostLinkEvents events) override {
    calls_.call();
    link_.offer(topic, item, std::move(events));
  }
  void set_text(std::string_view text) override {
    calls_.call();
    link_.set_text(text);
  }
  void shut_down() noexcept override { link_.shut_down(); }

 private:
  HostLink& link_;
  Countdown& calls_;
};

class FaultyObject final : public AutomationObject {
 public:
  FaultyObject(std::unique_ptr<AutomationObject> object, Countdown& calls)
      : object_(std::move(object)), calls_(calls) {}
  std::string text(std::string_view name) override {
    calls_.call();
    return object_->text(name);
  }
  long number(std::string_view name) override {
    calls_.call();
    return object_->number(name);
  }
  std::unique_ptr<AutomationObject> object(std::string_view name) override {
    calls_.call();
    return wrapped(object_->object(name));
  }
  std::unique_ptr<AutomationObject> object(std::string_view name, long argument) override {
    calls_.call();
    return wrapped(object_->object(name, argument));
  }
  std::unique_ptr<AutomationObject> object(std::string_view name,
                                           std::string_view argument) override {
    calls_.call();
    return wrapped(object_->object(name, argument));
  }
  std::string type_name() override {
    calls_.call();
    return object_->type_name();
  }

 private:
  [[nodiscard]] std::unique_ptr<AutomationObject> wrapped(
      std::unique_ptr<AutomationObject> object) const {
    return std::make_unique<FaultyObject>(std::move(object), calls_);
  }
  std::unique_ptr<AutomationObject> object_;
  Countdown& calls_;
};

class FaultyAutomation final : public Automation {
 public:
  FaultyAutomation(Automation& automation, Countdown& calls)
      : automation_(automation), calls_(calls) {}
  std::unique_ptr<AutomationObject> create(std::string_view program_id) override {
    calls_.call();
    return std::make_unique<FaultyObject>(automation_.create(program_id), calls_);
  }

 private:
  Automation& automation_;
  Countdown& calls_;
};

class FaultyServices : public WizardTest {
 protected:
  /// Runs an import to its end, or as far as the buttons allow.
  void import(bool outlook) {
    Machine faulty{machine.files,  machine.clock, machine.events, dialogs_,
                   machine.system, link_,         automation_};
    form.reset();
    app = std::make_unique<App>(faulty);
    form = std::make_unique<fMain>(*app);
    try {
      form->Form_Load();
      if (outlook) {
        form->tmOLcheck.take_tick();
        if (form->cmdOutlook.enabled()) form->cmdOutlook.take_user_click();
      } else {
        take_file("Name;;Festnetz\r\nFalk;x;030 5550123\r\n");
      }
      while (form->cmdFor.enabled()) {
        forward();
        if (form->wizard.CurrentPage != Page::kColumns) continue;
        select(0, {"Name"});
        select(1, {"Festnetz"});
      }
      form->cmdCancel.take_user_click();
    } catch (const EndProgram&) {
      return;
    }
  }

  void try_every_call(bool outlook, const std::string& after) {
    const std::string before = "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n";
    for (int n = 1;; ++n) {
      SCOPED_TRACE(n);
      calls_ = {n, n % 2 == 0 ? kFaultAutomation : kFaultInternal};
      machine.files.put(kBookPath, before);
      machine.host_link.texts.clear();
      import(outlook);
      const bool told = machine.host_link.texts.empty() ||
                        machine.host_link.texts.back() == (book() == before ? "cancel" : "data");
      EXPECT_TRUE(told || calls_.failed);
      if (!calls_.failed) {
        EXPECT_EQ(book(), before + after);
        EXPECT_GT(n, 4);
        break;
      }
      EXPECT_TRUE(book() == before || book() == before + after) << book();
    }
  }

  Countdown calls_;
  FaultyDialogs dialogs_{machine.dialogs, calls_};
  FaultyLink link_{machine.host_link, calls_};
  FaultyAutomation automation_{machine.automation, calls_};
};

TEST_F(FaultyServices, AFileIsImportedOrNot) {
  try_every_call(false, "Falk;0305550123;0;0;0;0;;;[vcd()vcd]\r\n");
}

TEST_F(FaultyServices, OutlookIsImportedOrNot) {
  install_outlook(machine.automation, "16.0",
                  {outlook_contact({{"LastName", "Falk"}, {"HomeTelephoneNumber", "030 5550123"}}),
                   outlook_distribution_list()});
  try_every_call(true, "Falk privat;0305550123;0;0;0;0;,;;[vcd()vcd]\r\n");
}

}  // namespace
}  // namespace quenda
