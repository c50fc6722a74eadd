#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "book/book_list.h"

namespace quenda {

/// What happens to a number that the book has under another name or address; the numbers are those
/// of the options on the last page.
enum class MergeMode : int { kAsk = 0, kTakeNew = 1, kKeepExisting = 2 };

/// The user's answer to the question about one double.
struct DoubleAnswer {
  bool take_new = false;
  bool for_all = false;  // the answer goes for all doubles that follow, too
};

/// The mode that an answer leaves behind: asking again, unless the answer goes for all.
constexpr MergeMode mode_after(const DoubleAnswer& answer) {
  if (!answer.for_all) return MergeMode::kAsk;
  return answer.take_new ? MergeMode::kTakeNew : MergeMode::kKeepExisting;
}

/// A number that is there already, for the user to decide.
struct DoubleQuestion {
  std::string_view number;
  BookContact existing;
  BookContact fresh;
  std::size_t place = 1;               // which question this is, from 1
  std::function<std::size_t()> count;  // how many there will be if the existing entries are kept
};
using AskAboutDouble = std::function<DoubleAnswer(const DoubleQuestion& question)>;

/// An entry in one line, as the user is asked about it.
std::string in_words(const BookContact& contact);

/// What the removal of doubles decided about an entry whose number an earlier one has. Entries are
/// told by their places in the list.
struct DoubleDecision {
  enum class Outcome { kSame, kExistingStays, kNewReplaces };
  std::size_t entry = 0;
  std::size_t existing = 0;
  Outcome outcome = Outcome::kSame;
  bool asked = false;  // the user had to say
};
using OnDecision = std::function<void(const DoubleDecision&)>;

/// Removes doubles by telephone number (compared as exact texts) from the list; the earlier entry
/// counts as the existing one, inside the book too. Equal names and addresses (letter case aside)
/// make an exact double, which is dropped. A replacing entry takes over `Tag` and `Count`, and the
/// replaced one is dropped; the order of the list stays. Returns how many entries were kept, those
/// that were replaced later included. `mode` is where the run starts; answers for all change it for
/// the rest of the run. `on_step` is told of the entries done, `on_decision`, where one is given,
/// of each double.
std::size_t remove_double_entries(BookList& list, MergeMode mode, const AskAboutDouble& ask,
                                  const OnStep& on_step, const OnDecision& on_decision = {});

}  // namespace quenda
