#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/main_texts.h"
#include "book/book_entry.h"
#include "book/book_file.h"
#include "book/entry_list.h"
#include "book/merge.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "sources/outlook_contacts.h"
#include "sources/pages/modOutlook.h"
#include "sources/record_table.h"
#include "text/flat_table.h"
#include "wizard/composition.h"
#include "wizard/page_flow.h"
#include "wizard/pages/record_preview.h"

namespace quenda {

struct App;

/// The file being imported, and what kind of source the wizard works with.
struct ImportSource {
  std::shared_ptr<std::string> ImportText = std::make_shared<std::string>();
  RecordTable ImportRows;
  std::string Delimiter;  // one character; empty until one has been selected for the first time
  bool IsISpyFile = false;
  bool IsOutlookSource = false;
  bool FileChecked = false;

  [[nodiscard]] Source kind() const {
    return IsOutlookSource ? Source::kOutlook : IsISpyFile ? Source::kIspy : Source::kFile;
  }
};

/// Number of the Outlook page's title and helping sentence; those of the pages are 1 to 5.
inline constexpr int kOutlookTitle = 6;

/// Stands for "no row" where a row of the final list is meant.
inline constexpr int kNoRow = -1;

/// Where the wizard stands.
struct WizardState {
  std::int16_t CurrentPage = kFirstPage;
  bool abort = false;      // the user wants the program to end; loops end it at their next record
  bool loading = false;    // controls are being filled, their handlers keep quiet
  bool link_open = false;  // the phone book listens
};

/// The wizard. Its procedures fetch values from the controls, call a rule, and put the results
/// back; their bodies lie beside the rules that they call (sources/, wizard/, book/, app/).
class fMain : public Form {
 public:
  explicit fMain(App& app);
  ~fMain() override;

  // Start, host link, shutdown (app/).
  void Form_Load();
  void Form_LinkOpen();
  void Form_LinkClose();
  void Form_LinkError();
  void Form_Unload();
  void Form_GotFocus();
  void Language();
  void cmdCancel_Click();
  void cmdHelp_Click();
  void LockElements(bool lock);
  /// Colours an input field as usable or not.
  void ObjectEnable(bool enabled, Control& control);
  template <class T>
  void ObjectEnable(bool enabled, ControlArray<T>& array, std::int16_t index) {
    ObjectEnable(enabled, array(index));
  }
  void chk1_Click(int index);
  void chk2_Click(int index);
  void chk3_Click(int index);
  void txtImport_Change();
  void txtImport_KeyPress(std::int16_t& code);
  void txtIndex_KeyPress(std::int16_t& code);
  void LoadWindowPosition();
  void LoadPageOptions();
  void LoadHeaderOptions();
  void SaveWindowPosition();
  void SaveSelections();
  void SaveOptions(bool delimited_file);

  // Sources (sources/).
  void cmdFile_Click();
  void cmdIspy_Click();
  void txtImpFile_Change();
  void FileImport();
  bool CheckLimiter();
  void cmbLimiter_Click();
  void CSVclean();
  void DatasetComplete();
  void ISpyImport();
  void tmOLcheck_Timer();
  void cmdOutlook_Click();
  void Import();
  void DataView();
  void chkImport_Click(int index);
  void chkAdr_Click(int index);

  // Pages (wizard/).
  void ShowSite(bool hide_only = false);
  void cmdFor_Click();
  void cmdBack_Click();
  void CheckAreaCode();
  void ImpHeader();
  void lstHeader_Click(int index);
  void ListColor();
  void HeaderFillName();
  void chkFlip_Click();
  void HeaderFillAdress();
  void cmbFlipAdress_Click();
  void SetAdress();
  void pClearName();
  void pClearAdress();
  /// Whether the entries were composed to the end.
  bool Scramble();

