#pragma once

#include <cstddef>
#include <string>

#include "platform/controls/list_view.h"
#include "sources/record_table.h"

namespace quenda {

/// The data records of a file as rows of a preview list, made readable when they are asked for.
class RecordPreview : public RowSource {
 public:
  /// Shows the records after the header. The table has to outlive the preview's use.
  void show(const RecordTable& records, char delimiter, bool converted);
  [[nodiscard]] std::size_t rows() const override;
  [[nodiscard]] std::string cell(std::size_t row, std::size_t column) const override;

 private:
  const RecordTable* records_ = nullptr;
  char delimiter_ = ';';
  std::size_t rows_ = 0;
  bool converted_ = false;  // cells may have line breaks
};

}  // namespace quenda
