#pragma once

#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "sources/pages/modOutlook.h"
#include "support/modAPI_FileOpenDlg.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The first page: which source the contacts come from, and for a file what separates its fields.
class SourcePage : public WizardPage {
 public:
  explicit SourcePage(WizardShell& shell);

  /// A file has been read whose fields can be told apart, or a call log.
  [[nodiscard]] bool can_go_on() const override { return file_ready_; }
  void load_captions();
  void load(const ImportSettings& settings);
  void save(ImportSettings& settings) const;

  void cmdFile_Click();
  void cmdIspy_Click();
  void txtImpFile_Change();
  void FileImport();
  bool CheckLimiter();
  void cmbLimiter_Click();
  void CSVclean();
  void DatasetComplete();
  void tmOLcheck_Timer();

  /// Shows that Outlook is looked for, and lets the timer do it.
  void start_outlook_search();
  /// Lets the user choose a source, or no longer; Outlook only where it has contacts.
  void open_choice(bool open);
  void chkConvert_Click();

  /// Whether the file taken is going to be adapted.
  [[nodiscard]] bool converts() const;
  /// Whether the file chosen last could be read.
  [[nodiscard]] bool file_read() const { return file_read_; }

  modOutlook outlook;

  Label labFile{shell_, "labFile"};
  TextBox txtImpFile{shell_, "txtImpFile"};
  Button cmdFile{shell_, "cmdFile"};
  Label labLimiter{shell_, "labLimiter"};
  ComboList cmbLimiter{shell_, "cmbLimiter"};
  Label labLimError{shell_, "labLimError"};
  Button cmdIspy{shell_, "cmdIspy"};
  Label labIspy{shell_, "labIspy"};
  Button cmdOutlook{shell_, "cmdOutlook"};
  Label labOLver{shell_, "labOLver"};
  Label labOLhint{shell_, "labOLhint"};
  CheckBox chkNameLen{shell_, "chkNameLen"};
  Label labFacts{shell_, "labFacts"};
  CheckBox chkConvert{shell_, "chkConvert"};

 private:
  void design();
  void connect();
  void choose_file(FilterSet filters);
  /// Whether all of it could be read.
  bool read_file(const std::string& path);
  bool detect_delimiter();
  /// Finds out whether the fields of a file want adapting that has nothing else to adapt.
  void look_at_cells();
  void show_facts();
  void build_converted();
  void show_detection(bool failed);
  void enable_outlook();

  bool file_ready_ = false;
  bool file_read_ = false;
  bool detection_failed_ = false;
  bool choice_open_ = true;
  bool searching_outlook_ = false;  // and panel 2 says so
};

}  // namespace quenda