  // Entries and the book (book/).
  void PreviewEntries();
  void ListUpdate();
  std::string fCleanNumbers(std::string_view number);
  std::string AddVW(std::string_view number);
  void lstImpFinal_DblClick();
  void lstImpFinal_KeyDown(std::int16_t code);
  void cmdEditItems_Click();
  void cmdDel_Click();
  void ChangeItem();
  void optAsk_Click(int index);
  void Add();

  /// One record, line or entry of a long loop is done: shows the progress, handles what the user
  /// does meanwhile, and ends the program when the user wants that.
  void step(std::size_t done, std::size_t total);
  /// The same in work that shows no progress.
  void answer_events();

  // Values that forms and programs share.
  ImportSource source;
  WizardState wizard;
  MergeMode merge_mode = MergeMode::kAsk;
  LineEnd book_line_end = LineEnd::kCrLf;  // of the book that was read last
  MainTexts texts;
  /// The entry being edited in fImportItemEdit; row -1 means none.
  struct EditedItem {
    int row = kNoRow;
    bool changed = false;
    std::string name;
    std::string number;
    std::string address;
  } edited;

  // The strip on top and the buttons below the pages.
  Frame frmTitle{*this, "frmTitle"};
  Label labTitle{*this, "labTitle"};
  ControlArray<Label> labHelp{*this, "labHelp", {1, 2, 3, 4, 5, 6}};
  PictureBox PicProgress{*this, "PicProgress"};
  Button cmdHelp{*this, "cmdHelp"};
  Button cmdBack{*this, "cmdBack"};
  Button cmdFor{*this, "cmdFor"};
  Button cmdCancel{*this, "cmdCancel"};
  quenda::StatusBar StatusBar{*this, "StatusBar"};
  TextBox txtDDE{*this, "txtDDE"};  // hidden; its text is what the phone book watches
  Timer tmOLcheck{*this, "tmOLcheck"};

  // One frame per page, all in the same place of one holder; the Outlook page replaces the first.
  Frame frmPages{*this, "frmPages"};
  ControlArray<Frame> frmImp{*this, "frmImp", {0, 1, 2, 3, 4}};
  Frame frmImpOL{*this, "frmImpOL"};

  // Page 0: the source.
  Label labFile{*this, "labFile"};
  TextBox txtImpFile{*this, "txtImpFile"};
  Button cmdFile{*this, "cmdFile"};
  Label labLimiter{*this, "labLimiter"};
  ComboList cmbLimiter{*this, "cmbLimiter"};
  Label labLimError{*this, "labLimError"};
  Button cmdIspy{*this, "cmdIspy"};
  Label labIspy{*this, "labIspy"};
  Button cmdOutlook{*this, "cmdOutlook"};
  Label labOLver{*this, "labOLver"};
  Label labOLhint{*this, "labOLhint"};
  CheckBox chkNameLen{*this, "chkNameLen"};

  // Page 1: the columns. The preview belongs to page 2 as well.
  ControlArray<Label> labHeader{*this, "labHeader", {0, 1, 2, 3}};
  ControlArray<ListBox> lstHeader{*this, "lstHeader", {0, 1, 2, 3}};
  Label labShow{*this, "labShow"};
  ListView lstShow{*this, "lstShow"};

  // Page 2: the names, and the suffix of each number.
  Label labHeadName{*this, "labHeadName"};
  TextBox txtHeadName{*this, "txtHeadName"};
  CheckBox chkFlip{*this, "chkFlip"};
  Label labHeadNumber{*this, "labHeadNumber"};
  Label labNameExt{*this, "labNameExt"};
  ControlArray<Label> labHead{*this, "labHead", {0, 1, 2}};
  ControlArray<TextBox> txtHead{*this, "txtHead", {0, 1, 2}};
  ControlArray<TextBox> txtIndex{*this, "txtIndex", {0, 1, 2}};

