#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "book/book_entry.h"
#include "book/book_lines.h"
#include "text/flat_table.h"
#include "text/steps.h"

namespace quenda {

/// The entries that the merge works with: those of the book, in the order of its lines, and behind
/// them the rows of the final list. The list holds places in the two texts, some 13 bytes an entry;
/// a `BookEntry` is made when somebody asks for it.
class BookList {
 public:
  /// The texts have to live as long as the list, and stay as they are.
  BookList(std::string_view book, LineEnd end, const FlatTable& rows)
      : book_(book), end_(end), rows_(rows) {}

  /// Reads the book. `line` is the line being read, for the report of a fault; the faults are those
  /// of `read_book_line`. `on_step` is told of the characters that have been read. `lines`: how
  /// many the book has, where that is known.
  void read_book(std::string_view& line, const OnStep& on_step, std::size_t lines = 0);
  /// Adds the rows of the final list.
  void add_rows(const OnStep& on_step);

  [[nodiscard]] std::size_t size() const { return marks_.size(); }
  /// How many of the entries are the book's.
  [[nodiscard]] std::size_t in_book() const { return in_book_; }
  [[nodiscard]] std::string_view number(std::size_t entry) const;
  [[nodiscard]] std::uint32_t hash_of_number(std::size_t entry) const { return hashes_[entry]; }
  [[nodiscard]] BookContact contact(std::size_t entry) const;
  /// Announces that number and contact of an entry are going to be asked for.
  void announce(std::size_t entry) const;
  /// The name alone.
  [[nodiscard]] std::string_view name(std::size_t entry) const;
  /// The line of an entry of the book, as it stands there.
  [[nodiscard]] std::string_view line(std::size_t entry) const;
  /// Whether an entry is written as a row of the final list alone makes it.
  [[nodiscard]] bool is_new(std::size_t entry) const {
    return entry >= in_book_ && marks_[entry] == Mark::kComposed;
  }
  /// Name and number of a row, with the ";" between them.
  [[nodiscard]] std::string_view name_and_number(std::size_t entry) const;
  /// The entry as it is written, with what it has taken over.
  [[nodiscard]] BookEntry entry(std::size_t entry) const;

  /// Whether an entry is written. One without a number never is.
  [[nodiscard]] bool written(std::size_t entry) const { return marks_[entry] != Mark::kDropped; }
  void drop(std::size_t entry) { marks_[entry] = Mark::kDropped; }
  /// Drops an entry for a later one, which takes over its `Tag` and `Count`. The later ones have to
  /// come in their order.
  void replace(std::size_t entry, std::size_t later);

  /// Whether an entry, written anew, gives the bytes that stand in the book from its start up to
  /// the start of the next one.
  [[nodiscard]] bool plain(std::size_t entry) const { return marks_[entry] == Mark::kPlain; }
  /// Where an entry of the book begins in its text; for the first row, where the text ends.
  [[nodiscard]] std::size_t start(std::size_t entry) const {
    return entry < in_book_ ? places_[entry] : book_.size();
  }

 private:
  enum class Mark : std::uint8_t { kPlain, kComposed, kInherits, kDropped };
  /// An entry that has the `Tag` and `Count` of another one.
  struct Inheritance {
    std::uint32_t heir;
    std::uint32_t from;
  };

  void add(std::string_view number, Mark mark);
  void compose_last() {
    if (marks_.back() == Mark::kPlain) marks_.back() = Mark::kComposed;
  }
  [[nodiscard]] BookEntry own_entry(std::size_t entry) const;
  [[nodiscard]] std::size_t row(std::size_t entry) const { return entry - in_book_; }
  /// Whose `Tag` and `Count` an entry has; its own place for one that has inherited nothing.
  [[nodiscard]] std::size_t source_of_tag(std::size_t entry) const;

  std::string_view book_;
  LineEnd end_;
  const FlatTable& rows_;
  std::size_t in_book_ = 0;
  std::vector<std::uint32_t> places_;  // of the book's entries in its text, which has 2 GB at most
  std::vector<std::uint32_t> hashes_;  // of the numbers
  std::vector<Mark> marks_;
  std::vector<Inheritance> inheritances_;  // in the order of the heirs
};

}  // namespace quenda
