#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "book/fate.h"
#include "book/pages/fImportItemEdit.h"
#include "tests/shared/fake_outlook.h"
#include "tests/shared/wizard_fixture.h"
#include "text/text.h"

// What the wizard can tell of every number of its source after the user has changed the list.
namespace quenda {
namespace {

class Account : public WizardTest {
 protected:
  /// "number fate" of each, in the order of the source.
  Texts fates() {
    EXPECT_TRUE(form->look_ahead());
    Texts told;
    form->account([&](const ReportRow& row) {
      told.push_back(concat(row.number, " ", words_of(row.fate).key));
    });
    return told;
  }
  void remove(int row) {
    form->lstImpFinal.select(row);
    form->cmdDel.take_user_click();
  }
  void renumber(int row, std::string_view number) {
    machine.events.on_modal = [number](Form& shown) {
      auto& dialog = dynamic_cast<fImportItemEdit&>(shown);
      dialog.txtNumber.take_user_text(number);
      dialog.cmdEdit(0).take_user_click();
    };
    form->lstImpFinal.select(row);
    form->cmdEditItems.take_user_click();
  }
};

TEST_F(Account, OfTheNumbersOfOneCellTheOnesThatTheUserRemovedAreTold) {
  start();
  take_file(
      "Name;Telefon\nEva;030 5550301 / 030 5550302 / 030 5550303\nUwe;030 5550304 / 030 5550305\n");
  form->chkConvert.take_user_click();
  forward();
  select(0, {"Name"});
  select(1, {"Telefon"});
  for (int i = 0; i < 3; ++i) forward();
  ASSERT_EQ(form->lstImpFinal.count(), 5U);
  remove(0);
  remove(1);
  renumber(0, "0305550399");
  remove(1);
  EXPECT_EQ(fates(), (Texts{"0305550301 removed", "0305550399 added", "0305550303 removed",
                            "0305550304 removed", "0305550305 added"}));
  // A write that comes too late leaves the list as it is.
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    machine.files.put(kBookPath, "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n");
  };
  forward();
  ASSERT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_EQ(fates().front(), "0305550301 removed");
}

/// Random contacts of which it is known what the rules have to make of each number.
class RandomContacts {
 public:
  explicit RandomContacts(unsigned seed) : random_(seed) {
    const int records = below(40);
    for (int i = 0; i < records; ++i) add_record();
  }
  [[nodiscard]] const std::string& file() const { return file_; }
  /// Numbers, and how many of them come to nothing before the merge.
  std::size_t numbers = 0;
  std::map<Fate, std::size_t> before;

  int below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }

 private:
  void add_record() {
    const std::string name = below(8) == 0 ? "Al" : "Name" + std::to_string(below(4));
    file_ += name;
    bool any = false;
    for (int column = 0; column < 2; ++column) {
      const int kind = below(6);
      const std::string local = std::to_string(100 + below(8));
      const std::string cell = kind == 0   ? ""
                               : kind == 1 ? "ext. " + local
                               : kind == 2 ? "030 " + local
                                           : "0171 5550" + local;
      file_ += ";" + cell;
      if (cell.empty()) continue;
      any = true;
      ++numbers;
      if (kind == 1) {
        ++before[Fate::kNotNumeric];
      } else if (kind == 2) {
        ++before[Fate::kTooShort];
      } else if (name == "Al") {
        ++before[Fate::kShortName];
      } else if (!entries_.insert(name + cell).second) {
        ++before[Fate::kRepeated];
      }
    }
    if (!any) {
      ++numbers;
      ++before[Fate::kNoNumber];
    }
    file_ += "\r\n";
  }

  std::mt19937 random_;
  std::string file_ = "Name;Festnetz;Mobil\r\n";
  std::set<std::string> entries_;
};

TEST_F(Account, TheFatesAddUpToTheNumbersWhateverTheUserDoes) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    RandomContacts contacts(seed);
    std::string book;
    for (int i = 0; i < contacts.below(6); ++i) {
      book += concat("Name", std::to_string(contacts.below(4)), ";01715550",
                     std::to_string(100 + contacts.below(8)), ";0;0;0;0;;;[vcd()vcd]\r\n");
    }
    machine.files.put(kBookPath, book);
    machine.files.put(kSettingsPath, "[Import]\r\nLen=1\r\n");
    go_to(Page::kEntries, contacts.file(), {{"Name"}, {"Festnetz", "Mobil"}});
    form->optAsk(contacts.below(3)).choose();
    std::size_t removed = 0;
    for (int i = contacts.below(4); i > 0 && form->lstImpFinal.count() > 0; --i) {
      const int row = contacts.below(static_cast<int>(form->lstImpFinal.count()));
      if (contacts.below(2) == 0) {
        renumber(row, "0405550199");
      } else {
        remove(row);
        ++removed;
      }
    }
    EXPECT_TRUE(form->look_ahead());
    std::map<Fate, std::size_t> told;
    std::size_t count = 0;
    form->account([&](const ReportRow& row) {
      ++told[row.fate];
      ++count;
    });
    EXPECT_EQ(count, contacts.numbers) << seed;
    for (const auto& [fate, expected] : contacts.before) {
      EXPECT_EQ(told[fate], expected) << seed << words_of(fate).key;
      count -= told[fate];
    }
    EXPECT_EQ(told[Fate::kRemoved], removed) << seed;
    EXPECT_EQ(count - removed, form->lstImpFinal.count()) << seed;
  }
}

TEST_F(Account, OfOutlookEachContactAndEachTickedNumberIsToldOnce) {
  using Item = std::vector<std::pair<std::string, std::string>>;
  std::mt19937 random(7);
  const auto below = [&](int end) { return std::uniform_int_distribution<>(0, end - 1)(random); };
  const auto number = [&]() -> std::string {
    switch (below(4)) {
      case 0:
        return "";
      case 1:
        return "unknown";
      default:
        return "030 555030" + std::to_string(below(5));
    }
  };
  std::vector<std::shared_ptr<FakeObject>> items;
  std::size_t contacts = 0;
  std::size_t numbers = 0;
  for (int i = 0; i < 200; ++i) {
    if (below(10) == 0) {
      items.push_back(outlook_distribution_list());
      continue;
    }
    const std::string home = number();
    const std::string mobile = number();
    items.push_back(outlook_contact(Item{{"FirstName", "A" + std::to_string(below(5))},
                                         {"HomeTelephoneNumber", home},
                                         {"MobileTelephoneNumber", mobile},
                                         {"BusinessTelephoneNumber", "030 5550399"}}));
    ++contacts;
    // Of the business numbers the tick is taken away.
    const std::size_t told = (home.empty() ? 0U : 1U) + (mobile.empty() ? 0U : 1U);
    numbers += told == 0 ? 1 : told;
  }
  install_outlook(machine.automation, "16.0", std::move(items));
  start();
  form->tmOLcheck.take_tick();
  form->cmdOutlook.take_user_click();
  for (const auto& kind : form->chkImport) kind->set_ticked(false);
  for (const int kind : {1, 7}) form->chkImport(kind).set_ticked(true);
  forward();
  EXPECT_TRUE(form->look_ahead());
  std::size_t told = 0;
  std::size_t last = 0;
  const std::size_t records = form->account([&](const ReportRow& row) {
    ++told;
    EXPECT_EQ(row.line, 0U);
    EXPECT_TRUE(row.record == last || row.record == last + 1) << "no gaps";
    last = row.record;
  });
  EXPECT_EQ(records, contacts);
  EXPECT_EQ(told, numbers);
}

}  // namespace
}  // namespace quenda
