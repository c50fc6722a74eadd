#pragma once

#include <string_view>

namespace quenda {

/// What becomes of a character that Windows-1252 lacks.
struct NearestLetters {
  enum class Loss {
    kNone,     // nothing that can be seen: zero-width characters, marks of direction
    kChanged,  // letters stand in for it
    kLost,     // nothing could
  };
  std::string_view text;  // Windows-1252
  Loss loss = Loss::kNone;
};

/// The nearest letters of a character, for Greek and Cyrillic the usual transcription ("Zhukov"),
/// nothing for emoji, else "?". `before` is the character before it: some letters are read by
/// pairs.
NearestLetters nearest_letters(char32_t character, char32_t before);

/// Whether a character is an accent of the letter before it.
constexpr bool is_combining_mark(char32_t character) {
  return character >= 0x300 && character < 0x370;
}

/// The Windows-1252 letter that a letter and the accent behind it make, 0 for none.
char composed_letter(char letter, char32_t mark);

}  // namespace quenda
