#include "book/report_cells.h"

#include <array>
#include <bit>
#include <cstring>

#include "text/code_page_1252.h"

namespace quenda {
namespace {

/// What is written for a character.
struct Letter {
  std::array<char, 7> bytes{};
  std::uint8_t size = 0;

  constexpr void add(std::size_t byte) { bytes.at(size++) = static_cast<char>(byte); }
};
static_assert(sizeof(Letter) == 8);

constexpr Letter utf8_letter(unsigned char character) {
  const char32_t code_point = unicode_of_1252(character);
  constexpr auto kTail = [](char32_t bits) { return 0x80U | (bits & 0x3FU); };
  Letter letter;
  if (code_point < 0x80) {
    letter.add(code_point);
  } else if (code_point < 0x800) {
    letter.add(0xC0U | (code_point >> 6U));
    letter.add(kTail(code_point));
  } else {
    letter.add(0xE0U | (code_point >> 12U));
    letter.add(kTail(code_point >> 6U));
    letter.add(kTail(code_point));
  }
  return letter;
}

constexpr Letter csv_letter(unsigned char character) {
  Letter letter = utf8_letter(character);
  if (character == '"') letter.add('"');
  return letter;
}

constexpr Letter json_letter(unsigned char character) {
  constexpr std::string_view kHex = "0123456789abcdef";
  const bool escaped = character == '"' || character == '\\';
  if (character >= 0x20 && character != 0x7F && !escaped) return utf8_letter(character);
  Letter letter;
  letter.add('\\');
  if (escaped) {
    letter.add(character);
  } else {
    for (const char c : {'u', '0', '0', kHex[character >> 4U], kHex[character & 0xFU]}) {
      letter.add(static_cast<unsigned char>(c));
    }
  }
  return letter;
}

/// How each character is written.
class Spelling {
 public:
  constexpr explicit Spelling(Letter (*letter_of)(unsigned char)) {
    for (std::size_t code = 0; code < letters_.size(); ++code) {
      letters_.at(code) = letter_of(static_cast<unsigned char>(code));
    }
  }

  [[nodiscard]] std::size_t size_of(std::string_view text) const {
    std::size_t bytes = 0;
    for (const char c : text) bytes += (*this)[c].size;
    return bytes;
  }

  char* put(char* to, std::string_view text) const {
    for (const char c : text) {
      const Letter& letter = (*this)[c];
      // All of it, since that is one instruction.
      std::memcpy(to, &letter, sizeof letter);
      to += letter.size;
    }
    return to;
  }

 private:
  const Letter& operator[](char c) const { return letters_[static_cast<unsigned char>(c)]; }

  std::array<Letter, 256> letters_;
};

constexpr Spelling kCsv(csv_letter);
constexpr Spelling kJson(json_letter);

/// What a cell needs: nothing, letters beyond ASCII, or quotes, maybe with such letters.
enum class CellKind { kPlain, kForeign, kQuoted };

struct CellLook {
  CellKind kind = CellKind::kPlain;
  std::size_t plain = 0;  // where the first letter beyond ASCII stands, if there are any
};

/// Whole blocks are read.
CellLook look_at(const char* cell, std::size_t size) {
  constexpr std::size_t kSize = ByteBlock::kSize;
  CellLook look;
  for (std::size_t at = 0; at < size; at += kSize) {
    const ByteBlock bytes = ByteBlock::load(cell + at);
    const ByteBlock breaking =
        bytes.equal_to(';') | bytes.equal_to('"') | bytes.equal_to('\r') | bytes.equal_to('\n');
    const std::uint32_t own = size - at < kSize ? (1U << (size - at)) - 1 : ~0U;
    const std::uint32_t found = (bytes | breaking).top_bits() & own;
    if (found == 0) continue;
    if ((breaking.top_bits() & own) != 0) return {CellKind::kQuoted, 0};
    if (look.kind == CellKind::kPlain) {
      look = {CellKind::kForeign, at + static_cast<std::size_t>(std::countr_zero(found))};
    }
  }
  return look;
}

}  // namespace

std::size_t size_in_csv(std::string_view text) { return kCsv.size_of(text); }
std::size_t size_in_json(std::string_view text) { return kJson.size_of(text); }

char* put_csv_quoted(char* to, std::string_view text) { return kCsv.put(to, text); }

char* put_csv_cell(char* to, std::string_view text) {
  // As it stands at first, since most cells stay so.
  char* const end = put(to, text);
  const CellLook look = look_at(to, text.size());
  if (look.kind == CellKind::kPlain) return end;
  if (look.kind == CellKind::kForeign) return kCsv.put(to + look.plain, text.substr(look.plain));
  *to++ = '"';
  to = kCsv.put(to, text);
  *to++ = '"';
  return to;
}

char* put_json_text(char* to, std::string_view text) {
  *to++ = '"';
  to = kJson.put(to, text);
  *to++ = '"';
  return to;
}

}  // namespace quenda
