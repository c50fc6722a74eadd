#include "sources/file_facts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "sources/unicode_text.h"
#include "text/byte_block.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kBeginning = 4096;

/// What a pass over all bytes finds.
struct ByteFlags {
  bool high = false;      // bytes from 0x80 up
  bool nul = false;       // NUL bytes
  bool pair = false;      // CR LF
  bool lone_lf = false;   // LF without a CR before it
  bool lone_cr = false;   // CR without a LF behind it
  bool sequence = false;  // two bytes that may be part of a character of UTF-8
  bool broken = false;    // a byte that UTF-8 does not have there
};

constexpr std::size_t kBlock = ByteBlock::kSize * 128;

ByteBlock nothing() { return ByteBlock::filled_with('\0'); }
bool any(ByteBlock bytes) { return bytes.top_bits() != 0; }

/// Looks at the bytes from `bytes` on, `count` of them a multiple of a block's; there is one byte
/// before them.
void look_at_lines(const char* bytes, std::size_t count, ByteFlags& flags) {
  ByteBlock high = nothing();
  ByteBlock nul = nothing();
  ByteBlock pair = nothing();
  ByteBlock lone_lf = nothing();
  ByteBlock lone_cr = nothing();
  for (std::size_t at = 0; at < count; at += ByteBlock::kSize) {
    const ByteBlock block = ByteBlock::load(bytes + at);
    const ByteBlock lf = block.equal_to('\n');
    const ByteBlock cr = ByteBlock::load(bytes + at - 1).equal_to('\r');
    high = high | block;
    nul = nul | block.equal_to('\0');
    pair = pair | (lf & cr);
    lone_lf = lone_lf | lf.without(cr);
    lone_cr = lone_cr | cr.without(lf);
  }
  flags.high = flags.high || any(high);
  flags.nul = flags.nul || any(nul);
  flags.pair = flags.pair || any(pair);
  flags.lone_lf = flags.lone_lf || any(lone_lf);
  flags.lone_cr = flags.lone_cr || any(lone_cr);
}

/// The same for UTF-8; there are three bytes before.
void look_at_characters(const char* bytes, std::size_t count, ByteFlags& flags) {
  ByteBlock sequence = nothing();
  ByteBlock broken = nothing();
  const ByteBlock all = ByteBlock::filled_with('\xFF');
  for (std::size_t at = 0; at < count; at += ByteBlock::kSize) {
    const ByteBlock block = ByteBlock::load(bytes + at);
    const ByteBlock first = ByteBlock::load(bytes + at - 1);
    const ByteBlock second = ByteBlock::load(bytes + at - 2);
    const ByteBlock third = ByteBlock::load(bytes + at - 3);
    const ByteBlock follows = block.up_to('\xBF').without(block.up_to('\x7F'));
    const ByteBlock wanted =
        all.without(first.up_to('\xC1') & second.up_to('\xDF') & third.up_to('\xEF'));
    const ByteBlock never =
        block.up_to('\xC1').without(block.up_to('\xBF')) | all.without(block.up_to('\xF4'));
    sequence = sequence | (follows & wanted);
    broken = broken | follows.without(wanted) | wanted.without(follows) | never;
  }
  flags.sequence = flags.sequence || any(sequence);
  flags.broken = flags.broken || any(broken);
}

/// The same where a broken byte has been found already: only whether there is a sequence is open,
/// for which the first byte of a character has to have one behind it.
void look_for_sequence(const char* bytes, std::size_t count, ByteFlags& flags) {
  ByteBlock sequence = nothing();
  for (std::size_t at = 0; at < count; at += ByteBlock::kSize) {
    const ByteBlock block = ByteBlock::load(bytes + at);
    const ByteBlock follows = block & block.up_to('\xBF');
    const ByteBlock no_first = ByteBlock::load(bytes + at - 1).up_to('\xC1');
    sequence = sequence | follows.without(no_first);
  }
  flags.sequence = flags.sequence || any(sequence);
}

void look_at_block(const char* bytes, std::size_t count, ByteFlags& flags) {
  const bool high_before = std::exchange(flags.high, false);
  look_at_lines(bytes, count, flags);
  // A block behind one with letters may begin within one.
  const bool within = std::any_of(bytes - 3, bytes, [](char c) { return (c & '\x80') != 0; });
  if (flags.high || within) {
    if (!flags.broken) {
      look_at_characters(bytes, count, flags);
    } else if (!flags.sequence) {
      look_for_sequence(bytes, count, flags);
    }
  }
  flags.high = flags.high || high_before;
}

/// Bytes at the end of a text that begin a character of UTF-8 and do not finish it.
std::size_t cut_off_bytes(std::string_view text) {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
    const auto byte = static_cast<unsigned char>(text[text.size() - back]);
    if ((byte & 0xC0U) == 0x80U) continue;
    const std::size_t wanted = byte < 0xC2 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    return wanted > back ? back : 0;
  }
  return 0;
}

