#include "book/book_entry.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

#include "tests/shared/fault_of.h"

namespace quenda {
namespace {

TEST(BookLine, IsWrittenWithNumbersForFlagsAndWithoutExtra) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"A;1;x;True;7;False;Street;keep;[vcd(abc;def)vcd]",
       "A;1;x;-1;7;0;Street;;[vcd(abc;def)vcd]"},
      {"A;1;;wahr;-7;2;S;", "A;1;;-1;-7;-1;S;;[vcd()vcd]"},
      {"A;1;0;0;2,5;-0;S;;[vcd(x", "A;1;0;0;2;0;S;;[vcd()vcd]"},
      {"A;1;0;0;3,5;0;S;;rest", "A;1;0;0;4;0;S;;[vcd()vcd]"},
      {"[vcd(n)vcd];1;0;0;0;0;S;;[vcd(x)vcd]", "[vcd(n)vcd];1;0;0;0;0;S;;[vcd(n)vcd]"},
      {")vcd];1;0;0;0;0;S;;[vcd(x)vcd]y", ")vcd];1;0;0;0;0;S;;[vcd(x)vcd]"},
  };
  for (const auto& [line, rewritten] : cases) {
    std::string text;
    append_book_line(text, read_book_line(line));
    EXPECT_EQ(text, std::string(rewritten) + "\r\n") << line;
  }
  EXPECT_EQ(read_book_line(cases[0].first).Extra, "keep");
}

TEST(BookLine, OfANewEntryIsThatOfAnEntryWithNothingElse) {
  BookEntry entry;
  entry.Name = "Falk";
  entry.Number = "030";
  entry.Address = "Weg 1";
  std::string usual;
  append_book_line(usual, entry);
  std::string quick;
  append_new_book_line(quick, "Falk;030", "Weg 1");
  EXPECT_EQ(quick, usual);
}

TEST(BookLine, IsPlainWhenWrittenAnewItIsTheSame) {
  const std::string_view fields = "A (b) [c];1;x;-1;7;0;Street";
  const std::pair<std::string_view, bool> ends[] = {
      {";;[vcd()vcd]", true},   {";;[vcd(a;b)c[vcd(d)vcd]", true},
      {";;[vcd()vcd] ", false}, {";;[vcd()vcd])vcd]", false},
      {";x;[vcd()vcd]", false}, {"; ;[vcd()vcd]", false},
      {";;[vcd(", false},       {";;", false},
      {";;x[vcd()vcd]", false}, {";[vcd()vcd];[vcd()vcd]", false}};
  for (const auto& [end, plain] : ends) {
    const std::string line = std::string(fields).append(end);
    const ExaminedLine examined = examine_book_line(line);
    EXPECT_EQ(examined.number, "1");
    EXPECT_EQ(examined.plain, plain) << line;
    std::string text;
    append_book_line(text, read_book_line(line));
    EXPECT_EQ(text == line + "\r\n", plain) << line;
  }
}

TEST(BookLine, IsAFaultWhenFieldsAreMissingOrNoValues) {
  const std::pair<std::string_view, int> cases[] = {
      {"A;1;0;0;0;0;S", kFaultIndexRange},    {"A;1;0;ja;0;0;S;", kFaultTypeMismatch},
      {"A;1;0;;0;0;S;", kFaultTypeMismatch},  {"A;1;0;0;x;0;S;", kFaultTypeMismatch},
      {"A;1;0;0;32768;0;S;", kFaultOverflow}, {")vcd];1;0;0;0;0;S;;[vcd(", kFaultInvalidCall}};
  for (const auto& [line, number] : cases) {
    EXPECT_EQ(fault_of([&, text = line] { read_book_line(text); }), number) << line;
    EXPECT_EQ(fault_of([&, text = line] { examine_book_line(text); }), number) << line;
  }
}

}  // namespace
}  // namespace quenda
