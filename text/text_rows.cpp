#include "text/text_rows.h"

namespace quenda {

void TextRows::reserve(std::size_t rows, std::size_t bytes) {
  ends_.reserve(rows);
  text_.reserve(bytes);
}

void TextRows::clear() {
  ends_.clear();
  text_.clear();
}

}  // namespace quenda
