#include "text/entry_text.h"

#include <gtest/gtest.h>

namespace quenda {
namespace {

TEST(EntryText, HasNoLineBreaksAndNoSeparators) {
  EXPECT_EQ(without_line_breaks("a;b\r\nc\nd\re"), "a;b c d e");
  EXPECT_EQ(entry_text("Weg 1;\r\nHof"), "Weg 1, Hof");
  EXPECT_EQ(entry_number("030;12\r\n3"), "03012 3");
}

}  // namespace
}  // namespace quenda
