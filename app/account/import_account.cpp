#include "app/account/import_account.h"

#include <cstdint>
#include <optional>
#include <string_view>

#include "book/entry_list.h"

namespace quenda {
namespace {

/// Looks up repeats in their order.
class Repeats {
 public:
  explicit Repeats(const std::vector<RepeatedLine>& repeated) : repeated_(repeated) {}
  /// Origin of the row that the composed row repeats, if it repeats one.
  std::optional<std::uint32_t> first_of(std::uint32_t row) {
    while (next_ < repeated_.size() && repeated_[next_].row < row) ++next_;
    if (next_ == repeated_.size() || repeated_[next_].row != row) return std::nullopt;
    return repeated_[next_].first;
  }

 private:
  const std::vector<RepeatedLine>& repeated_;
  std::size_t next_ = 0;
};

/// What the report tells of a row of the final list, but for its place in the source.
void tell_of_row(const AccountInput& input, std::size_t row, ReportRow& told) {
  told.list_row = row;
  told.name = input.list.cell(row, kEntryName);
  told.number = input.list.cell(row, kEntryNumber);
  told.address = input.list.cell(row, kEntryAddress);
  if (told.number.empty()) {
    told.fate = Fate::kNoNumber;
    return;
  }
  const MergeAccount::Verdict verdict = input.verdict(row);
  told.fate = verdict.fate;
  if (verdict.with) told.with = input.line_of(input.list.origin(*verdict.with));
  if (verdict.existing) told.existing = input.name_in_book(*verdict.existing);
}

}  // namespace

ReportRow told_of_row(const AccountInput& input, std::size_t row) {
  ReportRow told;
  tell_of_row(input, row, told);
  return told;
}

std::size_t account_for(const AccountInput& input,
                        const std::function<void(const ReportRow&)>& on_row) {
  Repeats repeats(input.repeated);
  ListRows list_rows(input.list, input.removed);
  ReportRow row;
  return input.walk(list_rows, [&](const SourceNumber& number) {
    // Of the row before, only what not every number sets has to be forgotten.
    row.with.reset();
    row.existing.reset();
    row.list_row.reset();
    row.name = number.name;
    row.number = number.number;
    row.address = number.address;
    if (number.fate) {
      row.fate = *number.fate;
    } else {
      const auto earlier = number.composed ? repeats.first_of(*number.composed) : std::nullopt;
      const auto listed = earlier ? std::nullopt : list_rows.take(number.origin);
      if (!earlier && !input.composed) {
        row.fate = Fate::kUnread;
      } else if (listed) {
        tell_of_row(input, *listed, row);
      } else if (earlier) {
        row.fate = Fate::kRepeated;
        row.with = input.line_of(*earlier);
      } else {
        row.fate = Fate::kRemoved;
      }
    }
    row.line = number.line;
    row.record = number.record;
    row.row = number.row;
    row.raw = number.raw;
    on_row(row);
  });
}

}  // namespace quenda
