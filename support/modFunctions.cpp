#include "support/modFunctions.h"

#include "support/procedure.h"
#include "text/characters.h"

namespace quenda::modFunctions {

std::string fStringClear(clsErrorHandling& errors, std::string_view text,
                         std::string_view characters, std::string_view replacement) {
  std::string result;
  procedure(errors, "modFunctions.fStringClear", {text, characters, replacement}, [&] {
    result = strip_characters(text, characters, replacement);
  }).or_go_on();
  return result;
}

std::size_t fAnzahlZeichen(clsErrorHandling& errors, std::string_view text, std::string_view part) {
  std::size_t count = 0;
  procedure(errors, "modFunctions.fAnzahlZeichen", {part}, [&] {
    count = count_occurrences(text, part);
  }).or_go_on();
  return count;
}

}  // namespace quenda::modFunctions
