#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quenda {

/// A property of a vCard: "item1.TEL;TYPE=cell,voice:+49 171 1234567".
struct VcardProperty {
  std::string group;               // "item1", small letters
  std::string name;                // "TEL", capitals
  std::vector<std::string> types;  // small letters
  bool quoted_printable = false;
  bool base64 = false;
  bool latin = false;  // CHARSET of one byte per character
  std::string_view value;
};

/// Reads a property from an unfolded line. A line without a colon has no name.
VcardProperty read_vcard_property(std::string_view line);

/// Bytes behind "=XX" and soft line breaks.
std::string decode_quoted_printable(std::string_view text);

/// The parts of a value that are separated by ";", with "\n", "\," and the like put back. A list
/// within a part ("Hans,Peter") is joined by blanks.
std::vector<std::string> vcard_parts(std::string_view value);

/// The same for a value of one part, in which ";" and "," stand for themselves.
std::string vcard_text(std::string_view value);

/// The lines of a file as vCards mean them: folded ones in one piece.
class VcardLines {
 public:
  /// What is longer is cut off: pictures and notes, of which nothing is used.
  static constexpr std::size_t kLongest = 64UL * 1024;

  explicit VcardLines(std::string_view text) : text_(text) {}

  /// Reads the next line that is not empty; false at the end.
  bool next();
  [[nodiscard]] std::string_view line() const { return line_; }
  /// The physical line, from 1, in which it begins.
  [[nodiscard]] std::size_t number() const { return number_; }
  [[nodiscard]] std::size_t position() const { return at_; }

 private:
  std::string_view next_physical();
  [[nodiscard]] bool continued() const;
  void append(std::string_view part);

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t next_lf_ = 0;
  std::size_t physical_ = 0;
  std::size_t number_ = 0;
  std::string line_;
};

}  // namespace quenda
