#include "sources/file_facts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "sources/unicode_text.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kBeginning = 4096;

/// What a pass over all bytes finds. The flags are bytes so that the compiler makes vector
/// instructions of the loop.
struct ByteFlags {
  unsigned char high = 0;      // bit 7: bytes from 0x80 up
  unsigned char nul = 0;       // NUL bytes
  unsigned char pair = 0;      // CR LF
  unsigned char lone_lf = 0;   // LF without a CR before it
  unsigned char lone_cr = 0;   // CR without a LF behind it
  unsigned char sequence = 0;  // two bytes that may be part of a character of UTF-8
  unsigned char broken = 0;    // a byte that UTF-8 does not have there
};

constexpr std::size_t kLanes = 32;
constexpr std::size_t kBlock = kLanes * 64;

using Lanes = std::array<unsigned char, kLanes>;

unsigned char any_of_lanes(const Lanes& lanes) {
  unsigned char any = 0;
  for (const unsigned char lane : lanes) any = static_cast<unsigned char>(any | lane);
  return any;
}

constexpr unsigned char flag(bool condition) { return condition ? 1 : 0; }

/// Looks at the bytes from `bytes` on, `count` of them a multiple of the lanes; there is one byte
/// before them.
void look_at_lines(const unsigned char* bytes, std::size_t count, ByteFlags& flags) {
  Lanes high{};
  Lanes nul{};
  Lanes pair{};
  Lanes lone_lf{};
  Lanes lone_cr{};
  for (std::size_t at = 0; at < count; at += kLanes) {
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const unsigned char byte = bytes[at + lane];
      const unsigned char before = (bytes - 1)[at + lane];
      const unsigned char lf = flag(byte == '\n');
      const unsigned char cr = flag(before == '\r');
      high[lane] = static_cast<unsigned char>(high[lane] | byte);
      nul[lane] = static_cast<unsigned char>(nul[lane] | flag(byte == 0));
      pair[lane] = static_cast<unsigned char>(pair[lane] | (lf & cr));
      lone_lf[lane] = static_cast<unsigned char>(lone_lf[lane] | (lf & ~cr));
      lone_cr[lane] = static_cast<unsigned char>(lone_cr[lane] | (cr & ~lf));
    }
  }
  flags.high = static_cast<unsigned char>(flags.high | (any_of_lanes(high) & 0x80U));
  flags.nul = static_cast<unsigned char>(flags.nul | any_of_lanes(nul));
  flags.pair = static_cast<unsigned char>(flags.pair | any_of_lanes(pair));
  flags.lone_lf = static_cast<unsigned char>(flags.lone_lf | any_of_lanes(lone_lf));
  flags.lone_cr = static_cast<unsigned char>(flags.lone_cr | any_of_lanes(lone_cr));
}

/// The same for UTF-8; there are three bytes before.
void look_at_characters(const unsigned char* bytes, std::size_t count, ByteFlags& flags) {
  Lanes sequence{};
  Lanes broken{};
  for (std::size_t at = 0; at < count; at += kLanes) {
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const unsigned char byte = bytes[at + lane];
      const unsigned char first = (bytes - 1)[at + lane];
      const unsigned char second = (bytes - 2)[at + lane];
      const unsigned char third = (bytes - 3)[at + lane];
      const unsigned char follows = flag((byte & 0xC0U) == 0x80U);
      const auto wanted = static_cast<unsigned char>(flag(first >= 0xC2) | flag(second >= 0xE0) |
                                                     flag(third >= 0xF0));
      const auto never =
          static_cast<unsigned char>(flag((byte & 0xFEU) == 0xC0U) | flag(byte >= 0xF5));
      sequence[lane] = static_cast<unsigned char>(sequence[lane] | (follows & wanted));
      broken[lane] = static_cast<unsigned char>(broken[lane] | (follows ^ wanted) | never);
    }
  }
  flags.sequence = static_cast<unsigned char>(flags.sequence | any_of_lanes(sequence));
  flags.broken = static_cast<unsigned char>(flags.broken | any_of_lanes(broken));
}

void look_at_block(const unsigned char* bytes, std::size_t count, ByteFlags& flags) {
  const auto high_before = std::exchange(flags.high, static_cast<unsigned char>(0));
  look_at_lines(bytes, count, flags);
  // A block behind one with letters may begin within one.
  const bool look = (flags.high | bytes[-1] | bytes[-2] | bytes[-3]) >= 0x80;
  const bool decided = flags.sequence != 0 && flags.broken != 0;
  if (look && !decided) look_at_characters(bytes, count, flags);
  flags.high = static_cast<unsigned char>(flags.high | high_before);
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
    flags.high = 0x80;
    text.remove_suffix(cut);
  }
  // The beginning and the end are looked at in a copy: there have to be bytes before the first one,
  // and whole lanes up to the last. The blanks around them tell nothing.
  constexpr std::size_t kMargin = 4;
  const auto look_at_copy = [&](std::size_t at, std::size_t size) {
    std::array<unsigned char, kMargin + kBlock> copy{};
    copy.fill(' ');
    const std::size_t before = std::min(at, kMargin);
    std::copy_n(text.data() + (at - before), before + size, copy.data() + (kMargin - before));
    look_at_block(copy.data() + kMargin, kBlock, flags);
  };
  std::size_t at = 0;
  if (text.size() >= kBlock) {
    look_at_copy(0, kBlock);
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    for (at = kBlock; text.size() - at >= kBlock; at += kBlock) {
      look_at_block(bytes + at, kBlock, flags);
    }
  }
  look_at_copy(at, text.size() - at);
  return flags;
}

LineEnds line_ends_of(const ByteFlags& flags) {
  const int kinds = flags.pair + flags.lone_lf + flags.lone_cr;
  if (kinds == 0) return LineEnds::kNone;
  if (kinds > 1) return LineEnds::kMixed;
  if (flags.pair != 0) return LineEnds::kCrAndLf;
  return flags.lone_lf != 0 ? LineEnds::kLf : LineEnds::kCr;
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
  if (flags.high == 0) return FileEncoding::kAscii;
  if (flags.sequence == 0 || first_likely_letter(text) == text.size()) {
    return FileEncoding::kWindows1252;
  }
  return flags.broken != 0 ? FileEncoding::kMixed : FileEncoding::kUtf8;
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
    if (lf && cr) flags.pair = 1;
    if (lf && !cr) flags.lone_lf = 1;
    if (!lf && cr) flags.lone_cr = 1;
    cr = unit(at) == '\r';
  }
  if (cr) flags.lone_cr = 1;
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
  facts.nul_bytes = flags.nul != 0;
  facts.encoding = facts.mark && flags.broken == 0 ? FileEncoding::kUtf8 : encoding_of(text, flags);
  look_at_sep_line(text, facts);
  const std::string_view header = first_line(text.substr(0, kBeginning)).first;
  facts.labelled = header.find("Phone 1 - Value") != header.npos;
  if (facts.encoding == FileEncoding::kUtf8 || facts.encoding == FileEncoding::kMixed) {
    facts.sample = word_around(text, first_likely_letter(text));
  }
  return facts;
}

}  // namespace quenda
