#include "book/book_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quenda {
namespace {

std::vector<BookEntry> entries_of(std::string_view text) {
  std::vector<BookEntry> entries;
  BookLines lines(text);
  for (std::string_view line; lines.next(line);) {
    if (!line.empty()) entries.push_back(read_book_line(line));
  }
  return entries;
}

BookChange change(std::string_view old_text, const std::vector<BookEntry>& entries) {
  return compose_book(old_text, entries, [](auto, auto) {});
}

TEST(BookLines, EndAtCrLfOnly) {
  BookLines lines("a\nb\r\n\r\nc\rd");
  std::vector<std::string> found;
  for (std::string_view line; lines.next(line);) found.emplace_back(line);
  EXPECT_EQ(found, (std::vector<std::string>{"a\nb", "", "c\rd"}));
}

constexpr std::string_view kBook = "A;1;0;0;0;0;;;[vcd()vcd]\r\nB;2;0;0;0;0;;;[vcd(x)vcd]\r\n";
constexpr std::string_view kNewLine = "C;3;0;0;0;0;;;[vcd()vcd]\r\n";

TEST(ComposeBook, AppendsWhenNothingElseChanges) {
  auto entries = entries_of(kBook);
  entries.push_back(read_book_line(kNewLine.substr(0, kNewLine.size() - 2)));
  const BookChange result = change(kBook, entries);
  EXPECT_EQ(result.keep, kBook.size());
  EXPECT_EQ(result.tail, kNewLine);
}

TEST(ComposeBook, KeepsWhatStandsBeforeTheFirstChangedByte) {
  const std::string old_text = "A;1;0;0;0;0;;;[vcd()vcd]\r\nB;2;0;0;0;0;;keep;[vcd(x)vcd]\r\n";
  const BookChange result = change(old_text, entries_of(old_text));
  EXPECT_EQ(old_text.substr(0, result.keep) + result.tail, kBook);
  EXPECT_EQ(result.keep, old_text.find("keep"));
}

TEST(ComposeBook, CutsWhatIsLeftOver) {
  const std::string old_text = std::string(kBook) + "\r\n\r\n";
  const BookChange result = change(old_text, entries_of(old_text));
  EXPECT_EQ(result.keep, kBook.size());
  EXPECT_EQ(result.tail, "");
}

TEST(ComposeBook, LeavesOutEntriesWithoutNumber) {
  auto entries = entries_of(kBook);
  entries[0].Number = {};
  const BookChange result = change(kBook, entries);
  EXPECT_EQ(std::string(kBook.substr(0, result.keep)) + result.tail,
            "B;2;0;0;0;0;;;[vcd(x)vcd]\r\n");
}

}  // namespace
}  // namespace quenda
