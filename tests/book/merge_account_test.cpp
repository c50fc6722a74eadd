#include "book/merge_account.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "book/entry_list.h"
#include "text/text.h"

namespace quenda {
namespace {

using Names = std::vector<std::string>;

std::string_view name_of(std::string_view text) { return text.substr(0, text.find(' ')); }
std::string_view number_of(std::string_view text) { return text.substr(text.find(' ') + 1); }

/// "name number", merged as the book's entries and the new ones; "fate existing/with" of each new
/// one, the names standing for the positions.
class MergeFates : public testing::Test {
 protected:
  Names fates(const Names& book, const Names& fresh, MergeMode mode) {
    std::string text_of_book;
    for (const std::string& text : book) {
      text_of_book += concat(name_of(text), ";", number_of(text), ";0;0;0;0;;;[vcd()vcd]\r\n");
    }
    FlatTable rows(kEntryColumns);
    for (const std::string& text : fresh) {
      rows.add_row(std::array{name_of(text), number_of(text)});
    }
    BookList list(text_of_book, LineEnd::kCrLf, rows);
    std::string_view line;
    list.read_book(line, [](auto, auto) {});
    list.add_rows([](auto, auto) {});
    MergeAccount account(book.size(), fresh.size(), questions_);
    const std::size_t kept = remove_double_entries(
        list, mode, [this](const auto&) { return answer_; }, [](auto, auto) {},
        [&](const DoubleDecision& decision) { account.note(decision); });
    if (book.size() >= kept) account.withhold();
    Names result;
    for (std::size_t i = 0; i < fresh.size(); ++i) {
      const MergeAccount::Verdict verdict = account.of(i);
      std::string text(words_of(verdict.fate).key);
      if (verdict.existing) text += " book:" + std::string(name_of(book[*verdict.existing]));
      if (verdict.with) text += " with:" + std::string(name_of(fresh[*verdict.with]));
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
