#include "book/merge.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "book/entry_list.h"
#include "text/text.h"

namespace quenda {
namespace {

BookEntry entry(std::string_view name, std::string_view number, std::string_view address = "") {
  BookEntry made;
  made.Name = name;
  made.Number = number;
  made.Address = address;
  return made;
}

class RemoveDoubleEntries : public testing::Test {
 protected:
  /// The last of the entries may be rows of the final list, which come behind the book.
  std::size_t remove(const std::vector<BookEntry>& entries, std::size_t rows = 0) {
    const std::size_t in_book = entries.size() - rows;
    book_.clear();
    rows_.clear();
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const BookEntry& e = entries[i];
      if (i < in_book) {
        append_book_line(book_, e);
      } else {
        rows_.add_row(std::array{e.Name, e.Number, e.Address});
      }
    }
    const auto no_step = [](auto, auto) {};
    list_.emplace(book_, LineEnd::kCrLf, rows_);
    std::string_view line;
    list_->read_book(line, no_step);
    list_->add_rows(no_step);
    EXPECT_EQ(list_->in_book(), in_book);
    return remove_double_entries(
        *list_, mode_,
        [this](const DoubleQuestion& question) {
          questions_.push_back(concat(question.number, ": ", in_words(question.existing), " / ",
                                      in_words(question.fresh)));
          places_.push_back(
              concat(std::to_string(question.place), "/", std::to_string(question.count())));
          return answer_;
        },
        no_step, on_decision_);
  }
  /// "name:number" of what would be written.
  [[nodiscard]] std::vector<std::string> written() const {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < list_->size(); ++i) {
      if (!list_->written(i)) continue;
      const BookEntry e = list_->entry(i);
      lines.push_back(std::string(e.Name) + ":" + std::string(e.Number));
    }
    return lines;
  }
  using Lines = std::vector<std::string>;

  std::string book_;
  FlatTable rows_{kEntryColumns};
  std::optional<BookList> list_;
  MergeMode mode_ = MergeMode::kAsk;
  DoubleAnswer answer_;
  OnDecision on_decision_;
  Lines questions_;
  Lines places_;
};

TEST_F(RemoveDoubleEntries, DropsExactDoublesWhateverTheirLetterCase) {
  EXPECT_EQ(remove({entry("M\xFCller", "030", "Gru\xDF"), entry("M\xDCLLER", "030", "GRU\xDF")}),
            1U);
  EXPECT_TRUE(questions_.empty());
}

TEST_F(RemoveDoubleEntries, KeepsTheExistingEntry) {
  mode_ = MergeMode::kKeepExisting;
  EXPECT_EQ(remove({entry("Alt", "030"), entry("Neu", "030"), entry("Neu", "031")}), 2U);
  EXPECT_EQ(written(), (Lines{"Alt:030", "Neu:031"}));
  EXPECT_TRUE(questions_.empty());
}

TEST_F(RemoveDoubleEntries, ReplacingEntryTakesOverTagAndCountOnly) {
  mode_ = MergeMode::kTakeNew;
  BookEntry existing = entry("Alt", "030");
  existing.Tag = "x";
  existing.Count = 7;
  existing.Flag1 = true;
  existing.CardData = "card";
  for (const std::size_t rows : {0U, 1U}) {
    EXPECT_EQ(
        remove({existing, entry("Zwei", "031"), entry("Neu", "030"), entry("Neuer", "030")}, rows),
        4U);
    EXPECT_EQ(written(), (Lines{"Zwei:031", "Neuer:030"}));
    const BookEntry heir = list_->entry(3);
    EXPECT_EQ(heir.Tag, "x") << "over two replacements";
    EXPECT_EQ(heir.Count, 7);
    EXPECT_FALSE(heir.Flag1);
    EXPECT_EQ(heir.CardData, "");
  }
}

TEST_F(RemoveDoubleEntries, ReplacedNumberIsFoundAgainUnderItsNewEntry) {
  mode_ = MergeMode::kTakeNew;
  EXPECT_EQ(remove({entry("Eins", "030"), entry("Zwei", "030"), entry("Drei", "030"),
                    entry("drei", "030")}),
            3U);
  EXPECT_EQ(written(), Lines{"Drei:030"});
}

TEST_F(RemoveDoubleEntries, AsksForEachDoubleUntilAnAnswerIsForAll) {
  const std::vector<BookEntry> entries = {entry("A", "1", "x"), entry("B", "1", "y"),
                                          entry("C", "1", "z")};
  remove(entries);
  EXPECT_EQ(questions_, (Lines{"1: A  x / B  y", "1: A  x / C  z"}));
  EXPECT_EQ(places_, (Lines{"1/2", "2/2"}));
  questions_.clear();
  for (const auto& [take_new, left] : {std::pair{true, "C:1"}, std::pair{false, "A:1"}}) {
    questions_.clear();
    answer_ = {.take_new = take_new, .for_all = true};
    remove(entries);
    EXPECT_EQ(questions_.size(), 1U);
    EXPECT_EQ(written(), Lines{left});
  }
}

TEST_F(RemoveDoubleEntries, NamelessEntryIsReplacedWithoutAQuestionInEveryMode) {
  for (const auto mode : {MergeMode::kAsk, MergeMode::kKeepExisting}) {
    mode_ = mode;
    remove({entry("", "030", "Ort"), entry("Neu", "030")});
    EXPECT_EQ(written(), Lines{"Neu:030"});
  }
  EXPECT_TRUE(questions_.empty());
}

TEST_F(RemoveDoubleEntries, TellsOfEachDouble) {
  answer_.take_new = true;
  std::vector<std::string> told;
  on_decision_ = [&](const DoubleDecision& d) {
    told.push_back(std::to_string(d.entry) + " " + std::to_string(d.existing) + " " +
                   std::to_string(static_cast<int>(d.outcome)) + (d.asked ? " asked" : ""));
  };
  remove({entry("none", ""), entry("Alt", "030"), entry("Alt", "030"), entry("Neu", "030"),
          entry("", "040"), entry("Da", "040"), entry("Letzt", "030")},
         3);
  EXPECT_EQ(told, (Lines{"2 1 0", "3 1 2 asked", "5 4 2", "6 3 2 asked"}));
}

TEST_F(RemoveDoubleEntries, DropsEntriesWithoutNumberAndComparesNumbersExactly) {
  EXPECT_EQ(remove({entry("A", ""), entry("A", "03 0"), entry("A", "030"), entry("B", "")}), 2U);
  EXPECT_EQ(written(), (Lines{"A:03 0", "A:030"}));
}

}  // namespace
}  // namespace quenda
