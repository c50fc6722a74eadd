// What the last page tells beforehand: the column of results and the report.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "platform/win32/handles.h"
#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Report : public WizardTest {
 protected:
  Report() {
    suite_.remember_columns();
    suite_.set_book("Bergs;03023125701;2;0;5;0;Berlin;;[vcd()vcd]\r\n");
  }
  /// The results of all entries, once they are there.
  std::vector<std::string> results() {
    std::vector<std::string> texts;
    becomes([&] {
      texts.clear();
      for (const TableRow& row : rows_of(final_list())) texts.push_back(row.at(3));
      return std::find(texts.begin(), texts.end(), "") == texts.end();
    });
    return texts;
  }
};

TEST_F(Report, TheColumnFollowsTheOptions) {
  start_by_phone_book();
  go_to(Page::kEntries);
  EXPECT_THAT(results(), ElementsAre("R\xFC"
                                     "ckfrage",
                                     "neu", "neu (!) ohne Vorwahl", "neu"));
  click(main_.find(u8"neuen Datensatz übernehmen"_de));
  EXPECT_TRUE(becomes([&] { return results().front() == "ersetzt \"Bergs\""; }))
      << results().front();
  EXPECT_THAT(suite_.book(), HasSubstr("Bergs")) << "nothing is written";
}

TEST_F(Report, ADoubleClickOnABorderShowsWhatWasCutAndOpensNothing) {
  start_by_phone_book();
  go_to(Page::kEntries);
  const Window list = final_list();
  const auto width = [&](WPARAM column) {
    return SendMessageW(list.handle(), LVM_GETCOLUMNWIDTH, column, 0);
  };
  const LRESULT addresses = width(2);
  const auto border = static_cast<LONG>(width(0) + width(1) + addresses);
  const Window header(from_lparam<HWND__>(SendMessageW(list.handle(), LVM_GETHEADER, 0, 0)));
  double_click_at(header, {border, 8});
  EXPECT_TRUE(becomes([&] { return width(2) > addresses; }));
  EXPECT_TRUE(main_.enabled());
}

TEST_F(Report, IsLookedThroughSavedAndLeft) {
  start_by_phone_book();
  go_to(Page::kEntries);
  click_button("Bericht ...");
  const Window dialog = dialog_over(main_);
  EXPECT_TRUE(
      dialog.shows("4 Nummern gelesen: 3 neu, 1 R\xFC"
                   "ckfrage."));
  const Window list = dialog.first(WC_LISTVIEWW);
  EXPECT_TRUE(becomes([&] { return list.focused(); }));
  press_with(VK_CONTROL, 'C');
  EXPECT_TRUE(becomes([] { return IsClipboardFormatAvailable(CF_UNICODETEXT) != 0; }));
  click(dialog.find("Speichern unter ..."));
  const Window saving = dialog_over(dialog);
  const std::string path = suite_.path("bericht.csv");
  choose_file(saving, path);
  EXPECT_TRUE(becomes([&] { return std::filesystem::exists(path); }));
  EXPECT_THAT(suite_.read("bericht.csv"), HasSubstr("\xEF\xBB\xBFZeile;Datensatz"));
  wait_until_active(dialog);
  double_click_at(list, point_in_row(list, 1));
  EXPECT_TRUE(becomes([&] { return !dialog.exists() && main_.enabled(); }));
  EXPECT_EQ(selected_row(final_list()), 1);
}

}  // namespace
}  // namespace quenda