  // Page 3: the addresses, and which number gets which.
  Label labFlipAdress{*this, "labFlipAdress"};
  ComboList cmbFlipAdress{*this, "cmbFlipAdress"};
  ControlArray<Label> labAdres{*this, "labAdres", {0, 1}};
  ControlArray<TextBox> txtAdres{*this, "txtAdres", {0, 1}};
  Label labAdresBind{*this, "labAdresBind"};
  ControlArray<Frame> frmBind{*this, "frmBind", {0, 1, 2}};
  ControlArray<CheckBox> chk1{*this, "chk1", {0, 1}};
  ControlArray<CheckBox> chk2{*this, "chk2", {0, 1}};
  ControlArray<CheckBox> chk3{*this, "chk3", {0, 1}};
  ControlArray<TextBox> txtAdresBind{*this, "txtAdresBind", {0, 1, 2}};

  // Page 4: the entries.
  Label labImpFinal{*this, "labImpFinal"};
  ListView lstImpFinal{*this, "lstImpFinal"};
  Button cmdEditItems{*this, "cmdEditItems"};
  Button cmdDel{*this, "cmdDel"};
  Label labDelete{*this, "labDelete"};
  Frame frmAsk{*this, "frmAsk"};
  ControlArray<OptionButton> optAsk{*this, "optAsk", {0, 1, 2}};
  Label labStateCode{*this, "labStateCode"};
  TextBox txtStateCode{*this, "txtStateCode"};
  Label labOVW{*this, "labOVW"};
  TextBox txtOVW{*this, "txtOVW"};
  Label labOVWhint{*this, "labOVWhint"};

  // The Outlook page.
  ControlArray<Label> labImport{*this, "labImport", {0, 1, 2}};
  ControlArray<CheckBox> chkImport{*this, "chkImport", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<TextBox> txtImport{*this, "txtImport", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<CheckBox> chkAdr{*this, "chkAdr", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17, 18, 21}};
  CheckBox chkFlipName{*this, "chkFlipName"};
  CheckBox chkFlipAdress{*this, "chkFlipAdress"};
  Label labPreview{*this, "labPreview"};
  ListView lstImport{*this, "lstImport"};

 private:
  void design();
  void connect();
  void name_address_boxes();
  void name_number_kinds();
  void show_title(int page);
  void show_counts(std::size_t count, std::string_view text);
  void bind_row(std::size_t row, int index);
  ControlArray<CheckBox>& address_boxes(std::size_t row);
  std::array<Control*, 4> source_controls();
  void return_to_source();
  [[nodiscard]] bool outlook_importable() const;
  void hide_pages();
  void show_outlook_page();
  void run_page_work(PageWork work);
  void enter_file_entries();
  void finish_entry_page(bool importable);
  void fill_header_lists(const std::vector<std::string>& header);
  void select_saved_columns(const std::vector<std::string>& header);
  [[nodiscard]] std::vector<std::string> address_names(std::size_t address) const;
  void refresh_bound_addresses();
  [[nodiscard]] Composition composition() const;
  enum class Merge { kDone, kFailed, kChangedMeanwhile };
  /// Where the merge did not come to its end for a fault, the user has been told why.
  Merge merge_into_book(std::string& book_text, std::string_view& line);
  /// False when the book cannot be read without losing entries; the user has been told then.
  bool read_book(std::string_view text, std::vector<BookEntry>& entries, std::string_view& line);
  void append_new_entries(std::vector<BookEntry>& entries);
  DoubleAnswer ask_about_double(std::string_view number, const std::string& existing,
                                const std::string& fresh);

  App& app_;
  modOutlook outlook_;
  ContactTable contacts_;
  RecordPreview preview_;
  FlatTable entries_{kEntryColumns};  // being collected; the final list takes them over
  ColumnChoice choice_;
  std::vector<std::size_t> address_order_ = {0};
  std::array<std::string, kNumberRows> bindings_;  // "0", "1" or "" per number row
  unsigned steps_ = 0;
};

}  // namespace quenda
