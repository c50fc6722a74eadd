#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/files.h"
#include "settings/app.h"
#include "sources/cell_findings.h"
#include "sources/delimited_text.h"
#include "sources/file_conversion.h"
#include "sources/file_findings.h"
#include "sources/pages/source_page.h"
#include "support/clsFiles.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/shell/busy.h"
#include "wizard/shell/finding_text.h"

// The file on the first page: read, its delimiter found, its records made.
namespace quenda {
namespace {

constexpr std::uint64_t kLargeFile = 8UL * 1024 * 1024;  // bytes

}  // namespace

void SourcePage::txtImpFile_Change() {
  procedure(app_.errors, "fMain.txtImpFile_Change", {}, [&] {
    ImportSource& source = shell_.source;
    StatusBar& status = shell_.StatusBar;
    if (!app_.machine.files.exists(txtImpFile.text())) {
      file_ready_ = false;
      source.facts = {};
      show_facts();
      chkConvert.set_visible(false);
      shell_.refresh_buttons();
      return;
    }
    searching_outlook_ = false;
    cmbLimiter.set_list_index(-1);
    shell_.clear_panels();
    source.IsISpyFile = false;
    source.IsOutlookSource = false;
    source.FileChecked = false;
    source.ImportRows =
        RecordTable();  // a text without line ends would leave those of the file before
    status.set_panel(2, shell_.texts["Import_Info_ReadingFile"]);
    FileImport();
    bool delimiter_found = false;
    if (!source.IsISpyFile) {
      status.set_panel(2, shell_.texts["Import_Info_GetDelimiter"]);
      delimiter_found = detect_delimiter();
      look_at_cells();
      source.FileChecked = true;
    }
    show_facts();
    // A tick that was remembered is never at work unseen.
    const bool adaptable = is_adaptable(source.facts) || chkConvert.ticked();
    chkConvert.set_visible(file_read_ && !source.IsISpyFile && adaptable);
    if (shell_.wizard.abort) throw EndProgram();
    // A log that could not be read is not one without callers.
    file_ready_ = (source.IsISpyFile && file_read_) || delimiter_found;
    shell_.refresh_buttons();
  }).or_go_on();
}

bool SourcePage::detect_delimiter() {
  bool found = CheckLimiter();
  if (converts()) {
    const char delimiter = conversion_delimiter(*shell_.source.ImportText, shell_.source.facts);
    const auto known = std::find(kDelimiters.begin(), kDelimiters.end(), delimiter);
    if (known != kDelimiters.end()) {
      cmbLimiter.set_list_index(static_cast<int>(known - kDelimiters.begin()));
      show_detection(false);
      found = true;
    }
  } else if (chkConvert.ticked() && !shell_.source.facts.readable()) {
    // A workbook or the like: there is nothing in it that could be adapted.
    found = false;
  }
  if (found) {
    shell_.StatusBar.set_panel(2, shell_.texts["Import_Info_DelimiterOk"]);
    cmbLimiter.set_enabled(false);
    shell_.ObjectEnable(false, cmbLimiter);
  }
  return found;
}

void SourcePage::look_at_cells() {
  FileFacts& facts = shell_.source.facts;
  // Where all of the file is adapted anyway, its fields are, too.
  const int chosen = cmbLimiter.list_index();
  if (!file_read_ || chosen < 0 || facts.kind != FileKind::kTable || is_adaptable(facts)) return;
  const char delimiter = kDelimiters.at(static_cast<std::size_t>(chosen));
  const std::string_view text = *shell_.source.ImportText;
  facts.odd_cells = has_cells_to_adapt(text, delimiter);
  facts.empty_column = text.substr(0, text.find_first_of("\r\n")).ends_with(delimiter);
}

bool SourcePage::converts() const {
  const ImportSource& source = shell_.source;
  return chkConvert.ticked() && source.kind() == Source::kFile && source.facts.readable();
}

void SourcePage::show_facts() {
  std::string text;
  const FileFacts& facts = shell_.source.facts;
  for (const Finding& finding : short_file_findings(facts, converts())) {
    if (!text.empty()) text += ' ';
    text += text_of(app_, finding);
  }
  labFacts.set_caption(text);
  labFacts.set_visible(!text.empty());
}

void SourcePage::chkConvert_Click() {
  procedure(app_.errors, "fMain.chkConvert_Click", {}, [&] {
    if (!shell_.source.FileChecked || shell_.source.kind() != Source::kFile) return;
    cmbLimiter.set_list_index(-1);
    cmbLimiter.set_enabled(true);
    shell_.ObjectEnable(true, cmbLimiter);
    file_ready_ = detect_delimiter();
    show_facts();
    shell_.refresh_buttons();
  }).or_go_on();
}

void SourcePage::FileImport() {
  bool complete = true;
  const bool done = procedure(app_.errors, "fMain.FileImport", {}, [&] {
    const std::string& path = txtImpFile.text();
    if (!app_.machine.files.exists(path)) return;
    complete = read_file(path);
    const bool is_log = is_ispy_log(path);
    shell_.source.IsISpyFile = is_log;
    if (is_log) {
      show_detection(false);
      cmbLimiter.set_list_index(-1);
    }
    cmbLimiter.set_enabled(!is_log);
    shell_.ObjectEnable(!is_log, cmbLimiter);
    shell_.StatusBar.set_panel(1, is_log ? "Importmode: ISpy" : "Importmode: CSV");
  });
  file_read_ = done && complete;
}

bool SourcePage::read_file(const std::string& path) {
  ImportSource& source = shell_.source;
  const Hourglass hourglass(shell_);
  // Only a large file is worth a look at what the user does meanwhile: keys other than "cancel"
  // are lost then, and a path may still be being typed.
  std::optional<BusyWork> busy;
  const std::uint64_t size = app_.machine.files.size(path);
  if (size > kLargeFile) busy.emplace(shell_);
  const auto pause = [&] {
    if (busy) shell_.answer_events();
  };
  pause();
  long count = 0;
  // The text before is given up first: two files need not fit into memory together.
  source.ImportText = std::make_shared<std::string>();
  source.facts = {};
  source.lines = {};
  source.lines_found = false;
  if (size > kLargestFile) {
    app_.message_box(shell_.texts["Import_File_TooLarge"], MessageStyle::kExclamation);
  } else {
    source.ImportText =
        std::make_shared<std::string>(clsFiles(app_.errors, app_.machine.files, app_.machine.clock)
                                          .fOpenFileToStream(path, count));
  }
  // The reading reports what goes wrong, and gives an empty text then.
  const bool complete = size == 0 || !source.ImportText->empty();
  pause();
  source.facts = look_at_file(*source.ImportText);
  // The records of a delimited file are built when its delimiter is settled.
  if (is_ispy_log(path)) source.ImportRows = split_lines(source.ImportText);
  pause();
  shell_.StatusBar.set_panel(2, "");
  shell_.show_counts(static_cast<std::size_t>(count), shell_.texts["Import_Info_FileRead"]);
  return complete;
}

bool SourcePage::CheckLimiter() {
  bool acceptable = false;
  procedure(app_.errors, "fMain.CheckLimiter", {}, [&] {
    const DelimiterCounts counts = count_delimiters(*shell_.source.ImportText);
    shell_.source.line_breaks = counts.line_breaks;
    const int candidate = choose_delimiter(counts);
    if (candidate > -1) cmbLimiter.set_list_index(candidate);
    const int chosen = cmbLimiter.list_index();
    acceptable = chosen > -1 && delimiter_acceptable(counts, chosen);
    show_detection(!acceptable);
  }).or_go_on();
  return acceptable;
}

void SourcePage::show_detection(bool failed) {
  detection_failed_ = failed;
  labLimError.set_visible(failed);
}

void SourcePage::cmbLimiter_Click() {
  procedure(app_.errors, "fMain.cmbLimiter_Click", {}, [&] {
    const int chosen = cmbLimiter.list_index();
    if (chosen > -1) {
      shell_.source.Delimiter = kDelimiters.at(static_cast<std::size_t>(chosen));
    }
    // Where detection had failed, the user's own choice is taken without another check.
    if (app_.machine.files.exists(txtImpFile.text()) && detection_failed_) {
      file_ready_ = true;
      shell_.refresh_buttons();
    }
    show_detection(false);
  }).or_go_on();
}

void SourcePage::CSVclean() {
  procedure(app_.errors, "fMain.CSVclean", {}, [&] {
    ImportSource& source = shell_.source;
    BusyWork busy(shell_);
    // The records are built in the memory of the text itself, which is not needed after that.
    source.ImportRows = RecordTable();
    source.converted = converts();
    source.made_table = false;
    source.lines = {};
    source.lines_found = source.converted;
    source.losses = {};
    if (source.converted) return build_converted();
    std::string text = std::move(*source.ImportText);
    remove_doubled_quotes(text, [this] { shell_.answer_events(); });
    const bool only_pairs =
        source.facts.line_ends == LineEnds::kCrAndLf && !source.facts.is_utf16();
    const std::size_t lines = only_pairs ? source.line_breaks + 1 : 0;
    source.ImportRows =
        build_records(std::move(text), source.Delimiter.front(), busy.on_step(), lines);
    // Where each line has become a record, there is nothing to be found.
    source.lines_found = lines == source.ImportRows.size();
  }).or_go_on();
}

void SourcePage::build_converted() {
  ImportSource& source = shell_.source;
  const std::string bytes = std::move(*source.ImportText);
  ConvertedTable table = convert_file(bytes, source.facts, source.Delimiter.front(),
                                      [this] { shell_.answer_events(); });
  source.Delimiter = table.delimiter;
  source.made_table = table.made;
  source.lines = std::move(table.lines);
  source.losses = std::move(table.losses);
  source.ImportRows = build_records(
      std::move(table.text), table.delimiter,
      [this](std::size_t i, std::size_t n) { shell_.step(i, n); }, table.records);
}

void SourcePage::DatasetComplete() {
  procedure(app_.errors, "fMain.DatasetComplete", {}, [&] {
    BusyWork busy(shell_);
    pad_records(shell_.source.ImportRows, shell_.source.Delimiter.front(), busy.on_step());
  }).or_go_on();
}

}  // namespace quenda
