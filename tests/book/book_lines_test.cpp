#include "book/book_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quenda {
namespace {

std::vector<std::string> lines_of(std::string_view text) {
  BookLines lines(text, line_end_of(text));
  std::vector<std::string> found;
  for (std::string_view line; lines.next(line);) found.emplace_back(line);
  return found;
}

TEST(BookLines, EndAtCrLfWhereTheBookHasAny) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines_of("a\nb\r\n\r\nc\rd"), (Lines{"a\nb", "", "c\rd"}));
  EXPECT_EQ(lines_of("[vcd(a\nb)vcd]"), Lines{"[vcd(a\nb)vcd]"});
}

TEST(BookLines, EndAtTheLineFeedsOutsideOfCardsOtherwise) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines_of("a[vcd(1\n2)vcd]\nb\n\nc\rd\n"), (Lines{"a[vcd(1\n2)vcd]", "b", "", "c\rd"}));
  // A card that is never closed keeps no line feed from ending its line.
  EXPECT_EQ(lines_of("a[vcd(1\nb[vcd(2)vcd]\n"), (Lines{"a[vcd(1", "b[vcd(2)vcd]"}));
}

TEST(BookLines, TwoEntriesInALineAreFound) {
  const std::string a = "A;1;0;0;0;0;x;;[vcd(c)vcd]";
  const std::string b = "B;2;0;0;0;0;;";
  const std::pair<std::string, std::size_t> cases[] = {
      {a + "\r\n" + b + "\r\n", 0},
      {a + "\n" + b, 0},
      {a + "\r\n" + a + "\n" + b + "\r\n", 2},
      {"\r\n" + a + "\r\n" + a + "\r" + b, 3},
      {a + "\r" + b, 1},
      {a + "\n" + a + "\r" + b + "\n", 2},
      {a + "\r\n" + b + "\n\n" + b, 3},
      {a + "\r\n" + b + "\n", 0},                       // nothing follows
      {a + "\r\n" + "New\nName" + b + "\r\n", 0},       // inside a name
      {a + "\r\n" + b + "\n[vcd(;;;;;;;)vcd]\r\n", 0},  // before a card
      {a + "\r\n" + b + "[vcd(" + b + "\n" + b + ")vcd]\r\n", 0},
  };
  for (const auto& [book, line] : cases) {
    EXPECT_EQ(line_of_joined_entries(book, line_end_of(book), count_line_breaks(book)), line)
        << book;
  }
}

}  // namespace
}  // namespace quenda
