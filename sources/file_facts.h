#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What a file says about itself, before anything is read from it.
namespace quenda {

enum class FileKind {
  kTable,  // delimited text, or what may be some
  kVcard,
  // Only to be named:
  kWorkbook,
  kOldWorkbook,
  kOpenDocument,
  kZip,
  kLdif,
  kSections,
  kXml,
  kHtml,
  kPdf,
};

enum class FileEncoding { kAscii, kWindows1252, kUtf8, kUtf16Little, kUtf16Big, kMixed };

enum class LineEnds { kNone, kCrAndLf, kLf, kCr, kMixed };

struct FileFacts {
  FileKind kind = FileKind::kTable;
  FileEncoding encoding = FileEncoding::kAscii;
  LineEnds line_ends = LineEnds::kNone;
  bool mark = false;          // a byte order mark at the beginning
  bool sep_line = false;      // a first line "sep=" and a delimiter
  char sep_delimiter = 0;     // the one it names, 0 for none that the tool knows
  bool labelled = false;      // the kind of each number stands in a column of its own
  bool nul_bytes = false;     // in a text that is not UTF-16
  bool empty_column = false;  // the header ends with the delimiter, once that was asked
  bool odd_cells = false;  // fields that lose something (has_cells_to_adapt), once that was asked
  std::string sample;      // a word with a letter beyond ASCII, as its bytes stand in the file

  [[nodiscard]] bool is_utf16() const {
    return encoding == FileEncoding::kUtf16Little || encoding == FileEncoding::kUtf16Big;
  }
  /// Whether the tool can make entries of the file.
  [[nodiscard]] bool readable() const {
    return kind == FileKind::kTable || kind == FileKind::kVcard;
  }
};

/// Looks at the bytes of a file once. A mixture is a text that has both UTF-8 and bytes that are
/// none.
FileFacts look_at_file(std::string_view bytes);

/// Length of the byte order mark at the beginning of a file, 0 for none.
std::size_t mark_length(std::string_view bytes);

/// Whether a character is one that contacts are written with. UTF-8 for any other is more likely
/// Windows-1252 that looks like it by chance, such as a capital "Ü" before a quotation mark.
bool is_likely_letter(char32_t character);

}  // namespace quenda
