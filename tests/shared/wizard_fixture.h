#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/fMain.h"
#include "settings/app.h"
#include "tests/shared/fakes.h"

namespace quenda {

inline constexpr std::string_view kBookPath = "C:\\Quenda\\data\\Quendabook.txt";
inline constexpr std::string_view kSettingsPath = "C:\\Quenda\\data\\sett_import.ini";
inline constexpr std::string_view kContactsPath = "C:\\contacts.csv";

/// The whole wizard on a machine in memory: a suite in "C:\Quenda" with the own codes 0049 and 030,
/// and the phone book's link open.
class WizardTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  WizardTest() {
    machine.files.put("C:\\Quenda\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine.files.put(kBookPath, "");
    machine.system.protects = false;
  }

  /// Starts the tool.
  void start(bool linked = true) {
    form.reset();
    app = std::make_unique<App>(machine.services);
    form = std::make_unique<fMain>(*app);
    form->Form_Load();
    if (linked) form->Form_LinkOpen();
  }

  /// Puts a file into the file box, as the file dialog does.
  void take_file(std::string_view content, std::string_view path = kContactsPath) {
    machine.files.put(path, content);
    machine.dialogs.paths.push_back(std::string(path));
    form->cmdFile.take_user_click();
  }

  void forward() { form->cmdFor.take_user_click(); }
  void back() { form->cmdBack.take_user_click(); }

  /// Selects the columns of a list by their headers.
  void select(int list, const Texts& headers) {
    ListBox& box = form->lstHeader(list);
    for (int i = 0; i < box.count(); ++i) {
      for (const std::string& header : headers) {
        if (box.item(i) == header) box.take_user_selection(i, true);
      }
    }
  }

  /// Starts the tool, takes the file, chooses these columns in the lists, and goes to the page.
  void go_to(Page page, std::string_view file, const std::vector<Texts>& columns) {
    start();
    take_file(file);
    forward();
    for (std::size_t list = 0; list < columns.size(); ++list) {
      select(static_cast<int>(list), columns[list]);
    }
    for (Page at = Page::kColumns; at < page; at = static_cast<Page>(static_cast<int>(at) + 1))
      forward();
    EXPECT_EQ(form->wizard.CurrentPage, page);
  }

  /// Presses the last "forward", after which the tool has ended.
  void finish() { EXPECT_THROW(forward(), EndProgram); }

  [[nodiscard]] Texts rows() const {
    Texts lines;
    for (std::size_t i = 0; i < form->lstImpFinal.count(); ++i) {
      lines.push_back(form->lstImpFinal.cell(i, 0) + "|" + form->lstImpFinal.cell(i, 1) + "|" +
                      form->lstImpFinal.cell(i, 2));
    }
    return lines;
  }
  [[nodiscard]] std::string book() const { return machine.files.content(kBookPath); }
  [[nodiscard]] std::string last_box() const {
    return machine.dialogs.boxes.empty() ? "" : machine.dialogs.boxes.back().text;
  }

  FakeMachine machine;
  std::unique_ptr<App> app;
  std::unique_ptr<fMain> form;
};

}  // namespace quenda
