#include "book/undo.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>
#include <utility>

#include "book/book_list.h"
#include "book/merge_account.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kTitle = "Quenda import, to be taken back";
constexpr std::string_view kEnd = "end";
constexpr std::size_t kHeadLines = 7;

bool read_number(std::string_view text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

std::string mark_text(const BookMark& mark) {
  return concat(std::to_string(mark.size), kCrLf, std::to_string(mark.checksum), kCrLf);
}

bool read_head(const std::vector<std::string_view>& lines, UndoHead& head) {
  head.when = lines[1];
  head.copy = lines[2];
  return lines[0] == kTitle && read_number(lines[3], head.before.size) &&
         read_number(lines[4], head.before.checksum) && read_number(lines[5], head.after.size) &&
         read_number(lines[6], head.after.checksum);
}

}  // namespace

void BookMark::add(std::string_view part) {
  constexpr std::uint64_t kFactor = 0x100000001B3U;
  size += part.size();
  for (const char c : part) checksum = (checksum ^ static_cast<unsigned char>(c)) * kFactor;
}

BookMark mark_of(std::string_view book) {
  BookMark mark;
  mark.add(book);
  return mark;
}

UndoText::UndoText(const UndoHead& head)
    : text_(concat(kTitle, kCrLf, head.when, kCrLf, head.copy, kCrLf, mark_text(head.before),
                   mark_text(head.after))) {}

void UndoText::add(const BookLineChange& change) {
  if (!change.before.empty()) text_ += concat("-", change.before, kCrLf);
  text_ += concat("+", change.after, kCrLf);
}

void UndoText::add_merged(const BookList& list, const MergeAccount& account) {
  std::string line;
  for (std::size_t entry = list.in_book(); entry < list.size(); ++entry) {
    if (!list.written(entry)) continue;
    const auto replaced = account.of(entry - list.in_book()).existing;
    line.clear();
    append_book_line(line, list.entry(entry));
    line.resize(line.size() - kCrLf.size());
    add({replaced ? list.line(*replaced) : std::string_view(), line});
  }
}

std::string UndoText::finish() && {
  text_ += concat(kEnd, kCrLf);
  return std::move(text_);
}

std::optional<UndoRecord> read_undo_text(std::string_view text) {
  const std::vector<std::string_view> lines = split(text, kCrLf);
  // The last line is ended, too, so that a record that was cut off anywhere is not taken for whole.
  if (lines.size() < kHeadLines + 2 || lines[lines.size() - 2] != kEnd || !lines.back().empty()) {
    return std::nullopt;
  }
  UndoRecord record;
  if (!read_head(lines, record.head)) return std::nullopt;
  std::string_view before;
  record.changes.reserve(lines.size() - kHeadLines);
  for (std::size_t i = kHeadLines; i + 2 < lines.size(); ++i) {
    const std::string_view line = lines[i];
    if (line.starts_with('-') && before.empty()) {
      before = line.substr(1);
    } else if (line.starts_with('+')) {
      record.changes.push_back({std::exchange(before, {}), line.substr(1)});
    } else {
      return std::nullopt;
    }
  }
  if (!before.empty()) return std::nullopt;
  return record;
}

TakenBack take_back(std::string_view book, const std::vector<BookLineChange>& changes) {
  std::unordered_map<std::string_view, const BookLineChange*> wanted;
  wanted.reserve(changes.size());
  for (const BookLineChange& change : changes) wanted.emplace(change.after, &change);
  TakenBack result;
  result.book.reserve(book.size());
  while (!book.empty()) {
    const auto end = book.find(kCrLf);
    const std::string_view line = book.substr(0, end);
    const std::string_view whole = end == book.npos ? book : book.substr(0, end + kCrLf.size());
    book.remove_prefix(whole.size());
    const auto found = wanted.find(line);
    if (found == wanted.end()) {
      result.book += whole;
      continue;
    }
    if (!found->second->before.empty()) result.book += concat(found->second->before, kCrLf);
    ++result.taken;
    wanted.erase(found);
  }
  for (const BookLineChange& change : changes) {
    if (wanted.contains(change.after)) result.untouched.push_back(change.after);
  }
  return result;
}

}  // namespace quenda
