#include "book/undo.h"

#include <charconv>
#include <map>
#include <utility>

#include "text/text.h"
#include "text/view_index.h"

namespace quenda {
namespace {

constexpr std::string_view kTitle = "Quenda import, to be taken back";
constexpr std::string_view kEnd = "end";
constexpr std::size_t kHeadLines = 4;

std::optional<std::uint64_t> read_number(std::string_view text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::uint64_t book_checksum(std::string_view text) { return hash_of(text); }

bool untouched_since(const UndoRecord& record, std::string_view book) {
  return book.size() == record.size && book_checksum(book) == record.checksum;
}

std::string undo_text(const UndoRecord& record) {
  std::string text = concat(kTitle, kCrLf, record.copy, kCrLf, std::to_string(record.size), kCrLf,
                            std::to_string(record.checksum), kCrLf);
  for (const BookLineChange& change : record.changes) {
    if (!change.before.empty()) text += concat("-", change.before, kCrLf);
    text += concat("+", change.after, kCrLf);
  }
  return concat(text, kEnd, kCrLf);
}

std::optional<UndoRecord> read_undo_text(std::string_view text) {
  const std::vector<std::string_view> lines = split(text, kCrLf);
  // The last line is ended, too, so that a record that was cut off anywhere is not taken for whole.
  if (lines.size() < kHeadLines + 2 || lines[0] != kTitle || lines[lines.size() - 2] != kEnd ||
      !lines.back().empty()) {
    return std::nullopt;
  }
  const auto size = read_number(lines[2]);
  const auto checksum = read_number(lines[3]);
  if (!size || !checksum) return std::nullopt;
  UndoRecord record{std::string(lines[1]), *size, *checksum, {}};
  std::string before;
  for (std::size_t i = kHeadLines; i + 2 < lines.size(); ++i) {
    const std::string_view line = lines[i];
    if (line.starts_with('-') && before.empty()) {
      before = line.substr(1);
    } else if (line.starts_with('+')) {
      record.changes.push_back({std::exchange(before, {}), std::string(line.substr(1))});
    } else {
      return std::nullopt;
    }
  }
  if (!before.empty()) return std::nullopt;
  return record;
}

TakenBack take_back(std::string_view book, const UndoRecord& record) {
  std::multimap<std::string_view, const BookLineChange*> wanted;
  for (const BookLineChange& change : record.changes) wanted.emplace(change.after, &change);
  TakenBack result;
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
  for (const auto& [line, change] : wanted) result.untouched.emplace_back(line);
  return result;
}

}  // namespace quenda
