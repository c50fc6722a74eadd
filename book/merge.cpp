#include "book/merge.h"

#include <array>
#include <cstdint>

#include "text/text.h"
#include "text/view_index.h"

namespace quenda {
namespace {

bool same_contact(const BookEntry& a, const BookEntry& b) {
  return equal_ignoring_case(a.Name, b.Name) && equal_ignoring_case(a.Address, b.Address);
}

std::string in_words(const BookEntry& entry) { return concat(entry.Name, "  ", entry.Address); }

/// The hashes of the numbers from the first entry on, some entries ahead of their use: by the time
/// an entry is looked up, the memory of its look-up has been fetched.
class HashesAhead {
 public:
  HashesAhead(const std::vector<BookEntry>& entries, const ViewIndex& index)
      : entries_(entries), index_(index) {
    while (read_ < kAhead) read();
  }

  std::uint64_t next() {
    const std::uint64_t hash = hashes_[used_++ % kAhead];
    read();
    return hash;
  }

 private:
  static constexpr std::size_t kAhead = 12;

  void read() {
    if (read_ < entries_.size()) {
      const std::uint64_t hash = hash_of(entries_[read_].Number);
      hashes_[read_ % kAhead] = hash;
      index_.announce(hash);
    }
    ++read_;
  }

  const std::vector<BookEntry>& entries_;
  const ViewIndex& index_;
  std::array<std::uint64_t, kAhead> hashes_{};
  std::size_t read_ = 0;
  std::size_t used_ = 0;
};

/// Decides which of two entries with one number stays.
class DoubleRule {
 public:
  DoubleRule(MergeMode mode, const AskAboutDouble& ask) : mode_(mode), ask_(ask) {}

  /// A nameless entry gives way without a question.
  bool takes_new(const BookEntry& existing, const BookEntry& fresh) {
    asked_ = false;
    if (existing.Name.empty()) return true;
    if (mode_ != MergeMode::kAsk) return mode_ == MergeMode::kTakeNew;
    asked_ = true;
    const DoubleAnswer answer = ask_(existing.Number, in_words(existing), in_words(fresh));
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

std::size_t remove_double_entries(std::vector<BookEntry>& entries, MergeMode mode,
                                  const AskAboutDouble& ask,
                                  const std::function<void(std::size_t, std::size_t)>& on_step,
                                  const OnDecision& on_decision) {
  const std::size_t total = entries.size();
  const auto number_of = [&](std::uint32_t row) { return entries[row].Number; };
  ViewIndex by_number(total);
  HashesAhead hashes(entries, by_number);
  DoubleRule rule(mode, ask);
  std::size_t kept = 0;
  // The list is packed in place: what is kept never overtakes what is read.
  const auto keep = [&](const BookEntry& entry) { entries[kept++] = entry; };
  // Where the entries kept so far stood in the list that came in; only for those who want to know.
  std::vector<std::uint32_t> came_from(on_decision ? total : 0);
  using Outcome = DoubleDecision::Outcome;
  const auto tell = [&](std::size_t entry, std::uint32_t existing, Outcome outcome) {
    if (on_decision) {
      on_decision({entry, came_from[existing], outcome, outcome != Outcome::kSame && rule.asked()});
    }
  };
  for (std::size_t i = 0; i < total; ++i) {
    on_step(i + 1, total);
    BookEntry fresh = entries[i];
    const std::uint64_t hash = hashes.next();
    if (fresh.Number.empty()) continue;
    // The entry goes to its place before its number is looked up, where the index finds its text.
    entries[kept] = fresh;
    if (on_decision) came_from[kept] = static_cast<std::uint32_t>(i);
    const auto next = static_cast<std::uint32_t>(kept);
    const std::uint32_t found = by_number.find_or_add(fresh.Number, hash, next, number_of);
    if (found == ViewIndex::kNone) {
      keep(fresh);
      continue;
    }
    BookEntry& existing = entries[found];
    if (same_contact(existing, fresh)) {
      tell(i, found, Outcome::kSame);
      continue;
    }
    const bool takes_new = rule.takes_new(existing, fresh);
    tell(i, found, takes_new ? Outcome::kNewReplaces : Outcome::kExistingStays);
    if (!takes_new) continue;
    fresh.Tag = existing.Tag;
    fresh.Count = existing.Count;
    by_number.replace(fresh.Number, next, number_of);
    existing.Number = {};
    keep(fresh);
  }
  entries.resize(kept);
  return kept;
}

}  // namespace quenda
