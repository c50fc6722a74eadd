#include "book/undo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "book/book_list.h"
#include "book/merge_account.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Changes = std::vector<BookLineChange>;

const UndoHead kHead = {"02.03.2014 17:05", "Quendabook x.txt", mark_of("before"),
                        mark_of("after")};

std::string text_of(const Changes& changes) {
  UndoText text(kHead);
  for (const BookLineChange& change : changes) text.add(change);
  return std::move(text).finish();
}

TEST(UndoRecord, ComesBackFromItsText) {
  const Changes changes = {{"", "A;1;+"}, {"B;2;-", "B b;2"}};
  const std::string text = text_of(changes);
  const auto read = read_undo_text(text);
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->head.when, kHead.when);
  EXPECT_EQ(read->head.copy, kHead.copy);
  EXPECT_EQ(read->head.before, kHead.before);
  EXPECT_EQ(read->head.after, kHead.after);
  EXPECT_EQ(read->changes, changes);
}

TEST(UndoRecord, ATextThatWasCutOffAnywhereIsNone) {
  const std::string text = text_of({{"", "A;1"}, {"B;2", "B b;2"}});
  for (std::size_t size = 0; size < text.size(); ++size) {
    EXPECT_FALSE(read_undo_text(text.substr(0, size)).has_value()) << size;
  }
  EXPECT_FALSE(read_undo_text(text + "more\r\n").has_value());
}

TEST(BookMark, IsThatOfThePartsAndTellsBooksApart) {
  BookMark parts = mark_of("A;1\r\n");
  parts.add("B;2\r\n");
  EXPECT_EQ(parts, mark_of("A;1\r\nB;2\r\n"));
  EXPECT_NE(parts, mark_of("A;1\r\nB;3\r\n"));
  EXPECT_NE(parts, mark_of("A;1\r\nB;2\r\n\r\n"));
}

TEST(UndoText, HoldsWhatTheMergeHasWritten) {
  // The book has one number twice; the new entry takes the place of the second, which took the
  // place of the first.
  const std::string book =
      "Alt;030111;7;0;3;0;Weg;x;[vcd(N:A)vcd]\r\nZwei;030111;0;0;0;0;;;\r\n"
      "Anna;040222;0;0;0;0;;;[vcd()vcd]\r\n";
  FlatTable rows(3);
  for (const auto& [name, number] : {std::pair("Neu", "030111"), std::pair("Bert", "050333"),
                                     std::pair("Anna", "040222"), std::pair("Cora", "050333")}) {
    rows.add_row(std::array<std::string_view, 3>{name, number, ""}, 0);
  }
  BookList list(book, LineEnd::kCrLf, rows);
  std::string_view line;
  const auto on_step = [](std::size_t, std::size_t) {};
  list.read_book(line, on_step);
  list.add_rows(on_step);
  MergeAccount account(list.in_book(), rows.rows(), MergeAccount::Questions::kAnswered);
  remove_double_entries(list, MergeMode::kTakeNew, {}, on_step,
                        [&](const DoubleDecision& decision) { account.note(decision); });
  UndoText text(kHead);
  text.add_merged(list, account);
  const std::string whole = std::move(text).finish();
  const auto read = read_undo_text(whole);
  ASSERT_TRUE(read.has_value());
  EXPECT_THAT(read->changes, ElementsAre(BookLineChange{"Zwei;030111;0;0;0;0;;;",
                                                        "Neu;030111;7;0;3;0;;;[vcd()vcd]"},
                                         BookLineChange{"", "Cora;050333;0;0;0;0;;;[vcd()vcd]"}));
}

TEST(TakeBack, RemovesAddedLinesSetsReplacedOnesBackAndLeavesTheRest) {
  const Changes changes = {{"", "new;1"}, {"old;2", "other;2"}, {"", "gone;3"}};
  const TakenBack back = take_back("x;9\r\nnew;1\r\nother;2\r\nnew;1\r\ny;8", changes);
  EXPECT_EQ(back.book, "x;9\r\nold;2\r\nnew;1\r\ny;8");
  EXPECT_EQ(back.taken, 2U);
  EXPECT_THAT(back.untouched, ElementsAre("gone;3"));
  EXPECT_THAT(take_back("", {}).untouched, IsEmpty());
}

}  // namespace
}  // namespace quenda
