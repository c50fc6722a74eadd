// Walks a sample import through the whole wizard and leaves a picture of every page and dialog.
// Usage: screenshots FOLDER [LANGUAGE [MARK [NAME...]]]; the mark becomes part of the file names.
// With names, only those of the one import through all pages are left.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/win32/text_win32.h"
#include "text/text.h"
#include "tools/driver/wizard_test.h"
#include "tools/outlook/outlook_standin.h"
#include "tools/pictures/capture.h"

namespace quenda {
namespace {

struct Options {
  std::string folder = "out";
  std::string language = "de";
  std::string mark = "96";
  std::vector<std::string> names;  // empty for all
};

Options& options() {
  static Options given;
  return given;
}

/// The words on the way through the wizard, in either language.
struct Words {
  std::string_view file, next, edit, apply, keep, area_code, outlook, no_outlook, report;
};
constexpr Words kGerman = {u8"Datei für den Import"_de,
                           "Weiter",
                           "Bearbeiten",
                           u8"Übernehmen"_de,
                           "Erhalten",
                           "Ortsvorwahl",
                           "Outlook-Kontakte",
                           "Outlook nicht installiert!",
                           "Bericht ..."};
constexpr Words kEnglish = {"File to import",
                            "Next",
                            "Edit",
                            "Apply",
                            "Keep",
                            "Area code",
                            "Outlook contacts",
                            "Outlook is not installed!",
                            "Report ..."};

class Screenshots : public WizardTest {
 protected:
  Screenshots() {
    suite_.remember_columns();
    if (options().language != "de") suite_.speak(options().language);
    suite_.set_book("Bergs;03023125701;2;0;5;0;Alt-Moabit 7, 10555 Berlin;;[vcd()vcd]\r\n");
  }

  static void keep(const Window& window, std::string_view name) {
    const auto& names = options().names;
    if (!names.empty() && std::find(names.begin(), names.end(), name) == names.end()) return;
    const std::string file =
        concat(options().folder, "\\", options().language, "_", options().mark, "_", name, ".png");
    EXPECT_TRUE(capture(window, file)) << file;
  }

  void next(std::string_view caption, std::string_view name) {
    click_button(caption);
    becomes([&] { return button(words_.apply) || button(words_.next).enabled(); });
    keep(main_, name);
  }

  /// Leaves a dialog by Escape, once more where the key got lost: it does right after a window came
  /// up.
  void leave(const Window& dialog) {
    wait_until_active(dialog);
    for (int attempt = 0; attempt < 3 && dialog.exists(); ++attempt) {
      press(Key::kEscape);
      becomes([&] { return !dialog.exists(); }, 3);
    }
    ASSERT_TRUE(becomes([&] { return main_.enabled(); }));
    wait_until_active(main_);
  }

  /// Takes the file of contacts from where a user would have it.
  void take_file() {
    const std::string file = "C:\\Kontakte\\kontakte.csv";
    std::filesystem::create_directory("C:\\Kontakte");
    std::filesystem::remove(file);
    std::filesystem::copy_file(suite_.contacts(), file);
    fill(main_.after(words_.file), file);
  }

  const Words& words_ = options().language == "de" ? kGerman : kEnglish;
};

TEST_F(Screenshots, EveryPageAndDialog) {
  suite_.write("data\\Quenda.ini",
               concat("[General]\r\nmyVWL=49\r\nLanguage=", options().language, "\r\n"));
  start_by_phone_book();
  ASSERT_TRUE(becomes([&] { return panel_of(main_, 2) == words_.no_outlook; }));
  keep(main_, "1_source");
  take_file();
  keep(main_, "1_source_with_file");
  next(words_.next, "2_columns");
  next(words_.next, "3_names");
  next(words_.next, "4_addresses");
  click_button(words_.next);
  const Window codes = dialog_over(main_);
  keep(codes, "5_area_code");
  fill(codes.after(words_.area_code), "030");
  press(Key::kEnter);
  ASSERT_TRUE(becomes([&] { return button(words_.edit) && button(words_.edit).enabled(); }));
  wait_until_active(main_);
  select_row(final_list(), 0);
  ASSERT_TRUE(becomes([&] {
    const auto rows = rows_of(final_list(), 1);
    return !rows.empty() && !rows[0].at(3).empty();
  }));
  keep(main_, "6_entries");
  click_button(words_.report);
  const Window report = dialog_over(main_);
  keep(report, "10_report");
  leave(report);
  click_button(words_.edit);
  const Window editor = dialog_over(main_);
  keep(editor, "7_edit");
  leave(editor);
  click_button(words_.apply);
  const Window question = dialog_over(main_);
  keep(question, "8_number_exists");
  click(question.find(words_.keep));
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
}

TEST_F(Screenshots, AFileWithMuchToSay) {
  suite_.write("kontakte.csv", "sep=;\nName;Telefon\nJ\xC3\xB6rg Falk;030 5550301\n");
  start_by_phone_book();
  take_file();
  keep(main_, "11_findings");
  press(Key::kEscape);
  expect_end();
}

TEST_F(Screenshots, OutlookPage) {
  ASSERT_TRUE(may_register_programs()) << "the Outlook of this machine stays as it is";
  const OutlookStandIn outlook(
      "version=15.0.0.4420\n"
      "contact=FirstName=Anna|LastName=Berg|HomeTelephoneNumber=+49 30 23125701|"
      "MobileTelephoneNumber=0171 3920056|HomeAddressPostalCode=12099|HomeAddressCity=Berlin|"
      "HomeAddressStreet=Wiesenweg 4\n"
      "contact=FirstName=Cem|LastName=Kaya|HomeTelephoneNumber=030 23125702\n"
      "contact=FirstName=Eva|LastName=Lang|BusinessTelephoneNumber=0341 5550144|"
      "BusinessAddressPostalCode=04109|BusinessAddressCity=Leipzig|"
      "BusinessAddressStreet=Markt 3\n");
  start_by_phone_book();
  click_button(words_.outlook);
  ASSERT_TRUE(becomes([&] { return button(words_.next).enabled(); }));
  keep(main_, "9_outlook");
  press(Key::kEscape);
  expect_end();
}

TEST_F(Screenshots, RefusedStart) {
  tool_ = Process(concat("\"", suite_.tool(), "\""));
  Window box;
  ASSERT_TRUE(becomes([&] { return static_cast<bool>(box = window_titled(kMainTitle)); }));
  wait_until_active(box);
  keep(box, "0_refused");
  confirm(box);
}

}  // namespace
}  // namespace quenda

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  auto& options = quenda::options();
  if (count > 1) options.folder = words[1];
  if (count > 2) options.language = words[2];
  if (count > 3) options.mark = words[3];
  if (count > 4) {
    options.names.assign(words + 4, words + count);
    testing::GTEST_FLAG(filter) = "*EveryPageAndDialog";
  }
  // Each press waits for it; the setting is not stored.
  quenda::set_double_click_time(120);
  return RUN_ALL_TESTS();
}
