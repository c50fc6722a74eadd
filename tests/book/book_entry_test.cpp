#include "book/book_entry.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "support/fault.h"

namespace quenda {
namespace {

std::string rewritten(std::string_view line) {
  std::string text;
  append_book_line(text, read_book_line(line));
  return text;
}

TEST(BookLine, IsReadFieldByField) {
  const BookEntry entry = read_book_line("A;1;x;True;7;False;Street;keep;[vcd(abc;def)vcd]");
  EXPECT_EQ(entry.Name, "A");
  EXPECT_EQ(entry.Number, "1");
  EXPECT_EQ(entry.Tag, "x");
  EXPECT_TRUE(entry.Flag1);
  EXPECT_EQ(entry.Count, 7);
  EXPECT_FALSE(entry.Flag2);
  EXPECT_EQ(entry.Address, "Street");
  EXPECT_EQ(entry.Extra, "keep");
  EXPECT_EQ(entry.CardData, "abc;def");
}

struct RewriteCase {
  std::string_view line;
  std::string_view rewritten;
};
void PrintTo(const RewriteCase& c, std::ostream* out) { *out << c.line; }

class RewrittenBookLine : public testing::TestWithParam<RewriteCase> {};

TEST_P(RewrittenBookLine, HasNumbersForFlagsAndNoExtra) {
  EXPECT_EQ(rewritten(GetParam().line), std::string(GetParam().rewritten) + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Lines, RewrittenBookLine,
    testing::Values(
        RewriteCase{"A;1;x;True;7;False;Street;keep;[vcd(abc;def)vcd]",
                    "A;1;x;-1;7;0;Street;;[vcd(abc;def)vcd]"},
        RewriteCase{"A;1;;wahr;-7;2;S;", "A;1;;-1;-7;-1;S;;[vcd()vcd]"},
        RewriteCase{"A;1;0;0;2,5;-0;S;;[vcd(x", "A;1;0;0;2;0;S;;[vcd()vcd]"},
        RewriteCase{"A;1;0;0;3,5;0;S;;rest", "A;1;0;0;4;0;S;;[vcd()vcd]"},
        RewriteCase{"[vcd(n)vcd];1;0;0;0;0;S;;[vcd(x)vcd]", "[vcd(n)vcd];1;0;0;0;0;S;;[vcd(n)vcd]"},
        RewriteCase{")vcd];1;0;0;0;0;S;;[vcd(x)vcd]y", ")vcd];1;0;0;0;0;S;;[vcd(x)vcd]"}));

struct FaultCase {
  std::string_view line;
  int fault;
};
void PrintTo(const FaultCase& c, std::ostream* out) { *out << c.line; }

class FaultyBookLine : public testing::TestWithParam<FaultCase> {};

TEST_P(FaultyBookLine, IsAFault) {
  try {
    read_book_line(GetParam().line);
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), GetParam().fault);
  }
}

INSTANTIATE_TEST_SUITE_P(Lines, FaultyBookLine,
                         testing::Values(FaultCase{"A;1;0;0;0;0;S", kFaultIndexRange},
                                         FaultCase{"A;1;0;ja;0;0;S;", kFaultTypeMismatch},
                                         FaultCase{"A;1;0;;0;0;S;", kFaultTypeMismatch},
                                         FaultCase{"A;1;0;0;x;0;S;", kFaultTypeMismatch},
                                         FaultCase{"A;1;0;0;32768;0;S;", kFaultOverflow},
                                         FaultCase{")vcd];1;0;0;0;0;S;;[vcd(", kFaultInvalidCall}));

}  // namespace
}  // namespace quenda
