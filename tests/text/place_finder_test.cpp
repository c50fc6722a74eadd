#include "text/place_finder.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quenda {
namespace {

TEST(PlaceFinder, FindsEachPlaceWhereverBlocksBeginAndEnd) {
  std::mt19937 random(1);
  for (std::size_t size = 0; size < 80; ++size) {
    std::string text(size + 1, '\0');
    for (char& c : text) c = "ab;\"\n\xFF"[random() % 6];
    // Behind the text stands a character that is looked for.
    text.back() = ';';
    const std::string_view seen = std::string_view(text).substr(0, size);
    std::vector<std::size_t> expected;
    for (auto at = seen.find_first_of(";\"\xFF"); at != seen.npos;
         at = seen.find_first_of(";\"\xFF", at + 1)) {
      expected.push_back(at);
    }
    std::vector<std::size_t> found;
    PlaceFinder finder(seen, ';', '"', '\xFF');
    for (auto at = finder.next(); at < size; at = finder.next()) found.push_back(at);
    EXPECT_EQ(found, expected) << text;
    EXPECT_EQ(finder.next(), size);
    // The same where what stands behind the text may be read.
    PlaceFinder reading(seen, ';', '"', '\xFF');
    text.append(ByteBlock::kSize, ';');
    reading = PlaceFinder(std::string_view(text).substr(0, size), ';', '"', '\xFF');
    reading.allow_reading(text.size());
    found.clear();
    for (auto at = reading.next(); at < size; at = reading.next()) found.push_back(at);
    EXPECT_EQ(found, expected) << text;
  }
}

TEST(PlaceFinder, LetsTheTextInFrontOfAPlaceBeChanged) {
  std::string text = "aa;aaaaaaaaaaaaaaaaaaaaaaaaaaa;a;";
  PlaceFinder finder(text, ';');
  std::vector<std::size_t> found;
  for (auto at = finder.next(); at < text.size(); at = finder.next()) {
    found.push_back(at);
    text.replace(0, at, at, ';');
  }
  EXPECT_EQ(found, (std::vector<std::size_t>{2, 30, 32}));
}

}  // namespace
}  // namespace quenda
