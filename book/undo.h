#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What an import leaves behind so that it can be taken back: where the copy of the book lies, what
// the book looked like before and afterwards, and which lines the import added or replaced.
namespace quenda {

class BookList;
class MergeAccount;

/// Tells one content of the book from another; not against malice.
struct BookMark {
  std::uint64_t size = 0;
  std::uint64_t checksum = 0xCBF29CE484222325U;
  /// More of the book, behind what has been added so far.
  void add(std::string_view part);
  friend bool operator==(const BookMark&, const BookMark&) = default;
};
[[nodiscard]] BookMark mark_of(std::string_view book);

struct UndoHead {
  std::string when;  // date and time of the import, for people
  std::string copy;  // name of the file that holds the book before; empty when there was none
  BookMark before;
  BookMark after;
};

/// One entry that the import wrote, as the lines of the book without their CR LF.
struct BookLineChange {
  std::string_view before;  // the line that it replaced; empty for an added entry
  std::string_view after;
  friend bool operator==(const BookLineChange&, const BookLineChange&) = default;
};

/// Composes the text of a record.
class UndoText {
 public:
  explicit UndoText(const UndoHead& head);
  void add(const BookLineChange& change);
  /// Every entry of the final list that the merge has put into the book.
  void add_merged(const BookList& list, const MergeAccount& account);
  /// The whole text; nothing can be added then.
  [[nodiscard]] std::string finish() &&;

 private:
  std::string text_;
};

/// A record as it was read; the changes are views into its text.
struct UndoRecord {
  UndoHead head;
  std::vector<BookLineChange> changes;
};
/// Nothing comes back from a text that is no record, or that was cut off.
[[nodiscard]] std::optional<UndoRecord> read_undo_text(std::string_view text);

/// A book from which the import has been taken back.
struct TakenBack {
  std::string book;
  std::size_t taken = 0;                    // entries removed or set back
  std::vector<std::string_view> untouched;  // the import's lines that the book lacks as written
};

/// Takes the import's entries out of a book that others have changed since: an added line goes, a
/// replaced one comes back in its place. A line that has been changed meanwhile stays and is named.
[[nodiscard]] TakenBack take_back(std::string_view book,
                                  const std::vector<BookLineChange>& changes);

}  // namespace quenda
