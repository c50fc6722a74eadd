#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "text/literal_1252.h"
#include "tools/driver/driver_dialogs.h"
#include "tools/driver/driver_input.h"
#include "tools/driver/driver_lists.h"
#include "tools/driver/driver_window.h"
#include "tools/driver/processes.h"
#include "tools/driver/suite_folder.h"

namespace quenda {

/// The pages in their order.
enum class Page { kSource, kColumns, kNames, kAddresses, kEntries };

/// A suite, the tool in it, and a user before its window.
class WizardTest : public testing::Test {
 protected:
  WizardTest() = default;
  explicit WizardTest(const std::filesystem::path& suite) : suite_(suite) {}
  ~WizardTest() override;

  /// Starts the tool by the phone book's stand-in, waits for "ON" and for the window.
  void start_by_phone_book(std::string_view options = "");
  /// Starts the tool with "/i" and nobody who listens.
  void start_alone();
  /// Waits for the main window of a tool that was started.
  void find_window();

  [[nodiscard]] Window button(std::string_view caption) const { return main_.find(caption); }
  /// Clicks on a button once it can be used.
  void click_button(std::string_view caption);
  [[nodiscard]] bool on(Page page) const;
  /// Waits for a page, and until its work is done.
  void expect_page(Page page);
  /// Types the path of the file of contacts, waits until it has been read.
  void type_path();
  /// From the start to a page, columns chosen by themselves.
  void go_to(Page page);
  /// "Weiter" to the next page.
  void forward(Page next);
  [[nodiscard]] Window final_list() const { return main_.first(WC_LISTVIEWW); }
  /// Names and numbers of the final list: "Anna Berg 03023125701".
  [[nodiscard]] std::vector<std::string> final_entries() const;
  /// Waits until the tool has ended, as it does after every import and every goodbye.
  void expect_end();

  SuiteFolder suite_;
  std::unique_ptr<PhoneBook> phone_book_;
  Process tool_;
  Window main_;
};

inline constexpr std::string_view kNext = "Weiter";
inline constexpr std::string_view kBack = u8"Zurück"_de;
inline constexpr std::string_view kApply = u8"Übernehmen"_de;
inline constexpr std::string_view kCancel = "Abbrechen";
inline constexpr std::string_view kChooseFile = u8"Datei wählen ..."_de;
inline constexpr std::string_view kMainTitle = "Quenda - Import";

}  // namespace quenda
