#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "book/fate.h"
#include "book/import_report.h"
#include "text/flat_table.h"

namespace quenda {

/// The numbers of a source with their fates, to be looked through: 8 bytes each, and the texts of
/// those that the final list does not have.
class ReportRows {
 public:
  /// `of_list` tells of a row of the final list: all but the line and the record.
  explicit ReportRows(std::function<ReportRow(std::size_t row)> of_list)
      : of_list_(std::move(of_list)) {}

  void add(const ReportRow& row);

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  [[nodiscard]] Fate fate(std::size_t at) const { return static_cast<Fate>(rows_.at(at).fate); }
  /// The row of the final list that was made of a number, if one was.
  [[nodiscard]] std::optional<std::size_t> list_row(std::size_t at) const;
  /// The line of the source; of a source without lines the record.
  [[nodiscard]] std::size_t line(std::size_t at) const { return rows_.at(at).line; }
  /// A number again, but for the record, the column and, of one in the list, `raw`. The texts are
  /// good until something is added.
  [[nodiscard]] ReportRow row(std::size_t at) const;
  [[nodiscard]] const FateCounts& counts() const { return counts_; }

 private:
  enum Text : std::size_t { kName, kNumber, kRaw, kAddress, kTexts };
  struct Row {
    std::uint32_t line;
    std::uint32_t place : 27;  // in the final list, or among the texts
    std::uint32_t listed : 1;
    std::uint32_t fate : 4;
  };
  static_assert(sizeof(Row) == 8 && kFates == 16);

  std::function<ReportRow(std::size_t row)> of_list_;
  std::vector<Row> rows_;
  FlatTable texts_{kTexts};  // the origin of a row is the line that it gave way to
  FateCounts counts_{};
};

}  // namespace quenda
