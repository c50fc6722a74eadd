#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "book/undo.h"
#include "platform/files.h"
#include "text/local_time.h"

namespace quenda {

/// What users are told, in their language. "%1" is a folder or a file.
struct BackupTexts {
  TailTexts book;
  std::string not_saved;
  std::string copy_is;
  std::string record_damaged;
  std::string keeps_changing;
};

/// The folder "backup" beside the book: copies of the book, one for each import, and the record by
/// which the last import can be taken back. Faults carry a sentence for the user.
class BookBackup {
 public:
  BookBackup(Files& files, std::string_view book_file, BackupTexts texts);

  /// Whether an import left a record that has not been used yet.
  [[nodiscard]] bool has_import() const;

  /// When that import was; empty where the record cannot be read.
  [[nodiscard]] std::string import_time() const;

  /// Before the book is written: copies it, checks the copy byte for byte, and lays the record down
  /// that `record_for` makes with the copy's name (empty when there is no book yet). A fault leaves
  /// everything as it was.
  void begin(const LocalTime& now, std::string_view book, bool has_book,
             const std::function<std::string(const std::string& copy)>& record_for);
  /// After `begin`: has the book written, which holds `book` still. When it has been, the oldest
  /// copies beyond `generations` go; when it has not, all is again as before `begin`. A fault of
  /// `write` that leaves the book damaged gets a sentence that says where the copy lies.
  ReplaceResult carry_out(std::string_view book, int generations,
                          const std::function<ReplaceResult()>& write);

  struct Outcome {
    enum class End {
      kNothing,      // there is no import to be taken back
      kRestored,     // the book is what it was before the import
      kPartly,       // it has been changed since; what was left of the import is taken back
      kNothingLeft,  // it has been changed since, and holds no entry as the import wrote it
    };
    End end = End::kNothing;
    std::string when;
    std::size_t taken = 0;
    std::vector<std::string> untouched;  // lines that have been changed since
  };
  /// Takes the last import back; a book that other programs change meanwhile is looked at anew.
  [[nodiscard]] Outcome take_back();

  [[nodiscard]] const std::string& folder() const { return folder_; }

 private:
  [[nodiscard]] std::string path(std::string_view name) const;
  [[nodiscard]] std::string text_of(const std::string& path) const;
  /// Replaces a file of this folder as safely as the book.
  void put(const std::string& path, std::string_view old_text, std::string_view text);
  void put_back(const std::string& path, const std::string& old_text);
  void copy_book(const LocalTime& now, std::string_view book);
  /// The book without the import.
  [[nodiscard]] Outcome without_import(const UndoRecord& record, const std::string& book,
                                       std::string& text) const;
  void keep_generations(int generations);
  void cancel();  // never fails
  /// Cancels where the book holds what it held; or else tells where the copy lies.
  [[nodiscard]] std::string cancel_or_point_out(std::string_view book);
  [[nodiscard]] bool write_book(std::string_view old_text, std::string_view text);

  Files& files_;
  BackupTexts texts_;
  std::string book_file_;
  std::string folder_;
  std::string record_path_;
  std::string list_path_;
  // What `begin` has done so far.
  std::string copy_;  // the name of the copy
  std::optional<std::string> old_record_;
  std::optional<std::string> old_list_;
};

}  // namespace quenda
