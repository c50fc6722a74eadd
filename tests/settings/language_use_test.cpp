// The texts that the program asks for, as its sources name them: a key that the table lacks would
// show nothing, one that nobody asks for would be translated in vain.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "settings/language_keys.h"

namespace quenda {
namespace {

namespace fs = std::filesystem;

void collect_keys(const fs::path& file, std::set<std::string>& keys) {
  static const std::regex key(
      R"re("((Import|Button|String|Message|Settings|Menu|Journal|Multiline)_\w+)")re");
  std::ifstream in(file, std::ios::binary);
  const std::string source{std::istreambuf_iterator<char>(in), {}};
  for (std::sregex_iterator at(source.begin(), source.end(), key), end; at != end; ++at) {
    keys.insert((*at)[1]);
  }
}

std::set<std::string> keys_in_sources() {
  std::set<std::string> keys;
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
  std::set<std::string> asked = keys_in_sources();
  asked.erase("Import_ShellEx");  // a name in the trace log
  // The words in the list of delimiters are fixed; language files have them all the same.
  asked.insert({"Import_String_Semicolon", "Import_String_Comma", "Import_String_Tabulator"});
  std::set<std::string> known;
  for (const LanguageKey& entry : kLanguageKeys) known.emplace(entry.key);
  EXPECT_EQ(asked, known);
}

}  // namespace
}  // namespace quenda
