#include "book/undo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const UndoRecord kRecord = {"Quendabook.b03", 5, 77, {{"", "A;1;+"}, {"B;2;-", "B b;2"}}};

TEST(UndoRecord, ComesBackFromItsText) {
  const auto read = read_undo_text(undo_text(kRecord));
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->copy, kRecord.copy);
  EXPECT_EQ(read->size, kRecord.size);
  EXPECT_EQ(read->checksum, kRecord.checksum);
  EXPECT_EQ(read->changes, kRecord.changes);
}

TEST(UndoRecord, ATextThatWasCutOffAnywhereIsNone) {
  const std::string text = undo_text(kRecord);
  for (std::size_t size = 0; size < text.size(); ++size) {
    EXPECT_FALSE(read_undo_text(text.substr(0, size)).has_value()) << size;
  }
  EXPECT_FALSE(read_undo_text(text + "more\r\n").has_value());
}

TEST(UndoRecord, KnowsTheBookThatTheImportLeft) {
  const std::string book = "A;1\r\nB;2\r\n";
  const UndoRecord record = {"", book.size(), book_checksum(book), {}};
  EXPECT_TRUE(untouched_since(record, book));
  EXPECT_FALSE(untouched_since(record, "A;1\r\nB;3\r\n"));
  EXPECT_FALSE(untouched_since(record, book + "\r\n"));
}

TEST(TakeBack, RemovesAddedLinesSetsReplacedOnesBackAndLeavesTheRest) {
  const UndoRecord record = {"", 0, 0, {{"", "new;1"}, {"old;2", "other;2"}, {"", "gone;3"}}};
  const TakenBack back = take_back("x;9\r\nnew;1\r\nother;2\r\nnew;1\r\ny;8", record);
  EXPECT_EQ(back.book, "x;9\r\nold;2\r\nnew;1\r\ny;8");
  EXPECT_EQ(back.taken, 2U);
  EXPECT_THAT(back.untouched, ElementsAre("gone;3"));
  EXPECT_THAT(take_back("", {}).untouched, IsEmpty());
}

}  // namespace
}  // namespace quenda
