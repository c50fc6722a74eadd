#include "book/merge.h"

#include <algorithm>
#include <cstdint>

#include "text/row_index.h"
#include "text/text.h"

namespace quenda {
namespace {

bool same_contact(const BookContact& a, const BookContact& b) {
  return equal_ignoring_case(a.name, b.name) && equal_ignoring_case(a.address, b.address);
}

/// Decides which of two entries with one number stays.
class DoubleRule {
 public:
  /// `count_questions` tells, at the first question, how many there are.
  DoubleRule(MergeMode mode, const AskAboutDouble& ask,
             const std::function<std::size_t()>& count_questions)
      : mode_(mode), ask_(ask), count_questions_(count_questions) {}

  /// A nameless entry gives way without a question.
  bool takes_new(std::string_view number, const BookContact& existing, const BookContact& fresh) {
    asked_ = false;
    if (existing.name.empty()) return true;
    if (mode_ != MergeMode::kAsk) return mode_ == MergeMode::kTakeNew;
    asked_ = true;
    ++questions_;
    const DoubleAnswer answer =
        ask_({number, existing, fresh, questions_, [this] { return count(); }});
    mode_ = mode_after(answer);
    return answer.take_new;
  }
  /// Whether the user had to say so.
  [[nodiscard]] bool asked() const { return asked_; }

 private:
  /// Answers may raise further questions.
  std::size_t count() {
    if (questions_ == 1) expected_ = count_questions_();
    return std::max(questions_, expected_);
  }

  MergeMode mode_;
  const AskAboutDouble& ask_;
  const std::function<std::size_t()>& count_questions_;
  std::size_t questions_ = 0;
  std::size_t expected_ = 0;
  bool asked_ = false;
};

std::size_t remove_doubles(BookList& list, DoubleRule& rule, const OnStep& on_step,
                           const OnDecision& on_decision) {
  constexpr std::size_t kAhead = 12;
  constexpr std::size_t kNear = 5;
  using Outcome = DoubleDecision::Outcome;
  const std::size_t total = list.size();
  Steps steps(on_step, total);
  RowIndex by_number(total);
  const auto decide = [&](std::size_t existing, std::size_t fresh) {
    const BookContact old_contact = list.contact(existing);
    const BookContact new_contact = list.contact(fresh);
    if (same_contact(old_contact, new_contact)) return Outcome::kSame;
    return rule.takes_new(list.number(fresh), old_contact, new_contact) ? Outcome::kNewReplaces
                                                                        : Outcome::kExistingStays;
  };
  std::size_t kept = 0;
  for (std::size_t i = 0; i < total; ++i) {
    steps.row_done(i + 1);
    if (i + kAhead < total) by_number.announce(list.hash_of_number(i + kAhead));
    if (i + kNear < total) {
      const std::uint32_t likely = by_number.likely_row(list.hash_of_number(i + kNear));
      if (likely != RowIndex::kNone) list.announce(likely);
    }
    if (!list.written(i)) continue;
    const auto entry = static_cast<std::uint32_t>(i);
    const std::uint32_t hash = list.hash_of_number(i);
    const auto same = [&](std::uint32_t other) { return list.number(other) == list.number(i); };
    const std::uint32_t found = by_number.find_or_add(hash, entry, same);
    if (found == RowIndex::kNone) {
      ++kept;
      continue;
    }
    const Outcome outcome = decide(found, i);
    if (on_decision) {
      on_decision({i, found, outcome, outcome != Outcome::kSame && rule.asked()});
    }
    if (outcome == Outcome::kNewReplaces) {
      list.replace(found, i);
      by_number.replace(hash, entry, same);
      ++kept;
    } else {
      list.drop(i);
    }
  }
  return kept;
}

/// How many questions a list raises whose existing entries are all kept.
std::size_t count_of_questions(BookList list) {
  std::size_t questions = 0;
  const AskAboutDouble keep = [&](const DoubleQuestion&) {
    ++questions;
    return DoubleAnswer{};
  };
  const std::function<std::size_t()> unknown = [] { return std::size_t{0}; };
  DoubleRule rule(MergeMode::kAsk, keep, unknown);
  const OnStep nobody = [](auto, auto) {};
  remove_doubles(list, rule, nobody, {});
  return questions;
}

}  // namespace

std::string in_words(const BookContact& contact) {
  return concat(contact.name, "  ", contact.address);
}

std::size_t remove_double_entries(BookList& list, MergeMode mode, const AskAboutDouble& ask,
                                  const OnStep& on_step, const OnDecision& on_decision) {
  const std::function<std::size_t()> count = [&list] { return count_of_questions(list); };
  DoubleRule rule(mode, ask, count);
  return remove_doubles(list, rule, on_step, on_decision);
}

}  // namespace quenda
