#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "sources/lost_characters.h"

namespace quenda {

/// Unicode characters as Windows-1252, one after another.
class CharacterConversion {
 public:
  /// What to write for a character. Where an accent makes one letter with the one before it, that
  /// letter stands in place of the last character written.
  struct Written {
    std::string_view text;
    bool replaces_last = false;
  };

  /// `last` is the last character written, `record` the one that a loss is counted for. The result
  /// is good until the next call.
  Written convert(char32_t character, char last, std::size_t record, LostCharacters& losses);
  /// Nothing stands before the next character.
  void begin() { before_ = 0; }

 private:
  char32_t before_ = 0;
  char letter_ = 0;
};

/// A text of unknown encoding as Windows-1252: UTF-8 if it is some throughout, else it is taken as
/// it stands.
std::string text_to_1252(std::string_view text, std::size_t record, LostCharacters& losses);

}  // namespace quenda
