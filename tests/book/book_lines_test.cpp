#include "book/book_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "book/book_scanner.h"
#include "tests/shared/fault_of.h"

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

TEST(BookScanner, FindsTheSameAsALookAtEachLine) {
  constexpr std::string_view kPieces[] = {"Ida;030;0;0;7;0;Weg 1;;[vcd()vcd]\r\n",
                                          "Ida (2) [x];030;0;-1;0;0;;;[vcd(N:a;b[c)d)vcd]\r\n",
                                          "\r\n",
                                          "Ida;030;0;0;7;0;W",
                                          "\n",
                                          "\r",
                                          "[vcd(",
                                          ")vcd]",
                                          ";",
                                          "True",
                                          "\r\n\r\n",
                                          " ",
                                          "Li;1;0;0;0;0;;;"};
  unsigned seed = 7;
  const auto below = [&](std::size_t limit) {
    seed = seed * 1664525U + 1013904223U;
    return (seed >> 16U) % limit;
  };
  for (unsigned round = 0; round < 4000; ++round) {
    std::string book;
    for (std::size_t pieces = below(12); pieces > 0; --pieces) {
      book += kPieces[below(3) == 0 ? below(std::size(kPieces)) : below(2)];
    }
    const LineEnd end = line_end_of(book);
    BookLines expected(book, end);
    BookScanner scanner(book, end);
    for (std::string_view wanted, line; expected.next(wanted); line = {}) {
      ASSERT_TRUE(scanner.next(line)) << book;
      ASSERT_EQ(line, wanted) << book;
      ASSERT_EQ(line.data(), wanted.data()) << book;
      ExaminedLine simple;
      ExaminedLine scanned;
      const int fault = fault_of([&] { simple = examine_book_line(wanted); });
      ASSERT_EQ(fault_of([&] { scanned = scanner.examined(); }), fault) << line;
      EXPECT_EQ(scanned.number, simple.number) << line;
      EXPECT_EQ(scanned.plain, simple.plain) << line;
    }
    std::string_view line;
    EXPECT_FALSE(scanner.next(line)) << book;
  }
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
