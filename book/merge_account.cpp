#include "book/merge_account.h"

namespace quenda {

MergeAccount::MergeAccount(std::size_t in_book, std::size_t fresh, Questions questions)
    : in_book_(in_book),
      questions_(questions),
      replaced_by_(in_book + fresh, kNone),
      met_(fresh, kNone),
      how_(fresh, Met::kNobody) {}

void MergeAccount::note(const DoubleDecision& decision) {
  using Outcome = DoubleDecision::Outcome;
  const bool replaces = decision.outcome == Outcome::kNewReplaces;
  if (replaces) replaced_by_[decision.existing] = static_cast<std::uint32_t>(decision.entry);
  if (decision.entry < in_book_) return;
  const std::size_t fresh = decision.entry - in_book_;
  met_[fresh] = static_cast<std::uint32_t>(decision.existing);
  how_[fresh] = replaces                             ? Met::kReplaced
                : decision.outcome == Outcome::kSame ? Met::kSame
                                                     : Met::kStays;
  if (decision.asked && questions_ == Questions::kOnlyFound) how_[fresh] = Met::kQuestion;
}

std::uint32_t MergeAccount::last_holder(std::uint32_t entry) const {
  while (replaced_by_[entry] != kNone) entry = replaced_by_[entry];
  return entry;
}

void MergeAccount::point_out(Verdict& verdict, std::uint32_t entry) const {
  if (entry < in_book_) {
    verdict.existing = entry;
  } else {
    verdict.with = entry - in_book_;
  }
}

MergeAccount::Verdict MergeAccount::of(std::size_t fresh) const {
  Verdict verdict;
  const auto own = static_cast<std::uint32_t>(in_book_ + fresh);
  const Met how = how_.at(fresh);
  if (how == Met::kQuestion) {
    verdict.fate = Fate::kAsked;
    point_out(verdict, met_[fresh]);
    return verdict;
  }
  const bool holds = how == Met::kNobody || how == Met::kReplaced;
  const std::uint32_t holder = last_holder(holds ? own : met_[fresh]);
  if (holder != own) {
    verdict.fate = holder >= in_book_  ? Fate::kDouble
                   : how == Met::kSame ? Fate::kSame
                                       : Fate::kKept;
    point_out(verdict, holder);
    return verdict;
  }
  // It has the number in the end. Whether the book had it before is told by the chain of those that
  // gave way, one for another.
  std::uint32_t before = met_[fresh];
  while (before != kNone && before >= in_book_) before = met_[before - in_book_];
  if (before != kNone) verdict.existing = before;
  verdict.fate = withheld_ ? Fate::kWithheld : before == kNone ? Fate::kAdded : Fate::kReplaced;
  return verdict;
}

}  // namespace quenda
