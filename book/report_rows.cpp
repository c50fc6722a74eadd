#include "book/report_rows.h"

#include <array>

#include "text/fault.h"

namespace quenda {

void ReportRows::add(const ReportRow& row) {
  constexpr std::uint32_t kMost = 1U << 27U;
  const std::size_t place = row.list_row.value_or(texts_.rows());
  if (place >= kMost) raise_fault(kFaultOverflow);
  if (!row.list_row) {
    texts_.add_row(std::array{row.name, row.number, row.raw, row.address},
                   static_cast<std::uint32_t>(row.with.value_or(0)));
  }
  const auto line = static_cast<std::uint32_t>(row.line > 0 ? row.line : row.record);
  rows_.push_back({line, static_cast<std::uint32_t>(place) & (kMost - 1), row.list_row ? 1U : 0U,
                   static_cast<unsigned>(row.fate) & 0xFU});
  ++counts_.at(static_cast<std::size_t>(row.fate));
}

std::optional<std::size_t> ReportRows::list_row(std::size_t at) const {
  if (rows_.at(at).listed == 0) return std::nullopt;
  return rows_.at(at).place;
}

ReportRow ReportRows::row(std::size_t at) const {
  const Row& kept = rows_.at(at);
  ReportRow row;
  if (kept.listed != 0) {
    row = of_list_(kept.place);
    row.list_row = kept.place;
  } else {
    row.name = texts_.cell(kept.place, kName);
    row.number = texts_.cell(kept.place, kNumber);
    row.raw = texts_.cell(kept.place, kRaw);
    row.address = texts_.cell(kept.place, kAddress);
    if (const std::uint32_t with = texts_.origin(kept.place); with > 0) row.with = with;
  }
  row.line = kept.line;
  row.fate = fate(at);
  return row;
}

}  // namespace quenda
