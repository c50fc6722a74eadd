#include "app/backup/book_backup.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "book/backup_names.h"
#include "book/unreadable_lines.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr int kMostTries = 4;

}  // namespace

BookBackup::BookBackup(Files& files, std::string_view book_file, BackupTexts texts)
    : files_(files),
      texts_(std::move(texts)),
      book_file_(book_file),
      folder_(concat(book_file.substr(0, book_file.rfind('\\') + 1), "backup")),
      record_path_(path("Quendabook.undo")),
      list_path_(path("Quendabook.list")) {}

std::string BookBackup::path(std::string_view name) const { return concat(folder_, "\\", name); }

std::string BookBackup::text_of(const std::string& path) const {
  return files_.has_file(path) ? files_.read(path) : std::string();
}

bool BookBackup::has_import() const { return files_.size(record_path_) > 0; }

std::string BookBackup::import_time() const {
  const std::string recorded = text_of(record_path_);
  const std::optional<UndoRecord> record = read_undo_text(recorded);
  return record ? record->head.when : std::string();
}

void BookBackup::put(const std::string& path, std::string_view old_text, std::string_view text) {
  const TailPieces tail({text});
  // What only some may read in the book is not for others here either.
  const ReplaceResult result = files_.replace_tail(
      path, {.old_text = old_text, .keep = 0, .tail = &tail, .rights_of = book_file_});
  if (result == ReplaceResult::kChangedMeanwhile) raise_fault(kFaultPermissionDenied);
}

void BookBackup::copy_book(const LocalTime& now, std::string_view book) {
  int nth = 1;
  std::string name = copy_name(now, nth);
  while (files_.has_file(path(name))) name = copy_name(now, ++nth);
  put(path(name), "", book);
  copy_ = name;
  // What came back from the disk has to be what the import is going to change.
  if (files_.read(path(name)) != book) raise_fault(kFaultInputOutput);
}

void BookBackup::begin(const LocalTime& now, std::string_view book, bool has_book,
                       const std::function<std::string(const std::string&)>& record_for) {
  try {
    files_.make_folder(folder_);
    if (has_book) {
      copy_book(now, book);
      old_list_ = text_of(list_path_);
      std::vector<std::string> names = read_copy_list(*old_list_);
      names.push_back(copy_);
      put(list_path_, *old_list_, copy_list_text(names));
    }
    old_record_ = text_of(record_path_);
    put(record_path_, *old_record_, record_for(copy_));
  } catch (const std::exception&) {
    const int number = current_fault().number();
    cancel();
    throw RuntimeFault(number, replace_all(texts_.not_saved, "%1", folder_));
  }
}

ReplaceResult BookBackup::carry_out(std::string_view book, int generations,
                                    const std::function<ReplaceResult()>& write) {
  try {
    const ReplaceResult result = write();
    if (result == ReplaceResult::kReplaced) {
      keep_generations(generations);
    } else {
      cancel();
    }
    return result;
  } catch (const RuntimeFault& fault) {
    throw RuntimeFault(fault.number(), concat(fault.addition(), cancel_or_point_out(book)));
  }
}

void BookBackup::put_back(const std::string& path, const std::string& old_text) {
  const std::string now = text_of(path);
  if (now == old_text) return;
  if (old_text.empty()) {
    files_.remove(path);
  } else {
    put(path, now, old_text);
  }
}

void BookBackup::cancel() {
  skip_faults({[&] {
                 if (old_record_) put_back(record_path_, *old_record_);
               },
               [&] {
                 if (old_list_) put_back(list_path_, *old_list_);
               },
               [&] {
                 if (!copy_.empty()) files_.remove(path(copy_));
               }});
}

std::string BookBackup::cancel_or_point_out(std::string_view book) {
  bool unchanged = false;
  skip_faults({[&] { unchanged = text_of(book_file_) == book; }});
  if (unchanged) {
    cancel();
    return {};
  }
  if (copy_.empty()) return {};
  return concat(" ", replace_all(texts_.copy_is, "%1", path(copy_)));
}

void BookBackup::keep_generations(int generations) {
  skip_faults({[&] {
    const std::string list = text_of(list_path_);
    std::vector<std::string> names = read_copy_list(list);
    const std::size_t drop = copies_to_drop(names.size(), generations);
    const auto old_ones = names.begin() + static_cast<std::ptrdiff_t>(drop);
    std::for_each(names.begin(), old_ones,
                  [this](const std::string& name) { files_.remove(path(name)); });
    // One that could not be deleted is tried again the next time.
    names.erase(
        std::remove_if(names.begin(), old_ones,
                       [this](const std::string& name) { return !files_.has_file(path(name)); }),
        old_ones);
    const std::string left = copy_list_text(names);
    if (left != list) put(list_path_, list, left);
  }});
}

BookBackup::Outcome BookBackup::without_import(const UndoRecord& record, const std::string& book,
                                               std::string& text) const {
  using End = Outcome::End;
  const BookMark now = mark_of(book);
  Outcome outcome{.end = End::kNothing, .when = record.head.when, .taken = 0, .untouched = {}};
  if (now == record.head.before) return outcome;
  if (now == record.head.after) {
    text = record.head.copy.empty() ? std::string() : text_of(path(record.head.copy));
    outcome.end = End::kRestored;
    outcome.taken = record.changes.size();
    if (mark_of(text) == record.head.before) return outcome;
    // The copy is gone or damaged; the record still has the entries.
  }
  TakenBack back = quenda::take_back(book, record.changes);
  text = std::move(back.book);
  outcome.taken = back.taken;
  outcome.untouched.assign(back.untouched.begin(), back.untouched.end());
  outcome.end = back.taken > 0 ? End::kPartly : End::kNothingLeft;
  return outcome;
}

bool BookBackup::write_book(std::string_view old_text, std::string_view text) {
  const std::size_t most = std::min(old_text.size(), text.size());
  const auto keep = static_cast<std::size_t>(
      std::mismatch(old_text.begin(), old_text.begin() + static_cast<std::ptrdiff_t>(most),
                    text.begin())
          .first -
      old_text.begin());
  const TailPieces tail({text.substr(keep)});
  return files_.replace_tail(book_file_, {.old_text = old_text,
                                          .keep = keep,
                                          .tail = &tail,
                                          .texts = texts_.book,
                                          .spoil = &make_unreadable}) == ReplaceResult::kReplaced;
}

BookBackup::Outcome BookBackup::take_back() {
  const std::string recorded = text_of(record_path_);
  if (recorded.empty()) return {};
  const std::optional<UndoRecord> record = read_undo_text(recorded);
  if (!record) {
    throw RuntimeFault(kFaultPathAccess, replace_all(texts_.record_damaged, "%1", folder_));
  }
  for (int tries = 0; tries < kMostTries; ++tries) {
    const std::string book = text_of(book_file_);
    std::string text;
    Outcome outcome = without_import(*record, book, text);
    if (outcome.end == Outcome::End::kNothingLeft) return outcome;
    if (outcome.end != Outcome::End::kNothing && !write_book(book, text)) continue;
    // A record that stays by a failure does no harm: its entries are not found a second time.
    skip_faults({[&] { put(record_path_, recorded, ""); }});
    return outcome;
  }
  throw RuntimeFault(kFaultPermissionDenied, texts_.keeps_changing);
}

}  // namespace quenda
