#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quenda {

/// What a contact card stands between.
inline constexpr std::string_view kCardOpen = "[vcd(";
inline constexpr std::string_view kCardClose = ")vcd]";

/// The fields of a line: name, number, tag, first flag, count, second flag, address, extra.
using BookFields = std::array<std::string_view, 8>;

/// One entry of the phone book. The texts are views into the text that the entry was read from.
struct BookEntry {
  std::string_view Name;
  std::string_view Number;  // the key; an entry without a number is not written
  std::string_view Tag = "0";
  std::string_view Address;
  std::string_view Extra;
  std::string_view CardData;  // what stands between "[vcd(" and ")vcd]"
  std::int16_t Count = 0;
  bool Flag1 = false;
  bool Flag2 = false;
};

/// The entry on a line of the book. Faults: 9 fewer than eight fields, 13 a flag or count that is
/// no such value, 6 a count beyond 16 bits, 5 a card block that is not closed.
BookEntry read_book_line(std::string_view line);

/// What the merge has to know of every line.
struct ExaminedLine {
  std::string_view number;
  bool plain = false;  // the line is what `append_book_line` makes of its entry
};

/// Looks a line over without making an entry of it; the faults are those of `read_book_line`.
ExaminedLine examine_book_line(std::string_view line);
/// The same for a line that is split already. `ends_plainly`: nothing stands behind the address but
/// an empty field and the card.
ExaminedLine examine_fields(const BookFields& fields, bool ends_plainly);

/// What two entries of one number are compared by.
struct BookContact {
  std::string_view name;
  std::string_view address;
};

/// Parts of the line at the front of a text that has passed `examine_book_line`.
std::string_view book_line_number(std::string_view text);
BookContact book_line_contact(std::string_view text);

/// Adds the entry's line, with its CR LF, to the text. `Extra` is not written: the tool leaves that
/// field empty whatever the book held there. Nothing is escaped; a ";" inside a text shifts the
/// fields of the line.
void append_book_line(std::string& text, const BookEntry& entry);
/// The same for an entry that has nothing but name, number and address.
void append_new_book_line(std::string& text, std::string_view name_and_number,
                          std::string_view address);
/// Bytes that this one adds.
std::size_t new_book_line_size(std::string_view name_and_number, std::string_view address);

}  // namespace quenda
