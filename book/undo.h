#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What an import leaves behind so that it can be taken back: where the copy of the book lies, what
// the book looked like afterwards, and which lines the import added or replaced.
namespace quenda {

/// One entry that the import wrote, as the lines of the book without their CR LF.
struct BookLineChange {
  std::string before;  // the line that it replaced; empty for an added entry
  std::string after;
  friend bool operator==(const BookLineChange&, const BookLineChange&) = default;
};

struct UndoRecord {
  std::string copy;            // name of the file beside this record that holds the book before
  std::uint64_t size = 0;      // of the book after the import
  std::uint64_t checksum = 0;  // the same
  std::vector<BookLineChange> changes;
};

/// A checksum that tells two books apart; not against malice.
[[nodiscard]] std::uint64_t book_checksum(std::string_view text);

/// Whether the book still is what the import left.
[[nodiscard]] bool untouched_since(const UndoRecord& record, std::string_view book);

/// The record as the text of a file, and back. Nothing comes back from a text that is no record, or
/// that was cut off.
[[nodiscard]] std::string undo_text(const UndoRecord& record);
[[nodiscard]] std::optional<UndoRecord> read_undo_text(std::string_view text);

/// A book from which the import has been taken back.
struct TakenBack {
  std::string book;
  std::size_t taken = 0;               // entries removed or set back
  std::vector<std::string> untouched;  // lines of the import that the book no longer has as written
};

/// Takes the import's entries out of a book that others have changed since: an added line goes, a
/// replaced one comes back in its place. A line that has been changed meanwhile stays and is named.
[[nodiscard]] TakenBack take_back(std::string_view book, const UndoRecord& record);

}  // namespace quenda
