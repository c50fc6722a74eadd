#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "book/fate.h"
#include "book/merge.h"

namespace quenda {

/// What a merge made of the new entries. It listens to the merge's decisions (`note`) and tells the
/// fates afterwards. The list that is merged holds the book's entries first, then the new ones.
class MergeAccount {
 public:
  /// Whether a question was answered, or is only found to be needed: then the merge went on as if
  /// the book's entry stayed, and the entry's fate is that it would be asked about.
  enum class Questions { kAnswered, kOnlyFound };

  MergeAccount(std::size_t in_book, std::size_t fresh, Questions questions);

  void note(const DoubleDecision& decision);
  /// The comparison of counts at the end found nothing to write.
  void withhold() { withheld_ = true; }

  struct Verdict {
    Fate fate = Fate::kAdded;
    std::optional<std::size_t> with;      // position among the new entries
    std::optional<std::size_t> existing;  // position among the book's entries
  };
  /// The fate of a new entry, by its position among the new ones. For one with a number.
  [[nodiscard]] Verdict of(std::size_t fresh) const;

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;
  enum class Met : std::uint8_t { kNobody, kSame, kStays, kReplaced, kQuestion };

  /// Who has the number in the end, when the entry at that position had it once.
  [[nodiscard]] std::uint32_t last_holder(std::uint32_t entry) const;
  void point_out(Verdict& verdict, std::uint32_t entry) const;

  std::size_t in_book_;
  Questions questions_;
  bool withheld_ = false;
  std::vector<std::uint32_t> replaced_by_;  // of every entry; kNone for one that stays
  std::vector<std::uint32_t> met_;          // of each new entry: whose number it has
  std::vector<Met> how_;
};

}  // namespace quenda
