#include "book/merge.h"

#include <cstdint>

#include "support/text.h"
#include "support/view_index.h"

namespace quenda {
namespace {

bool same_contact(const BookEntry& a, const BookEntry& b) {
  return equal_ignoring_case(a.Name, b.Name) && equal_ignoring_case(a.Address, b.Address);
}

std::string in_words(const BookEntry& entry) { return concat(entry.Name, "  ", entry.Address); }

}  // namespace

std::size_t remove_double_entries(std::vector<BookEntry>& entries, const MergeState& state,
                                  const AskAboutDouble& ask,
                                  const std::function<void(std::size_t, std::size_t)>& on_step) {
  const std::size_t total = entries.size();
  const auto number_of = [&](std::uint32_t row) { return entries[row].Number; };
  ViewIndex by_number(total);
  std::size_t kept = 0;
  // The list is packed in place: what is kept never overtakes what is read.
  const auto keep = [&](const BookEntry& entry) { entries[kept++] = entry; };
  for (std::size_t i = 0; i < total; ++i) {
    on_step(i + 1, total);
    BookEntry fresh = entries[i];
    if (fresh.Number.empty()) continue;
    // The entry goes to its place before its number is looked up, where the index finds its text.
    entries[kept] = fresh;
    const auto next = static_cast<std::uint32_t>(kept);
    const std::uint32_t found = by_number.find_or_add(fresh.Number, next, number_of);
    if (found == ViewIndex::kNone) {
      keep(fresh);
      continue;
    }
    BookEntry& existing = entries[found];
    if (same_contact(existing, fresh)) continue;
    if (!existing.Name.empty()) {
      if (state.mode == MergeMode::kAsk) ask(existing.Number, in_words(existing), in_words(fresh));
      if (state.mode != MergeMode::kTakeNew && !state.replace) continue;
    }
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