ByteFlags look_at_bytes(std::string_view text) {
  ByteFlags flags;
  // A character cut off by the end of the file is no reason to doubt.
  if (const std::size_t cut = cut_off_bytes(text); cut > 0) {
    flags.high = true;
    text.remove_suffix(cut);
  }
  // The beginning and the end are looked at in a copy: there have to be bytes before the first one,
  // and whole lanes up to the last. The blanks around them tell nothing.
  constexpr std::size_t kMargin = 4;
  const auto look_at_copy = [&](std::size_t at, std::size_t size) {
    std::array<char, kMargin + kBlock> copy{};
    copy.fill(' ');
    const std::size_t before = std::min(at, kMargin);
    std::copy_n(text.data() + (at - before), before + size, copy.data() + (kMargin - before));
    look_at_block(copy.data() + kMargin, kBlock, flags);
  };
  std::size_t at = 0;
  if (text.size() >= kBlock) {
    look_at_copy(0, kBlock);
    for (at = kBlock; text.size() - at >= kBlock; at += kBlock) {
      look_at_block(text.data() + at, kBlock, flags);
    }
  }
  look_at_copy(at, text.size() - at);
  return flags;
}

LineEnds line_ends_of(const ByteFlags& flags) {
  const int kinds = (flags.pair ? 1 : 0) + (flags.lone_lf ? 1 : 0) + (flags.lone_cr ? 1 : 0);
  if (kinds == 0) return LineEnds::kNone;
  if (kinds > 1) return LineEnds::kMixed;
  if (flags.pair) return LineEnds::kCrAndLf;
  return flags.lone_lf ? LineEnds::kLf : LineEnds::kCr;
}

/// Position of the first character of UTF-8 that contacts are written with, or the end.
std::size_t first_likely_letter(std::string_view text) {
  for (std::size_t at = skip_ascii(text, 0); at < text.size(); at = skip_ascii(text, at)) {
    const DecodedCharacter character = decode_utf8(text, at);
    if (character.size > 0 && is_likely_letter(character.code_point)) return at;
    at += std::max<std::size_t>(character.size, 1);
  }
  return text.size();
}

FileEncoding encoding_of(std::string_view text, const ByteFlags& flags) {
  if (!flags.high) return FileEncoding::kAscii;
  if (!flags.sequence || first_likely_letter(text) == text.size()) {
    return FileEncoding::kWindows1252;
  }
  return flags.broken ? FileEncoding::kMixed : FileEncoding::kUtf8;
}

/// Western texts in UTF-16 have a zero byte in every other place: in which one tells the order.
FileEncoding utf16_of(std::string_view text) {
  if (text.starts_with("\xFF\xFE")) return FileEncoding::kUtf16Little;
  if (text.starts_with("\xFE\xFF")) return FileEncoding::kUtf16Big;
  const std::string_view sample = text.substr(0, 512);
  std::array<std::size_t, 2> zeros{};
  for (std::size_t at = 0; at < sample.size(); ++at) {
    if (sample[at] == '\0') ++zeros.at(at % 2);
  }
  if ((zeros[0] + zeros[1]) * 3 <= sample.size()) return FileEncoding::kAscii;
  return zeros[0] > zeros[1] ? FileEncoding::kUtf16Big : FileEncoding::kUtf16Little;
}

/// The line ends of a text in UTF-16, and whether it is more than ASCII does not matter.
LineEnds utf16_line_ends(std::string_view text, bool big_endian) {
  ByteFlags flags;
  const auto unit = [&](std::size_t at) {
    const auto first = static_cast<unsigned char>(text[at]);
    const auto second = static_cast<unsigned char>(text[at + 1]);
    return big_endian ? first * 0x100U + second : second * 0x100U + first;
  };
  bool cr = false;
  for (std::size_t at = 0; at + 1 < text.size(); at += 2) {
    const bool lf = unit(at) == '\n';
    if (lf && cr) flags.pair = true;
    if (lf && !cr) flags.lone_lf = true;
    if (!lf && cr) flags.lone_cr = true;
    cr = unit(at) == '\r';
  }
  if (cr) flags.lone_cr = true;
  return line_ends_of(flags);
}

bool starts_ignoring_case(std::string_view text, std::string_view with) {
  return equal_ignoring_case(text.substr(0, with.size()), with);
}

/// The first line with something in it, and what follows it.
std::pair<std::string_view, std::string_view> first_line(std::string_view text) {
  const auto begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  text.remove_prefix(begin);
  const auto end = std::min(text.find_first_of("\r\n"), text.size());
  return {text.substr(0, end), text.substr(end)};
}

/// Sections in brackets or ended by colons, fields separated by "#".
bool is_section_file(std::string_view line, std::string_view rest) {
  if (line.empty() || line.find_first_of(";,\t\"") != line.npos) return false;
  if (line.front() == '[' && line.back() == ']') return true;
  const std::string_view second = first_line(rest).first;
  return line.back() == ':' && second.find('#') != second.npos;
}

