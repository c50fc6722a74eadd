// The texts that the program asks for, as its sources name them: a key that the table lacks would
// show nothing, one that nobody asks for would be translated in vain.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "settings/language_keys.h"

namespace quenda {
namespace {

namespace fs = std::filesystem;

bool is_key(std::string_view text) {
  constexpr std::string_view kFamilies[] = {"Import_",   "Button_", "String_",  "Message_",
                                            "Settings_", "Menu_",   "Journal_", "Multiline_"};
  return text.find_first_of(" ,.()\n") == std::string_view::npos &&
         std::any_of(std::begin(kFamilies), std::end(kFamilies),
                     [&](std::string_view family) { return text.starts_with(family); });
}

void collect_keys(const fs::path& file, std::set<std::string, std::less<>>& keys) {
  std::ifstream in(file, std::ios::binary);
  for (std::string piece; std::getline(in, piece, '"');) {
    if (is_key(piece)) keys.insert(piece);
  }
}

std::set<std::string, std::less<>> keys_in_sources() {
  std::set<std::string, std::less<>> keys;
  for (const char* folder : {"app", "book", "settings", "sources", "support", "wizard"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(QUENDA_SOURCE_DIR) / folder)) {
      const fs::path& file = entry.path();
      const bool source = file.extension() == ".cpp" || file.extension() == ".h";
      if (source && file.filename() != "language_keys.h") collect_keys(file, keys);
    }
  }
  return keys;
}

TEST(LanguageKeys, AreThoseThatTheProgramAsksFor) {
  std::set<std::string, std::less<>> asked = keys_in_sources();
  asked.erase("Import_ShellEx");  // a name in the trace log
  // The words in the list of delimiters are fixed; language files have them all the same.
  asked.insert({"Import_String_Semicolon", "Import_String_Comma", "Import_String_Tabulator"});
  std::set<std::string, std::less<>> known;
  for (const LanguageKey& entry : kLanguageKeys) known.emplace(entry.key);
  EXPECT_EQ(asked, known);
}

}  // namespace
}  // namespace quenda
