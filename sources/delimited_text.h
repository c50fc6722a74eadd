#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sources/record_table.h"
#include "sources/source_lines.h"
#include "text/steps.h"

// The rules of delimited contact files: which delimiter a file uses, how quotes are taken out, and
// how its text becomes records.
namespace quenda {

/// The delimiters that the tool knows, in the order of the choice list.
inline constexpr std::array<char, 3> kDelimiters = {';', ',', '\t'};

/// The columns of a file are counted in 16 bits.
inline constexpr std::size_t kMostFields = 32767;

/// How often each delimiter occurs in a file, and how many line breaks (CR characters) it has.
struct DelimiterCounts {
  std::array<std::size_t, kDelimiters.size()> of{};
  std::size_t line_breaks = 0;
};

DelimiterCounts count_delimiters(std::string_view text);

/// Position of the delimiter that occurs more often than each of the others; -1 on a tie.
int choose_delimiter(const DelimiterCounts& counts);

/// Whether a delimiter occurs at least as often as there are line breaks in the whole file. The
/// test is meant to be this weak: not every line needs the delimiter.
bool delimiter_acceptable(const DelimiterCounts& counts, int delimiter);

/// The lines of a text, split at every CR LF; nothing for a text without CR LF. A text that ends
/// with CR LF has an empty last line.
RecordTable split_lines(std::shared_ptr<const std::string> text);

/// Takes every pair of adjacent double quotes out, in place: an escaped quote inside a quoted field
/// disappears, and an empty quoted field becomes an empty field. `pause` is called every megabyte.
void remove_doubled_quotes(
    std::string& text, const std::function<void()>& pause = [] {});

/// Cuts a text without doubled quotes into records. Inside quotes that follow a delimiter, line
/// breaks become blanks and delimiters "|"; a quote that opens the first field of a line protects
/// nothing there, but such a field is put together again with "|". The quotes stay in the records.
/// A lone LF is dropped, so that a file with LF line ends becomes one record; a record cut off by
/// the end of the file gets a surplus delimiter at its end. `expected`, where it is known, makes
/// room for that many records.
RecordTable build_records(std::string text, char delimiter, const OnStep& on_step,
                          std::size_t expected = 0);

/// In which line of its file each record begins, for a text as it was read. CR LF, a lone LF and a
/// lone CR each end a line, also inside quotes; a record begins behind the break that ended the one
/// before it. `records` is how many the text has given.
SourceLines lines_of_records(std::string text, char delimiter, std::size_t records);
/// The same for the lines of a call log, which end at CR LF.
SourceLines lines_of_log(std::string_view text);

/// Gives every record at least as many delimiters as the header has. Fault 6 when a record, or the
/// header, has more than 32767; the records before it are padded then.
void pad_records(RecordTable& records, char delimiter, const OnStep& on_step);

/// A field as the user reads it: without quotes, and with the delimiter where "|" stands for it.
std::string shown_field(std::string_view field, char delimiter);

/// The fields of a record as the user reads them. Of more than can be columns only one is among
/// them: a file whose lines do not end is one record.
std::vector<std::string> shown_fields(std::string_view record, char delimiter);

/// Whether a path names a call log: its lower-cased text has "ispy.log" at the end, and nowhere
/// before.
bool is_ispy_log(std::string_view path);

}  // namespace quenda
