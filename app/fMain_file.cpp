#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/busy.h"
#include "app/fMain.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/delimited_text.h"
#include "support/clsFiles.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::uint64_t kLargeFile = 8UL * 1024 * 1024;  // bytes

}  // namespace

void fMain::cmdFile_Click() {
  procedure(app_.errors, "fMain.cmdFile_Click", {}, [&] {
    txtImpFile.set_text("");
    const std::string path = app_.open_file(FilterSet::kAll);
    if (!path.empty()) txtImpFile.set_text(path);
  }).or_go_on();
}

void fMain::txtImpFile_Change() {
  procedure(app_.errors, "fMain.txtImpFile_Change", {}, [&] {
    if (!app_.machine.files.exists(txtImpFile.text())) {
      cmdFor.set_enabled(false);
      return;
    }
    cmbLimiter.set_list_index(-1);
    for (const int panel : {1, 2, 3}) StatusBar.set_panel(panel, "");
    source.IsISpyFile = false;
    source.IsOutlookSource = false;
    source.FileChecked = false;
    StatusBar.set_panel(2, texts.reading_file);
    FileImport();
    bool delimiter_found = false;
    if (!source.IsISpyFile) {
      StatusBar.set_panel(2, texts.get_delimiter);
      delimiter_found = CheckLimiter();
      source.FileChecked = true;
      if (delimiter_found) {
        StatusBar.set_panel(2, texts.delimiter_ok);
        cmbLimiter.set_enabled(false);
        ObjectEnable(false, cmbLimiter);
      }
    }
    if (wizard.abort) throw EndProgram();
    cmdFor.set_enabled(source.IsISpyFile || delimiter_found);
  }).or_go_on();
}

void fMain::FileImport() {
  procedure(app_.errors, "fMain.FileImport", {}, [&] {
    const std::string& path = txtImpFile.text();
    if (!app_.machine.files.exists(path)) return;
    const Hourglass hourglass(*this);
    // Only a large file is worth a look at what the user does meanwhile: keys other than "cancel"
    // are lost then, and a path may still be being typed.
    std::optional<BusyWork> busy;
    if (app_.machine.files.size(path) > kLargeFile) busy.emplace(*this);
    const auto pause = [&] {
      if (busy) answer_events();
    };
    pause();
    long count = 0;
    // The text before is given up first: two files need not fit into memory together.
    source.ImportText = std::make_shared<std::string>();
    source.ImportText =
        std::make_shared<std::string>(clsFiles(app_.errors, app_.machine.files, app_.machine.clock)
                                          .fOpenFileToStream(path, count));
    pause();
    RecordTable lines = split_lines(source.ImportText);
    if (!lines.empty()) source.ImportRows = std::move(lines);
    pause();
    StatusBar.set_panel(2, "");
    show_counts(static_cast<std::size_t>(count), texts.file_read);
    source.IsISpyFile = is_ispy_log(path);
    if (source.IsISpyFile) {
      labLimError.set_visible(false);
      cmbLimiter.set_list_index(-1);
    }
    cmbLimiter.set_enabled(!source.IsISpyFile);
    ObjectEnable(!source.IsISpyFile, cmbLimiter);
    StatusBar.set_panel(1, source.IsISpyFile ? "Importmode: ISpy" : "Importmode: CSV");
  }).or_go_on();
}

bool fMain::CheckLimiter() {
  bool acceptable = false;
  procedure(app_.errors, "fMain.CheckLimiter", {}, [&] {
    const DelimiterCounts counts = count_delimiters(*source.ImportText);
    const int candidate = choose_delimiter(counts);
    if (candidate > -1) cmbLimiter.set_list_index(candidate);
    const int chosen = cmbLimiter.list_index();
    acceptable = chosen > -1 && delimiter_acceptable(counts, chosen);
    labLimError.set_visible(!acceptable);
  }).or_go_on();
  return acceptable;
}

void fMain::cmbLimiter_Click() {
  procedure(app_.errors, "fMain.cmbLimiter_Click", {}, [&] {
    const int chosen = cmbLimiter.list_index();
    if (chosen > -1) source.Delimiter = kDelimiters.at(static_cast<std::size_t>(chosen));
    // Where detection had failed, the user's own choice is taken without another check.
    if (app_.machine.files.exists(txtImpFile.text()) && labLimError.visible()) {
      cmdFor.set_enabled(true);
    }
    labLimError.set_visible(false);
  }).or_go_on();
}

void fMain::CSVclean() {
  procedure(app_.errors, "fMain.CSVclean", {}, [&] {
    BusyWork busy(*this);
    // The records are built in the memory of the text itself, which is not needed after that.
    source.ImportRows = RecordTable();
    std::string text = std::move(*source.ImportText);
    remove_doubled_quotes(text, [this] { answer_events(); });
    source.ImportRows = build_records(std::move(text), source.Delimiter.front(), busy.on_step());
  }).or_go_on();
}

void fMain::DatasetComplete() {
  procedure(app_.errors, "fMain.DatasetComplete", {}, [&] {
    BusyWork busy(*this);
    pad_records(source.ImportRows, source.Delimiter.front(), busy.on_step());
  }).or_go_on();
}

}  // namespace quenda
