#include "book/foreseen_fates.h"

#include "book/entry_list.h"
#include "book/merge_account.h"

namespace quenda {

std::vector<RowFate> foresee_fates(std::string_view book, LineEnd end, const FlatTable& rows,
                                   MergeMode mode, const OnStep& on_step) {
  BookList list(book, end, rows);
  std::string_view line;
  list.read_book(line, on_step);
  list.add_rows(on_step);
  MergeAccount account(list.in_book(), rows.rows(), MergeAccount::Questions::kOnlyFound);
  const std::size_t kept = remove_double_entries(
      list, mode, [](const auto&...) { return DoubleAnswer{}; }, on_step,
      [&](const DoubleDecision& decision) { account.note(decision); });
  if (list.in_book() >= kept) account.withhold();

  std::vector<RowFate> fates(rows.rows());
  Steps steps(on_step, fates.size());
  for (std::size_t row = 0; row < fates.size(); ++row) {
    steps.row_done(row + 1);
    if (rows.cell(row, kEntryNumber).empty()) {
      fates[row].fate = Fate::kNoNumber;
      continue;
    }
    const MergeAccount::Verdict verdict = account.of(row);
    fates[row].fate = verdict.fate;
    if (verdict.existing) {
      fates[row].in_book = static_cast<std::uint32_t>(list.start(*verdict.existing));
    }
  }
  return fates;
}

}  // namespace quenda