FileKind text_kind(std::string_view beginning) {
  const auto [line, rest] = first_line(beginning);
  if (starts_ignoring_case(line, "BEGIN:VCARD")) return FileKind::kVcard;
  if (starts_ignoring_case(line, "<!doctype html") || starts_ignoring_case(line, "<html") ||
      starts_ignoring_case(line, "<table")) {
    return FileKind::kHtml;
  }
  if (starts_ignoring_case(line, "<?xml")) {
    return to_lower(rest).find("<html") != std::string::npos ? FileKind::kHtml : FileKind::kXml;
  }
  const bool tag = line.size() > 1 && line[0] == '<' && line.back() == '>';
  if (tag) return FileKind::kXml;
  const bool version = starts_ignoring_case(line, "version: ");
  if (starts_ignoring_case(version ? first_line(rest).first : line, "dn:")) return FileKind::kLdif;
  if (is_section_file(line, rest)) return FileKind::kSections;
  return FileKind::kTable;
}

FileKind zip_kind(std::string_view bytes) {
  // The names of the parts stand at the beginning of each and in the list at the end.
  constexpr std::size_t kList = 64UL * 1024;
  const std::string_view beginning = bytes.substr(0, kBeginning);
  const std::string_view list = bytes.substr(bytes.size() - std::min(bytes.size(), kList));
  const auto names = [&](std::string_view part) {
    return beginning.find(part) != beginning.npos || list.find(part) != list.npos;
  };
  if (names("application/vnd.oasis.opendocument")) return FileKind::kOpenDocument;
  return names("xl/") ? FileKind::kWorkbook : FileKind::kZip;
}

FileKind kind_of(std::string_view bytes, const FileFacts& facts) {
  if (bytes.starts_with("PK\x03\x04")) return zip_kind(bytes);
  if (bytes.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")) return FileKind::kOldWorkbook;
  if (bytes.starts_with("%PDF-")) return FileKind::kPdf;
  const std::string_view beginning = bytes.substr(0, kBeginning);
  const std::string_view text = beginning.substr(mark_length(beginning));
  if (!facts.is_utf16()) return text_kind(text);
  return text_kind(utf16_to_utf8(text, facts.encoding == FileEncoding::kUtf16Big));
}

void look_at_sep_line(std::string_view text, FileFacts& facts) {
  constexpr std::string_view kSep = "sep=";
  const std::string_view line = text.substr(0, std::min(text.find_first_of("\r\n"), text.size()));
  if (!starts_ignoring_case(line, kSep) || line.size() > kSep.size() + 1) return;
  facts.sep_line = true;
  const std::string_view named = line.substr(kSep.size());
  if (named == ";" || named == "," || named == "\t") facts.sep_delimiter = named[0];
}

/// The word around a letter beyond ASCII.
std::string word_around(std::string_view text, std::size_t at) {
  constexpr std::size_t kLongest = 24;
  const auto in_word = [](char c) {
    const char lower = to_lower(c);
    return static_cast<unsigned char>(c) >= 0x80 || (lower >= 'a' && lower <= 'z');
  };
  if (at >= text.size()) return {};
  std::size_t begin = at;
  while (begin > 0 && in_word(text[begin - 1])) --begin;
  std::size_t end = at;
  while (end < text.size() && in_word(text[end])) ++end;
  const std::string_view word = text.substr(begin, end - begin);
  return word.size() > kLongest ? std::string() : std::string(word);
}

}  // namespace

bool is_likely_letter(char32_t character) {
  return (character >= 0xA0 && character < 0x250) || (character >= 0x300 && character < 0x530) ||
         (character >= 0x1E00 && character < 0x2130) || character >= 0x3000;
}

std::size_t mark_length(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return 3;
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ? 2 : 0;
}

FileFacts look_at_file(std::string_view bytes) {
  FileFacts facts;
  facts.mark = mark_length(bytes) > 0;
  facts.encoding = utf16_of(bytes);
  facts.kind = kind_of(bytes, facts);
  if (!facts.readable()) return facts;
  const std::string_view text = bytes.substr(mark_length(bytes));
  if (facts.is_utf16()) {
    const bool big = facts.encoding == FileEncoding::kUtf16Big;
    facts.line_ends = utf16_line_ends(text, big);
    look_at_sep_line(utf16_to_utf8(text.substr(0, 16), big), facts);
    return facts;
  }
  const ByteFlags flags = look_at_bytes(text);
  facts.line_ends = line_ends_of(flags);
  facts.nul_bytes = flags.nul;
  facts.encoding = facts.mark && !flags.broken ? FileEncoding::kUtf8 : encoding_of(text, flags);
  look_at_sep_line(text, facts);
  const std::string_view header = first_line(text.substr(0, kBeginning)).first;
  facts.labelled = header.find("Phone 1 - Value") != header.npos;
  if (facts.encoding == FileEncoding::kUtf8 || facts.encoding == FileEncoding::kMixed) {
    facts.sample = word_around(text, first_likely_letter(text));
  }
  return facts;
}

}  // namespace quenda
