#include "app/account/import_account.h"

#include <optional>
#include <string_view>
#include <unordered_map>

#include "book/entry_list.h"
#include "text/view_index.h"

namespace quenda {
namespace {

/// The line of the source where an entry's line stood first. Texts are told apart by their hashes:
/// whether a line repeats another one has been decided before, here it is only looked up.
class FirstLines {
 public:
  /// The first line, when the entry was there before.
  std::optional<std::uint64_t> find_or_add(std::string_view entry, std::uint64_t line) {
    const auto [found, added] = first_.emplace(hash_of(entry), line);
    if (added) return std::nullopt;
    return found->second;
  }

 private:
  std::unordered_map<std::uint64_t, std::uint64_t> first_;
};

/// The rows of the final list in the order of the source, which is their own.
class ListRows {
 public:
  explicit ListRows(const FlatTable& list) : list_(list) {}
  /// The row made of that number, if the list has one; asked for in the order of the source.
  /// Numbers of one cell have one origin, and a row each.
  std::optional<std::size_t> of(std::uint32_t origin) {
    while (next_ < list_.rows() && list_.origin(next_) < origin) ++next_;
    if (next_ == list_.rows() || list_.origin(next_) != origin) return std::nullopt;
    return next_++;
  }

 private:
  const FlatTable& list_;
  std::size_t next_ = 0;
};

void take_list_row(ReportRow& row, const AccountInput& input, std::size_t at) {
  row.name = input.list.cell(at, kEntryName);
  row.number = input.list.cell(at, kEntryNumber);
  row.address = input.list.cell(at, kEntryAddress);
  if (row.number.empty()) {
    row.fate = Fate::kNoNumber;
    return;
  }
  const MergeAccount::Verdict verdict = input.verdict(at);
  row.fate = verdict.fate;
  if (verdict.with) row.with = input.line_of_row(*verdict.with);
  if (verdict.existing) row.existing = input.name_in_book(*verdict.existing);
}

}  // namespace

std::size_t account_for(const AccountInput& input,
                        const std::function<void(const ReportRow&)>& on_row) {
  FirstLines first_lines;
  ListRows list_rows(input.list);
  return input.walk([&](const SourceNumber& number) {
    ReportRow row;
    row.line = number.line;
    row.record = number.record;
    row.row = number.row;
    row.name = number.name;
    row.number = number.number;
    row.raw = number.raw;
    row.address = number.address;
    if (number.fate) {
      row.fate = *number.fate;
    } else {
      const auto earlier = first_lines.find_or_add(number.entry, number.line);
      const auto listed = earlier ? std::nullopt : list_rows.of(number.origin);
      if (!earlier && !input.composed) {
        row.fate = Fate::kUnread;
      } else if (listed) {
        take_list_row(row, input, *listed);
      } else if (earlier) {
        row.fate = Fate::kRepeated;
        row.with = earlier;
      } else {
        row.fate = Fate::kRemoved;
      }
    }
    on_row(row);
  });
}

}  // namespace quenda
