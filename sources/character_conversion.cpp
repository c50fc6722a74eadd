#include "sources/character_conversion.h"

#include <utility>

#include "sources/nearest_letters.h"
#include "sources/unicode_text.h"
#include "text/code_page_1252.h"

namespace quenda {

CharacterConversion::Written CharacterConversion::convert(char32_t character, char last,
                                                          std::size_t record,
                                                          LostCharacters& losses) {
  const char32_t before = std::exchange(before_, character);
  const bool control = character >= 0x80 && character < 0xA0;
  if (const int byte = control ? -1 : byte_1252_of(character); byte >= 0) {
    letter_ = static_cast<char>(byte);
    return {std::string_view(&letter_, 1)};
  }
  if (is_combining_mark(character)) {
    letter_ = composed_letter(last, character);
    if (letter_ != '\0') return {std::string_view(&letter_, 1), true};
  }
  const NearestLetters nearest = nearest_letters(character, before);
  if (nearest.loss == NearestLetters::Loss::kLost) losses.count_lost(record);
  if (nearest.loss == NearestLetters::Loss::kChanged) losses.count_changed(record);
  return {nearest.text};
}

std::string text_to_1252(std::string_view text, std::size_t record, LostCharacters& losses) {
  std::string out;
  out.reserve(text.size());
  CharacterConversion conversion;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t plain = skip_ascii(text, at);
    out.append(text.substr(at, plain - at));
    if (plain == text.size()) break;
    const DecodedCharacter character = decode_utf8(text, plain);
    if (character.size == 0) return std::string(text);
    const char last = out.empty() ? '\0' : out.back();
    const auto written = conversion.convert(character.code_point, last, record, losses);
    if (written.replaces_last) out.pop_back();
    out.append(written.text);
    at = plain + character.size;
  }
  return out;
}

}  // namespace quenda
