#pragma once

#include <memory>
#include <string>

#include "sources/file_facts.h"
#include "sources/lost_characters.h"
#include "sources/record_table.h"
#include "sources/source_lines.h"
#include "wizard/page_flow.h"

namespace quenda {

/// The file being imported, and what kind of source the wizard works with.
struct ImportSource {
  std::shared_ptr<std::string> ImportText = std::make_shared<std::string>();
  RecordTable ImportRows;
  std::string Delimiter;  // one character; empty until one has been selected for the first time
  bool IsISpyFile = false;
  bool IsOutlookSource = false;
  bool FileChecked = false;     // a delimited file was taken and waits for its cleaning
  FileFacts facts;              // of the file taken last
  bool converted = false;       // the records are those of an adapted file
  bool made_table = false;      // of vCards or labels: records leave out what is empty at their end
  std::size_t line_breaks = 0;  // CR characters in the file
  SourceLines lines;            // where its records begin in the file, once that is known:
  bool lines_found = false;
  LostCharacters losses;  // what the adapting could not keep

  [[nodiscard]] Source kind() const {
    return IsOutlookSource ? Source::kOutlook : IsISpyFile ? Source::kIspy : Source::kFile;
  }
  /// Gives the memory of the text and its records back, for a program that needs neither again: a
  /// large book takes their place.
  void give_up_text() {
    ImportText = std::make_shared<std::string>();
    ImportRows = RecordTable();
  }
};

/// Where the wizard stands.
struct WizardState {
  Page CurrentPage = Page::kSource;
  bool on_outlook_page = false;  // the Outlook page stands in place of the first one
  bool abort = false;      // the user wants the program to end; loops end it at their next record
  bool loading = false;    // controls are being filled, their handlers keep quiet
  bool link_open = false;  // the phone book listens
  bool account_wanted = false;  // merges note what becomes of each entry
};

}  // namespace quenda
