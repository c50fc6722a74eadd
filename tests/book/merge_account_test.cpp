#include "book/merge_account.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quenda {
namespace {

using Names = std::vector<std::string>;

/// "name number", merged as the book's entries and the new ones; "fate existing/with" of each new
/// one, the names standing for the positions.
class MergeFates : public testing::Test {
 protected:
  Names fates(const Names& book, const Names& fresh, MergeMode mode) {
    std::vector<BookEntry> list;
    for (const Names* part : {&book, &fresh}) {
      for (const std::string& text : *part) {
        BookEntry entry;
        entry.Name = std::string_view(text).substr(0, text.find(' '));
        entry.Number = std::string_view(text).substr(text.find(' ') + 1);
        list.push_back(entry);
      }
    }
    const std::vector<BookEntry> all = list;
    MergeAccount account(book.size(), fresh.size(), questions_);
    const std::size_t kept = remove_double_entries(
        list, mode, [this](auto, const auto&, const auto&) { return answer_; }, [](auto, auto) {},
        [&](const DoubleDecision& decision) { account.note(decision); });
    if (book.size() >= kept) account.withhold();
    Names result;
    for (std::size_t i = 0; i < fresh.size(); ++i) {
      const MergeAccount::Verdict verdict = account.of(i);
      std::string text(words_of(verdict.fate).key);
      if (verdict.existing) text += " book:" + std::string(all[*verdict.existing].Name);
      if (verdict.with) text += " with:" + std::string(all[book.size() + *verdict.with].Name);
      result.push_back(text);
    }
    return result;
  }

  MergeAccount::Questions questions_ = MergeAccount::Questions::kAnswered;
  DoubleAnswer answer_;
};

TEST_F(MergeFates, TheNewOneReplacesOrTheBooksStays) {
  const Names book = {"Alt 1", "Same 2"};
  const Names fresh = {"Neu 1", "SAME 2", "Frei 3"};
  EXPECT_EQ(fates(book, fresh, MergeMode::kTakeNew),
            (Names{"replaced book:Alt", "same book:Same", "added"}));
  EXPECT_EQ(fates(book, fresh, MergeMode::kKeepExisting),
            (Names{"kept book:Alt", "same book:Same", "added"}));
}

TEST_F(MergeFates, OfSeveralWithOneNumberTheLastHolderCounts) {
  EXPECT_EQ(fates({"Alt 1"}, {"A 1", "B 1", "B 1", "C 2"}, MergeMode::kTakeNew),
            (Names{"double with:B", "replaced book:Alt", "double with:B", "added"}));
  EXPECT_EQ(fates({}, {"A 1", "B 1"}, MergeMode::kKeepExisting), (Names{"added", "double with:A"}));
}

TEST_F(MergeFates, ABookOfDoublesOutweighsNewEntries) {
  EXPECT_EQ(fates({"A 1", "A 1", "B 2"}, {"Neu 3"}, MergeMode::kTakeNew), (Names{"withheld"}));
  EXPECT_EQ(fates({"A 1", "A 1", "B 2"}, {"C 2"}, MergeMode::kTakeNew), (Names{"withheld book:B"}));
}

TEST_F(MergeFates, QuestionsAreFatesOnlyWhereNobodyAnswers) {
  answer_.take_new = true;
  EXPECT_EQ(fates({"Alt 1"}, {"Neu 1", "X 2"}, MergeMode::kAsk),
            (Names{"replaced book:Alt", "added"}));
  answer_.take_new = false;
  questions_ = MergeAccount::Questions::kOnlyFound;
  EXPECT_EQ(fates({"Alt 1"}, {"Neu 1", "X 2", "Y 2"}, MergeMode::kAsk),
            (Names{"asked book:Alt", "added", "asked with:X"}));
}

TEST_F(MergeFates, ANamelessEntryGivesWayWithoutAQuestion) {
  questions_ = MergeAccount::Questions::kOnlyFound;
  EXPECT_EQ(fates({" 1"}, {"Neu 1", "X 2"}, MergeMode::kAsk), (Names{"replaced book:", "added"}));
}

}  // namespace
}  // namespace quenda
