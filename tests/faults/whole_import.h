#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "app/quenda-import/batch_run.h"
#include "tests/faults/faulty_files.h"
#include "tests/shared/fakes.h"
#include "text/text.h"

namespace quenda {

inline constexpr std::string_view kFile = "C:\\contacts.csv";
inline constexpr std::string_view kBook = "D:\\Suite\\data\\Quendabook.txt";

inline constexpr std::string_view kBackup = "D:\\Suite\\data\\backup\\";
inline constexpr std::string_view kCopyList = "D:\\Suite\\data\\backup\\Quendabook.list";
inline constexpr std::string_view kUndoRecord = "D:\\Suite\\data\\backup\\Quendabook.undo";
inline constexpr std::string_view kCopy =
    "D:\\Suite\\data\\backup\\Quendabook 2014-03-02 17-05-09.txt";

/// A run of the console tool on a machine in memory whose files can fail: two contacts into the
/// book of "D:\\Suite".
class WholeImport : public testing::Test {
 protected:
  WholeImport() {
    machine_.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine_.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine_.files.put(kFile, "Name;Festnetz\r\nFalk;030 5550123\r\nMayr;0431 555017\r\n");
    machine_.system.protects = false;
    options_.suite = "D:\\Suite";
    options_.file = kFile;
    options_.columns[kNames] = {"Name"};
    options_.columns[kNumbers] = {"Festnetz"};
    options_.existing = 1;
  }

  void put_book(const std::string& content) {
    machine_.files.remove(kBook);
    if (!content.empty()) machine_.files.put(kBook, content);
  }
  int run() {
    out_.str("");
    errors_.str("");
    return run_batch(options_, {files_, machine_.clock, machine_.system, machine_.automation},
                     {out_, errors_, nullptr});
  }
  int run_undo() {
    const BatchOptions import = options_;
    options_ = {};
    options_.suite = import.suite;
    options_.undo = true;
    const int status = run();
    options_ = import;
    return status;
  }
  void forget_copies() {
    const std::string list = machine_.files.content(kCopyList);
    for (const std::string_view name : split(list, kCrLf)) {
      machine_.files.remove(concat(kBackup, name));
    }
    for (const std::string_view path : {kCopyList, kUndoRecord}) machine_.files.remove(path);
  }
  /// A copy that could not be read gives the entries back in other places.
  static std::multiset<std::string> read_entries(std::string_view book) {
    std::multiset<std::string> entries;
    for (const std::string_view line : split(book, kCrLf)) entries.emplace(line);
    return entries;
  }
  [[nodiscard]] std::string book() const { return machine_.files.content(kBook); }

  FakeMachine machine_;
  FaultyFiles files_{machine_.files};
  BatchOptions options_;
  std::ostringstream out_;
  std::ostringstream errors_;
};

}  // namespace quenda
