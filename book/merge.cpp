#include "book/merge.h"

#include <cstdint>

#include "text/text.h"
#include "text/view_index.h"

namespace quenda {
namespace {

bool same_contact(const BookContact& a, const BookContact& b) {
  return equal_ignoring_case(a.name, b.name) && equal_ignoring_case(a.address, b.address);
}

std::string in_words(const BookContact& contact) {
  return concat(contact.name, "  ", contact.address);
}

/// Decides which of two entries with one number stays.
class DoubleRule {
 public:
  DoubleRule(MergeMode mode, const AskAboutDouble& ask) : mode_(mode), ask_(ask) {}

  /// A nameless entry gives way without a question.
  bool takes_new(std::string_view number, const BookContact& existing, const BookContact& fresh) {
    asked_ = false;
    if (existing.name.empty()) return true;
    if (mode_ != MergeMode::kAsk) return mode_ == MergeMode::kTakeNew;
    asked_ = true;
    const DoubleAnswer answer = ask_(number, in_words(existing), in_words(fresh));
    mode_ = mode_after(answer);
    return answer.take_new;
  }
  /// Whether the user had to say so.
  [[nodiscard]] bool asked() const { return asked_; }

 private:
  MergeMode mode_;
  const AskAboutDouble& ask_;
  bool asked_ = false;
};

}  // namespace

std::size_t remove_double_entries(BookList& list, MergeMode mode, const AskAboutDouble& ask,
                                  const std::function<void(std::size_t, std::size_t)>& on_step,
                                  const OnDecision& on_decision) {
  constexpr std::size_t kAhead = 12;
  constexpr std::size_t kNear = 5;
  using Outcome = DoubleDecision::Outcome;
  const std::size_t total = list.size();
  ViewIndex by_number(total);
  DoubleRule rule(mode, ask);
  const auto decide = [&](std::size_t existing, std::size_t fresh) {
    const BookContact old_contact = list.contact(existing);
    const BookContact new_contact = list.contact(fresh);
    if (same_contact(old_contact, new_contact)) return Outcome::kSame;
    return rule.takes_new(list.number(fresh), old_contact, new_contact) ? Outcome::kNewReplaces
                                                                        : Outcome::kExistingStays;
  };
  std::size_t kept = 0;
  for (std::size_t i = 0; i < total; ++i) {
    on_step(i + 1, total);
    if (i + kAhead < total) by_number.announce(list.hash_of_number(i + kAhead));
    if (i + kNear < total) {
      const std::uint32_t likely = by_number.likely_row(list.hash_of_number(i + kNear));
      if (likely != ViewIndex::kNone) list.announce(likely);
    }
    if (!list.written(i)) continue;
    const auto entry = static_cast<std::uint32_t>(i);
    const std::uint32_t hash = list.hash_of_number(i);
    const auto same = [&](std::uint32_t other) { return list.number(other) == list.number(i); };
    const std::uint32_t found = by_number.find_or_add(hash, entry, same);
    if (found == ViewIndex::kNone) {
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

}  // namespace quenda
