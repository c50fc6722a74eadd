#include "book/book_change.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "book/entry_list.h"
#include "text/text.h"

namespace quenda {
namespace {

const auto kNoStep = [](auto, auto) {};

/// A book without doubles, and rows behind it.
class ComposeBook : public testing::Test {
 protected:
  /// What the file holds after the change.
  std::string change(const std::string& book, const std::vector<std::size_t>& dropped = {}) {
    std::string_view line;
    BookList list(book, line_end_of(book), rows_);
    list.read_book(line, kNoStep);
    list.add_rows(kNoStep);
    for (const std::size_t entry : dropped) list.drop(entry);
    const OnStep no_step = kNoStep;
    const BookChange result(book, list, no_step);
    keep_ = result.keep();
    std::string file = book.substr(0, keep_);
    result.tell(0, result.size(), [&](std::string_view part) { file += part; });
    expect_any_part(result, std::string_view(file).substr(keep_));
    return file;
  }

  /// Each part can be asked for by itself, as where old lines are overwritten.
  static void expect_any_part(const BookChange& change, std::string_view whole) {
    EXPECT_EQ(change.size(), whole.size());
    const std::size_t step = whole.size() / 7 + 1;
    for (std::size_t from = 0; from < whole.size(); from += step) {
      for (std::size_t to = from; to <= whole.size(); to += step) {
        std::string part;
        change.tell(from, to, [&](std::string_view text) { part += text; });
        EXPECT_TRUE(part == whole.substr(from, to - from)) << from << " to " << to;
      }
    }
  }

  FlatTable rows_{kEntryColumns};
  std::uint64_t keep_ = 0;
};

const std::string kFirst = "A;1;0;0;0;0;;;[vcd()vcd]\r\n";
const std::string kSecond = "B;2;x;-1;7;0;Ort;;[vcd(x;y)vcd]\r\n";
const std::string kBook = kFirst + kSecond;

TEST_F(ComposeBook, AppendsWhenNothingElseChanges) {
  rows_.add_row(std::array<std::string_view, 3>{"C", "3", "Weg"});
  EXPECT_EQ(change(kBook), kBook + "C;3;0;0;0;0;Weg;;[vcd()vcd]\r\n");
  EXPECT_EQ(keep_, kBook.size());
}

TEST_F(ComposeBook, KeepsWhatStandsBeforeTheFirstChangedByte) {
  const std::string old_text = kFirst + "B;2;0;0;0;0;;keep;[vcd(x)vcd]\r\n";
  EXPECT_EQ(change(old_text), kFirst + "B;2;0;0;0;0;;;[vcd(x)vcd]\r\n");
  EXPECT_EQ(keep_, old_text.find("keep"));
}

TEST_F(ComposeBook, EmptyLinesGo) {
  EXPECT_EQ(change(kBook + "\r\n\r\n"), kBook);
  EXPECT_EQ(keep_, kBook.size());
  EXPECT_EQ(change("\r\n" + kFirst + "\r\n" + kSecond), kBook);
  EXPECT_EQ(change(kBook.substr(0, kBook.size() - 2)), kBook) << "the last line gets its CR LF";
}

TEST_F(ComposeBook, LeavesOutWhatIsDropped) {
  EXPECT_EQ(change(kBook + "E;;0;0;0;0;;;[vcd()vcd]\r\n", {0}), kSecond);
}

TEST_F(ComposeBook, EveryLineThatIsNotPlainIsWrittenAnew) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"A;1;0;00;0;0;;;[vcd()vcd]", "A;1;0;0;0;0;;;[vcd()vcd]"},
      {"A;1;0;0;07;0;;;[vcd()vcd]", "A;1;0;0;7;0;;;[vcd()vcd]"},
      {"A;1;0;0;-0;0;;;[vcd()vcd]", "A;1;0;0;0;0;;;[vcd()vcd]"},
      {"A;1;0;0;0;True;;;[vcd()vcd]", "A;1;0;0;0;-1;;;[vcd()vcd]"},
      {"A;1;0;0;0;0;;;", "A;1;0;0;0;0;;;[vcd()vcd]"},
      {"A;1;0;0;0;0;;;[vcd(x", "A;1;0;0;0;0;;;[vcd()vcd]"},
      {"A;1;0;0;0;0;;;[vcd(x)vcd]y", "A;1;0;0;0;0;;;[vcd(x)vcd]"},
      {"A;1;0;0;0;0;;;y[vcd(x)vcd]", "A;1;0;0;0;0;;;[vcd(x)vcd]"},
      {"A;1;0;0;0;0;;;[vcd(x)vcd];)vcd]", "A;1;0;0;0;0;;;[vcd(x)vcd]"},
      {"[vcd(;1;0;0;0;0;;;[vcd(x)vcd]", "[vcd(;1;0;0;0;0;;;[vcd(;1;0;0;0;0;;;[vcd(x)vcd]"},
      {"A;1;0;0;-32768;0;;;[vcd()vcd]", "A;1;0;0;-32768;0;;;[vcd()vcd]"},
  };
  for (const auto& [line, rewritten] : cases) {
    EXPECT_EQ(change(concat(kFirst, line, "\r\n", kSecond)),
              concat(kFirst, rewritten, "\r\n", kSecond));
  }
}

TEST_F(ComposeBook, LongRunsAndManyBlocksHoldTogether) {
  std::string run;
  while (run.size() < 100'000) run += concat("N", std::to_string(run.size()), kFirst.substr(1));
  const std::string old_text = kFirst + run + "C;3;0;0;07;0;;;\r\n" + run;
  EXPECT_EQ(change(old_text, {0}), run + "C;3;0;0;7;0;;;[vcd()vcd]\r\n" + run);
  const std::string name(1'500'000, 'n');
  std::string lines;
  for (const std::string_view number : {"5", "6", "7", "8"}) {
    rows_.add_row(std::array<std::string_view, 3>{name, number, ""});
    lines += concat(name, ";", number, ";0;0;0;0;;;[vcd()vcd]\r\n");
  }
  EXPECT_EQ(change(kBook), kBook + lines);
}

}  // namespace
}  // namespace quenda
